#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "muxhost/find/folded_text.h"
#include "quorvel/byte.h"
#include "quorvel/review.h"

namespace quorvel::muxhost {

/// Finds settings by what the dialogs call them, by name, value and block.
class SettingSearch {
 public:
  explicit SettingSearch(std::span<const SettingRow> rows);

  /// The rows, by number, that have each of the words somewhere, in any order; case and accents
  /// aside. Rows that have them one behind the other come first, then those that are called by them
  /// before those that have them in the middle of some word; among equals, and without words, they
  /// stay in their order. "47" is block 47, too, and "block 47" nothing else.
  [[nodiscard]] std::vector<std::size_t> Find(std::string_view words) const;

 private:
  struct Text {
    int weight;  ///< less counts more
    FoldedText text;
  };
  struct Row {
    std::vector<Text> texts;
    std::vector<Byte> blocks;
  };
  struct Word {
    std::string text;
    std::optional<int> block;  ///< that the word may stand for
    bool only_block = false;
  };

  [[nodiscard]] static std::vector<Word> Split(std::string_view words);
  [[nodiscard]] static std::optional<int> Distance(const Row& row, const Word& word);
  [[nodiscard]] static bool HasPhrase(const Row& row, const std::string& phrase);

  std::vector<Row> rows_;
};

}  // namespace quorvel::muxhost
