#pragma once

#include <string>

#include "ui/editing/choices.h"

namespace quorvel {

/// The days after which recordings are deleted, as MuxData::PlayRecLnk holds them, behind `off` for
/// never. Older firmware knows no less than a week, but keeps showing less where less is stored.
/// `firmware` is 506 for 5.06; `days` is the unit with the blank before it.
[[nodiscard]] Choices AutoDeleteChoices(int stored, int firmware, const std::string& off,
                                        const std::string& days);

}  // namespace quorvel
