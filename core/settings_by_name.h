#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/survey.h"
#include "quorvel/settings.h"

namespace quorvel {

// Settings one by one, by the names that a survey lists. Each is found by a pass over the block
// layouts that compares names and makes none.

/// What can be said of the setting of that name; nothing where the device has none.
[[nodiscard]] std::optional<SettingDescription> DescribeSetting(const Configuration& of,
                                                                std::string_view name);
/// The same of every setting whose name fits `pattern` (see ListSettings), in block order.
[[nodiscard]] std::vector<SettingDescription> DescribeSettings(const Configuration& of,
                                                               std::string_view pattern);

/// Its value as a survey lists it.
[[nodiscard]] std::optional<std::string> GetSetting(const Configuration& of, std::string_view name);

/// Sets it as its editor would: the blocks that carry it are listed, and the device's marks of what
/// is new are set. `value` holds the device's characters and is
/// - of a flag, "yes", "true", "on", "1" or the opposite,
/// - of a number, the number as an installer sees it, with its unit or without, or a code's text,
/// - of a text, the text itself, or in quotes as a survey lists it.
/// Case does not matter but in texts.
SetAnswer SetSetting(const Configuration& of, RecordEnvironment& env, std::string_view name,
                     std::string_view value);

/// Sets it to what another configuration of the device holds, in StoredForm, also where no editor
/// could make it so; the bit N of a mask where the name ends with " bit N". Lists and marks as
/// SetSetting does what changes, and adds all blocks that carry it to `blocks`. False when it
/// cannot be set.
[[nodiscard]] bool SetStored(const Configuration& of, RecordEnvironment& env, std::string_view name,
                             std::string_view stored, std::set<Byte>& blocks);

/// The settings that hold what they cannot have, in block order.
[[nodiscard]] std::vector<SettingFinding> FindUnallowed(const Configuration& of);

}  // namespace quorvel
