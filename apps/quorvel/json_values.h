#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <string>

#include "quorvel/settings.h"

namespace quorvel::tool {

/// Objects keep the order of their names.
using Json = nlohmann::ordered_json;

/// A value as MainMenuCtrl::Settings gives it: true and false for flags, numbers without their
/// unit, texts in UTF-8.
[[nodiscard]] Json JsonOf(const std::string& value);

/// An object of names and values, a line each.
[[nodiscard]] std::string JsonObject(std::span<const SettingLine> lines);

/// What MainMenuCtrl::SetSetting takes for a value, or else why a setting of that type has none
/// like it, in words.
struct SettingValue {
  std::optional<std::string> value;
  std::string refusal;
};
[[nodiscard]] SettingValue SettingValueOf(const Json& value, SettingType type);

}  // namespace quorvel::tool
