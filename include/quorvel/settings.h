#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvel {

/// One setting by name, with its value in an installer's terms: "yes" and "no" for flags, a unit
/// behind a number where there is one, texts in quotes. Members of collections are named with their
/// 0-based index, as "CamInfo(3).SignalGain"; text blocks with their block.
struct SettingLine {
  std::string name;
  std::string value;
  bool operator==(const SettingLine&) const = default;
};

/// A setting that two configurations hold differently, and the blocks that carry it. A value is
/// empty where a configuration does not have the setting.
struct SettingDifference {
  std::string name;
  std::string value;
  std::string other;
  std::vector<std::uint8_t> blocks;
  bool operator==(const SettingDifference&) const = default;
};

}  // namespace quorvel
