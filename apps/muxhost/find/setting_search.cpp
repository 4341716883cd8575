#include "muxhost/find/setting_search.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <utility>

namespace quorvel::muxhost {

namespace {

// What counts between rows in which a word fits equally well.
constexpr int kLabel = 0;
constexpr int kLine = 1;
constexpr int kName = 2;  // its numbers count from 0, those of lines from 1
constexpr int kPage = 3;
constexpr int kEditor = 4;
constexpr int kBlock = 5;
constexpr int kValue = 6;
constexpr int kWeights = 7;

/// A block fits as a whole word that is not the first of its text.
constexpr int kBlockDistance = 2;

/// Rows that have the words one behind the other come before all others.
constexpr int kApart = 1'000'000;

std::optional<int> BlockIn(std::string_view word) {
  int number = 0;
  const char* const end = word.data() + word.size();
  const auto [last, error] = std::from_chars(word.data(), end, number);
  return error == std::errc() && last == end && number > 0 ? std::optional(number) : std::nullopt;
}

}  // namespace

SettingSearch::SettingSearch(std::span<const SettingRow> rows) {
  rows_.reserve(rows.size());
  for (const SettingRow& row : rows) {
    Row& folded = rows_.emplace_back();
    folded.blocks = row.blocks;
    const auto add = [&folded](int weight, const std::string& text) {
      if (!text.empty()) folded.texts.push_back({weight, FoldedText(text)});
    };
    add(kLabel, row.at.label);
    for (const std::string& name : row.settings) add(kName, name);
    add(kLine, row.at.line);
    add(kPage, row.at.page);
    add(kEditor, row.at.editor);
    add(kValue, row.value);
  }
}

std::vector<SettingSearch::Word> SettingSearch::Split(std::string_view words) {
  std::vector<Word> found;
  std::istringstream in(Fold(words));
  for (std::string text; in >> text;) {
    // Between the parts of a place that was pasted.
    if (text == ">") continue;
    const auto block = BlockIn(text);
    if (block && !found.empty() &&
        (found.back().text == "block" || found.back().text == "blocks")) {
      found.back() = {std::move(text), block, true};
    } else {
      found.push_back({std::move(text), block});
    }
  }
  return found;
}

std::optional<int> SettingSearch::Distance(const Row& row, const Word& word) {
  std::optional<int> nearest;
  const auto take = [&nearest](int distance, int weight) {
    const int all = distance * kWeights + weight;
    nearest = std::min(nearest.value_or(all), all);
  };
  if (word.block && std::ranges::find(row.blocks, *word.block) != row.blocks.end()) {
    take(kBlockDistance, kBlock);
  }
  if (word.only_block) return nearest;
  for (const Text& text : row.texts) {
    if (const auto distance = text.text.Distance(word.text)) take(*distance, text.weight);
  }
  return nearest;
}

bool SettingSearch::HasPhrase(const Row& row, const std::string& phrase) {
  return std::ranges::any_of(row.texts, [&](const Text& text) {
    return !phrase.empty() && text.text.Distance(phrase).has_value();
  });
}

std::vector<std::size_t> SettingSearch::Find(std::string_view words) const {
  const auto wanted = Split(words);
  std::string phrase;
  for (const Word& word : wanted) {
    if (!word.only_block) phrase += (phrase.empty() ? "" : " ") + word.text;
  }
  std::vector<std::pair<int, std::size_t>> found;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    int distance = 0;
    const bool fits = std::ranges::all_of(wanted, [&](const Word& word) {
      const auto it = Distance(rows_[i], word);
      distance += it.value_or(0);
      return it.has_value();
    });
    if (!fits) continue;
    if (wanted.size() > 1 && !HasPhrase(rows_[i], phrase)) distance += kApart;
    found.emplace_back(distance, i);
  }
  std::ranges::sort(found);
  std::vector<std::size_t> numbers;
  numbers.reserve(found.size());
  for (const auto& [distance, number] : found) numbers.push_back(number);
  return numbers;
}

}  // namespace quorvel::muxhost
