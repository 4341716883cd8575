#include "core/setting_value.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <utility>

namespace quorvel {

namespace {

using layout::AnySetting;

char Lower(char letter) {
  return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
}

bool Alike(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, [](char a, char b) { return Lower(a) == Lower(b); });
}

std::optional<int> ReadFlag(std::string_view text) {
  constexpr std::array<std::string_view, 4> kOn{"yes", "true", "on", "1"};
  constexpr std::array<std::string_view, 4> kOff{"no", "false", "off", "0"};
  const auto is_one_of = [text](const auto& words) {
    return std::ranges::any_of(words, [text](std::string_view it) { return Alike(text, it); });
  };
  if (is_one_of(kOn)) return 1;
  if (is_one_of(kOff)) return 0;
  return std::nullopt;
}

/// A whole number with the unit behind it, or without.
std::optional<int> ReadWhole(std::string_view text, std::string_view unit) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  const auto rest = text.substr(static_cast<std::size_t>(end - text.data()));
  if (!rest.empty() && !Alike(Trimmed(rest), Trimmed(unit))) return std::nullopt;
  return number;
}

std::optional<int> HexDigit(char letter) {
  if (letter >= '0' && letter <= '9') return letter - '0';
  const char lower = Lower(letter);
  if (lower >= 'a' && lower <= 'f') return lower - 'a' + 10;
  return std::nullopt;
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::optional<int> ReadNumber(std::string_view text, const AnySetting& setting,
                              const AllowedNumbers& allowed) {
  const std::string_view word = Trimmed(text);
  std::optional<int> number;
  if (setting.Type() == SettingType::kFlag) number = ReadFlag(word);
  if (!number) {
    const auto code = std::ranges::find_if(allowed.codes,
                                           [word](const Code& it) { return Alike(word, it.text); });
    if (code != allowed.codes.end()) number = code->value;
  }
  if (!number) {
    const layout::SettingValue held = setting.Holds();
    number = ReadWhole(word, held.unit);
    // A number far out of range must not become one within it.
    constexpr int kFarAway = 1'000'000;
    if (number && (*number > kFarAway || *number < -kFarAway)) return std::nullopt;
    if (number) *number -= held.first;
  }
  if (!number || !allowed.Holds(*number)) return std::nullopt;
  return number;
}

std::optional<std::string> ReadText(std::string_view text) {
  if (text.empty() || text.front() != '"') return std::string(text);
  std::string characters;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '"') {
      if (i + 1 != text.size()) return std::nullopt;
      return characters;
    }
    if (text[i] != '\\') {
      characters += text[i];
      continue;
    }
    if (text.size() - i < 4 || text[i + 1] != 'x') return std::nullopt;
    const auto high = HexDigit(text[i + 2]);
    const auto low = HexDigit(text[i + 3]);
    if (!high || !low) return std::nullopt;
    characters += static_cast<char>(*high * 16 + *low);
    i += 3;
  }
  return std::nullopt;
}

}  // namespace quorvel
