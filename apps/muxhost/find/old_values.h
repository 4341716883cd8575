#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "quorvel/review.h"

namespace quorvel::muxhost {

/// What a review has found, row by row. A setting may stand behind several rows, and a line of a
/// review may stand for several of them, "Camera 1, 2".
class OldValues {
 public:
  OldValues() = default;
  explicit OldValues(std::span<const ReviewLine> lines);

  /// What the other side has for a row; nothing where both have the same.
  [[nodiscard]] std::optional<std::string_view> Of(const SettingRow& row) const;

 private:
  struct Line {
    SettingPosition at;
    std::vector<std::string> settings;
    std::string value;
  };
  std::multimap<std::string, Line, std::less<>> lines_;  ///< by each of their settings
};

}  // namespace quorvel::muxhost
