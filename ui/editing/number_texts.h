#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel {

/// A number with at least so many digits.
[[nodiscard]] std::string NumberText(int number, std::size_t digits = 1);
/// The numbers from `first` to `last`, for a list.
[[nodiscard]] std::vector<std::string> NumberTexts(int first, int last, std::size_t digits = 1);
/// The number that a text of nothing but ASCII digits tells, the largest int for any larger one.
[[nodiscard]] std::optional<int> ReadNumber(std::string_view text);

}  // namespace quorvel
