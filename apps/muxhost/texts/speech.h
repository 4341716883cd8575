#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::muxhost {

/// Says a text of muxhost's own, given in English, in the user's language.
using Speech = std::function<std::string(const char* english)>;

/// Marks a text of a table, which is said where it is shown.
constexpr const char* ToSay(const char* english) { return english; }

/// That of scripts.
[[nodiscard]] inline std::string InEnglish(const char* english) { return english; }

/// The text with the values in the places of %1, %2, ...
[[nodiscard]] std::string Fill(std::string_view text, const std::vector<std::string>& values);

}  // namespace quorvel::muxhost
