#include "quorvel/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace quorvel {

namespace {

/// Characters of bytes 0x80 to 0x9F; every other byte is the character of the same number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned kFirstHighControl = 0x80;
constexpr unsigned kAfterHighControls = 0xA0;
constexpr char32_t kBroken = 0xFFFD;

void AppendUtf8(std::string& text, char32_t character) {
  const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | character >> 6);
    put(0x80 | (character & 0x3F));
  } else {
    put(0xE0 | character >> 12);
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  }
}

/// Takes one character off the front; kBroken, and one byte, where there is none.
char32_t TakeCharacter(std::string_view& text) {
  const auto byte_at = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned first = byte_at(0);
  std::size_t length = 1;
  char32_t character = first;
  if (first >= 0xF0) {
    length = 4;
    character = first & 0x07;
  } else if (first >= 0xE0) {
    length = 3;
    character = first & 0x0F;
  } else if (first >= 0xC0) {
    length = 2;
    character = first & 0x1F;
  } else if (first >= 0x80) {
    character = kBroken;
  }
  bool whole = length <= text.size();
  for (std::size_t i = 1; whole && i < length; ++i) {
    whole = (byte_at(i) & 0xC0U) == 0x80U;
    character = character << 6 | (byte_at(i) & 0x3FU);
  }
  text.remove_prefix(whole ? length : 1);
  return whole ? character : kBroken;
}

char ToByte(char32_t character) {
  if (character < kFirstHighControl || (character >= kAfterHighControls && character < 0x100)) {
    return static_cast<char>(character);
  }
  const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), character);
  if (found == kHighControls.end()) return '?';
  return static_cast<char>(kFirstHighControl +
                           static_cast<unsigned>(found - kHighControls.begin()));
}

}  // namespace

std::string CodePageToUtf8(std::string_view bytes) {
  std::string text;
  for (const char raw : bytes) {
    const auto byte = static_cast<unsigned char>(raw);
    const bool high_control = byte >= kFirstHighControl && byte < kAfterHighControls;
    AppendUtf8(text, high_control ? kHighControls[byte - kFirstHighControl] : char32_t{byte});
  }
  return text;
}

std::string Utf8ToCodePage(std::string_view text) {
  std::string bytes;
  while (!text.empty()) bytes.push_back(ToByte(TakeCharacter(text)));
  return bytes;
}

}  // namespace quorvel
