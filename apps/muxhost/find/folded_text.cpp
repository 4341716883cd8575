#include "muxhost/find/folded_text.h"

#include <algorithm>

namespace quorvel::muxhost {

namespace {

constexpr unsigned kFirstFolded = 0xC0;
/// From À to ſ: the letter without its accent; of two letters, the first.
constexpr std::string_view kPlain =
    "aaaaaaaceeeeiiiidnoooooxouuuuyts"
    "aaaaaaaceeeeiiiidnooooo/ouuuuyty"
    "aaaaaaccccccccddddeeeeeeeeeegggg"
    "gggghhhhiiiiiiiiiiiijjkkklllllll"
    "lllnnnnnnnnnoooooooorrrrrrssssss"
    "ssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(kFirstFolded + kPlain.size() == 0x180);

/// The second letter of those that stand for two; else 0.
char SecondLetter(unsigned code) {
  switch (code) {
    case 0xC6:
    case 0xE6:
    case 0x152:
    case 0x153: return 'e';
    case 0xDE:
    case 0xFE: return 'h';
    case 0xDF: return 's';
    case 0x132:
    case 0x133: return 'j';
    default: return 0;
  }
}

/// The code of a character of two bytes that is folded; else 0.
unsigned CodeAt(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text.at(i)); };
  if (at + 1 >= text.size() || (byte(at) & 0xE0) != 0xC0 || (byte(at + 1) & 0xC0) != 0x80) return 0;
  const unsigned code = (byte(at) & 0x1FU) << 6 | (byte(at + 1) & 0x3FU);
  return code >= kFirstFolded && code < kFirstFolded + kPlain.size() ? code : 0;
}

bool IsDigit(char it) { return it >= '0' && it <= '9'; }
bool IsUpper(char it) { return it >= 'A' && it <= 'Z'; }
/// Bytes beyond ASCII are taken for parts of letters.
bool IsInWords(char it) {
  return IsDigit(it) || IsUpper(it) || (it >= 'a' && it <= 'z') || (it & 0x80) != 0;
}
char Lower(char it) { return IsUpper(it) ? static_cast<char>(it - 'A' + 'a') : it; }

}  // namespace

std::string Fold(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const unsigned code = CodeAt(text, i);
    if (code == 0) {
      folded += Lower(text.at(i));
      continue;
    }
    folded += kPlain.at(code - kFirstFolded);
    if (const char second = SecondLetter(code); second != 0) folded += second;
    ++i;
  }
  return folded;
}

FoldedText::FoldedText(std::string_view text) {
  char before = ' ';
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t length = CodeAt(text, i) == 0 ? 1 : 2;
    const char now = text.at(i);
    text_ += Fold(text.substr(i, length));
    const bool begins =
        !IsInWords(before) || IsDigit(before) != IsDigit(now) || (IsUpper(now) && !IsUpper(before));
    const Place place = !IsInWords(now) ? Place::kBetween
                        : begins        ? Place::kBegins
                                        : Place::kInside;
    if (places_.size() < text_.size()) places_.push_back(place);
    places_.resize(text_.size(), Place::kInside);
    i += length - 1;
    before = length == 2 ? 'A' : now;
  }
}

std::optional<int> FoldedText::Distance(std::string_view word) const {
  std::optional<int> nearest;
  for (auto at = text_.find(word); at != std::string::npos; at = text_.find(word, at + 1)) {
    if (IsDigit(word.front()) && places_.at(at) == Place::kInside) continue;
    nearest = std::min(nearest.value_or(kFarthest), DistanceAt(at, word.size()));
    if (at == 0 && *nearest == 0) break;
  }
  return nearest;
}

int FoldedText::DistanceAt(std::size_t at, std::size_t length) const {
  constexpr int kBegins = 2;
  constexpr int kMiddle = 4;
  const std::size_t end = at + length;
  const bool is_whole = end == text_.size() || places_.at(end) != Place::kInside;
  int distance = kMiddle;
  if (at == 0) {
    distance = 0;
  } else if (places_.at(at) == Place::kBegins) {
    distance = kBegins;
  }
  return distance + (is_whole ? 0 : 1);
}

}  // namespace quorvel::muxhost
