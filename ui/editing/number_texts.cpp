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

std::vector<std::string> NumberTexts(int first, int last, std::size_t digits) {
  std::vector<std::string> texts;
  texts.reserve(static_cast<std::size_t>(std::max(last - first + 1, 0)));
  for (int number = first; number <= last; ++number) texts.push_back(NumberText(number, digits));
  return texts;
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
