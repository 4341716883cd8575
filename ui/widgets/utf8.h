#pragma once

#include <string_view>

namespace quorvel {

/// True for the first byte of a character, as opposed to the bytes that go on with one.
[[nodiscard]] constexpr bool StartsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
}

/// The number of characters of a UTF-8 text.
[[nodiscard]] constexpr int CountCharacters(std::string_view text) {
  int count = 0;
  for (const char c : text) count += StartsCharacter(c) ? 1 : 0;
  return count;
}

}  // namespace quorvel
