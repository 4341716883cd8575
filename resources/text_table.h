#pragma once

#include <string_view>

namespace quorvel {

inline constexpr int kTextCount = 333;

/// The built-in English text of id 0 to 332, in UTF-8; empty for other ids.
[[nodiscard]] std::string_view BuiltInText(int id);

}  // namespace quorvel
