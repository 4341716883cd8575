#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvel {

/// A number with at least so many digits.
[[nodiscard]] std::string NumberText(int number, std::size_t digits = 1);
/// The number that a text of nothing but ASCII digits tells, the largest int for any larger one.
[[nodiscard]] std::optional<int> ReadNumber(std::string_view text);

}  // namespace quorvel
