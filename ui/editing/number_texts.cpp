#include "ui/editing/number_texts.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace quorvel {

std::string NumberText(int number, std::size_t digits) {
  std::string text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

std::optional<int> ReadNumber(std::string_view text) {
  const bool digits =
      std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (text.empty() || !digits) return std::nullopt;
  int number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  return result.ec == std::errc() ? number : std::numeric_limits<int>::max();
}

}  // namespace quorvel
