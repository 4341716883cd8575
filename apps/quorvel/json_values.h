#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <string>

#include "quorvel/settings.h"

namespace quorvel::tool {

/// A value as MainMenuCtrl::Settings gives it: true and false for flags, numbers without their
/// unit, texts in UTF-8.
[[nodiscard]] nlohmann::json JsonOf(const std::string& value);

/// An object of names and values, a line each.
[[nodiscard]] std::string JsonObject(std::span<const SettingLine> lines);

/// What MainMenuCtrl::SetSetting takes for a value; nothing for one that is neither text, whole
/// number, true nor false.
[[nodiscard]] std::optional<std::string> SettingValueOf(const nlohmann::json& value,
                                                        SettingType type);

}  // namespace quorvel::tool
