#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "quorvel/export.h"

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

enum class SettingType { kFlag, kNumber, kText };

/// A number that stands for something, in English: 0 "Disable".
struct SettingCode {
  int value = 0;
  std::string text;
  bool operator==(const SettingCode&) const = default;
};

/// Where a setting is kept: `length` bytes from byte `at` (0-based) of block `block`; of a single
/// byte, the bits of `mask`.
struct SettingPlace {
  std::uint8_t block = 0;
  int at = 0;
  int length = 1;
  std::uint8_t mask = 0xFF;
  /// The device's note about a setting that is kept elsewhere; never written.
  bool is_mark = false;
  bool operator==(const SettingPlace&) const = default;
};

/// What can be said of a setting on the device at hand. Numbers are those that an installer sees.
struct SettingDescription {
  std::string name;
  SettingType type = SettingType::kNumber;
  std::string unit;  ///< "s", "min" or ""
  /// The numbers that it can have, both ends among them: 0 and 1 of a flag; of a text, the
  /// characters that it can have.
  int least = 0;
  int most = 0;
  /// Numbers that stand for something; allowed outside `least` to `most` as well.
  std::vector<SettingCode> codes;
  bool codes_only = false;           ///< no other numbers are allowed than those of `codes`
  bool writable = false;             ///< false of what only the device or the decoder writes
  std::vector<std::uint8_t> blocks;  ///< that carry it, in rising order
  std::vector<SettingPlace> places;
  bool operator==(const SettingDescription&) const = default;
};

/// What the setting can hold, in words: "0 to 9", "1 to 250 s", "0 = OFF, 1 = ON", "0 to 20 or 99 =
/// TURBO" and, where the codes are among the other numbers, "0 to 20: 2 = 4 pps, 3 = 20 pps"; "yes
/// or no", "no = N/CLOSED, yes = N/OPEN"; "up to 13 characters".
[[nodiscard]] QUORVEL_API std::string AllowedInWords(const SettingDescription& setting);

/// What became of a value that was to be set. Anything but kSet has changed nothing.
enum class SetAnswer {
  kSet,
  kUnchanged,      ///< it has that value
  kNoSuchSetting,  ///< the device at hand has no setting of that name
  kReadOnly,       ///< only the device writes it
  kNotAValue,      ///< not a value of the setting, see SettingDescription
  kNoImage,        ///< no configuration has arrived
};

/// The answer in words, for messages.
[[nodiscard]] QUORVEL_API const char* Describe(SetAnswer answer);

/// A setting that holds what it cannot have, as a damaged file or a foreign program leaves it.
struct SettingFinding {
  std::string name;
  std::string value;
  std::string reason;  ///< in words, as "not 0 to 9"
  bool operator==(const SettingFinding&) const = default;
};

}  // namespace quorvel
