#include "apps/quorvel/json_values.h"

#include <charconv>

#include "quorvel/code_page.h"

namespace quorvel::tool {

namespace {

/// The characters of a text in quotes, in which some are written as \xHH.
std::string Unquoted(std::string_view quoted) {
  constexpr std::size_t kEscapeLength = 4;
  constexpr int kHexadecimal = 16;
  const std::string_view inside = quoted.substr(1, quoted.size() - 2);
  std::string characters;
  for (std::size_t i = 0; i < inside.size(); ++i) {
    if (inside[i] != '\\' || i + kEscapeLength > inside.size()) {
      characters += inside[i];
      continue;
    }
    const char* const digits = inside.data() + i + 2;
    unsigned char code = 0;
    std::from_chars(digits, digits + 2, code, kHexadecimal);
    characters += static_cast<char>(code);
    i += kEscapeLength - 1;
  }
  return characters;
}

/// A text in quotes, in which what would end it, or begin an escape, is written as \xHH.
std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char letter : text) {
    if (letter == '"') {
      quoted += "\\x22";
    } else if (letter == '\\') {
      quoted += "\\x5C";
    } else {
      quoted += letter;
    }
  }
  return quoted + '"';
}

}  // namespace

Json JsonOf(const std::string& value) {
  if (value == "yes") return true;
  if (value == "no") return false;
  if (value.size() >= 2 && value.front() == '"') return CodePageToUtf8(Unquoted(value));
  int number = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
  if (error == std::errc()) return number;
  return CodePageToUtf8(value);
}

std::string JsonObject(std::span<const SettingLine> lines) {
  // Line by line: an object that keeps its order would compare every name with all before it.
  std::string text = "{";
  const char* separator = "\n";
  for (const SettingLine& line : lines) {
    text += separator;
    text += "  " + Json(line.name).dump() + ": " + JsonOf(line.value).dump();
    separator = ",\n";
  }
  return text + "\n}\n";
}

SettingValue SettingValueOf(const Json& value, SettingType type) {
  // What is nested, perhaps deeper than the stack, is not shown.
  if (value.is_structured()) return {{}, "a list or an object is no value"};
  if (value.is_string()) {
    const auto& text = value.get_ref<const std::string&>();
    return {type == SettingType::kText ? Quoted(text) : text, {}};
  }
  if (type == SettingType::kText) return {{}, value.dump() + " is no text"};
  if (value.is_boolean()) return {value.get<bool>() ? "yes" : "no", {}};
  if (value.is_number_integer()) return {value.dump(), {}};
  return {{}, value.dump() + " is neither text, whole number, true nor false"};
}

}  // namespace quorvel::tool
