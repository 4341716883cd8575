#pragma once

#include <string>
#include <vector>

namespace quorvel::muxhost {

/// Names of settings, those that differ in their numbers made one: "CamInfo(0-15).SignalGain",
/// "TelEnable(0-3, 8)", "CamEvent(0-15).EvAssociated(0-2)".
[[nodiscard]] std::vector<std::string> Gathered(const std::vector<std::string>& names);

}  // namespace quorvel::muxhost
