#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/layout/any_setting.h"
#include "core/survey.h"
#include "quorvel/byte.h"

namespace quorvel {

/// A setting of a device, as a SettingList knows it.
struct ListedSetting {
  std::string name;
  std::string_view unit;     ///< " s"; empty for none
  std::vector<Byte> blocks;  ///< that carry it, in rising order
  int most = 0;              ///< the highest number that its place can hold
  bool writable = false;     ///< false of what only the device or the decoder writes
};

/// The settings of a device, numbered in block order: what two configurations of it hold is
/// compared by number, without a name being made.
class SettingList {
 public:
  explicit SettingList(const Configuration& of);

  [[nodiscard]] std::size_t Count() const { return settings_.size(); }
  [[nodiscard]] const ListedSetting& At(std::size_t number) const { return settings_.at(number); }
  /// The number of the setting of that name.
  [[nodiscard]] std::optional<std::size_t> Find(const std::string& name) const;
  /// What a configuration of the same device holds, by number. Texts are those of its record.
  [[nodiscard]] std::vector<layout::SettingValue> Values(const Configuration& of) const;

 private:
  std::vector<ListedSetting> settings_;
  std::vector<std::size_t> at_place_;  ///< the setting at each place of a pass, in its order
  std::unordered_map<std::string, std::size_t> by_name_;
};

/// What a setting holds, as it is stored: a number in digits, a text in the device's characters.
[[nodiscard]] std::string StoredForm(const layout::SettingValue& value);

}  // namespace quorvel
