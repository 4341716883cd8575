#pragma once

#include <string_view>
#include <vector>

namespace quorvel {

/// The parts of a text between separators; one more than there are separators.
[[nodiscard]] inline std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t end = 0; (end = text.find(separator)) != std::string_view::npos;) {
    parts.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  parts.push_back(text);
  return parts;
}

/// Lines as any system ends them; the last may have an end or not.
[[nodiscard]] inline std::vector<std::string_view> Lines(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  auto lines = Split(text, '\n');
  for (std::string_view& line : lines) {
    if (line.ends_with('\r')) line.remove_suffix(1);
  }
  return lines;
}

}  // namespace quorvel
