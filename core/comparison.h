#pragma once

#include <vector>

#include "core/survey.h"
#include "quorvel/settings.h"

namespace quorvel {

/// The settings that two configurations hold differently, in block order.
[[nodiscard]] std::vector<SettingDifference> CompareConfigurations(const Configuration& one,
                                                                   const Configuration& other);

}  // namespace quorvel
