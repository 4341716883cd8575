#include "muxhost/find/old_values.h"

#include <algorithm>

namespace quorvel::muxhost {

namespace {

bool IsSamePlace(const SettingPosition& a, const SettingPosition& b) {
  return a.window == b.window && a.control == b.control && a.row == b.row && a.column == b.column;
}

}  // namespace

OldValues::OldValues(std::span<const ReviewLine> lines) {
  for (const ReviewLine& line : lines) {
    for (const std::string& name : line.settings) {
      lines_.emplace(name, Line{line.at, line.settings, line.old_value});
    }
  }
}

std::optional<std::string_view> OldValues::Of(const SettingRow& row) const {
  if (row.settings.empty()) return std::nullopt;
  const auto [first, last] = lines_.equal_range(row.settings.front());
  for (auto it = first; it != last; ++it) {
    const Line& line = it->second;
    const auto is_told = [&](const std::string& name) {
      return std::ranges::find(line.settings, name) != line.settings.end();
    };
    if (IsSamePlace(line.at, row.at) && std::ranges::all_of(row.settings, is_told)) {
      return line.value;
    }
  }
  return std::nullopt;
}

}  // namespace quorvel::muxhost
