#include "core/layout/any_setting.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace quorvel::layout {

namespace {

void PutNumber(std::string& text, int number) {
  std::array<char, 12> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  text.append(digits.data(), end);
}

void PutIndex(std::string& text, int index) {
  if (index < 0) return;
  text += '(';
  PutNumber(text, index);
  text += ')';
}

}  // namespace

std::string QuotedText(std::string_view text) {
  std::string quoted = "\"";
  for (const char raw : text) {
    const auto character = static_cast<unsigned char>(raw);
    if (character >= 0x20 && character < 0x7F && raw != '"' && raw != '\\') {
      quoted += raw;
      continue;
    }
    std::array<char, 8> code{};
    std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(character));
    quoted += code.data();
  }
  return quoted + "\"";
}

void PutFullName(std::string& full, const SettingOwner& owner, std::string_view name, int entry) {
  full = owner.Collection();
  if (!full.empty()) {
    PutIndex(full, owner.Index());
    full += '.';
  }
  full += name;
  PutIndex(full, entry);
}

std::string FullName(const SettingOwner& owner, std::string_view name, int entry) {
  std::string full;
  PutFullName(full, owner, name, entry);
  return full;
}

std::string SettingValue::InWords() const {
  switch (type) {
    case SettingType::kFlag: return number != 0 ? "yes" : "no";
    case SettingType::kText: return QuotedText(text);
    case SettingType::kNumber: break;
  }
  std::string value;
  PutNumber(value, number + first);
  return value + unit;
}

}  // namespace quorvel::layout
