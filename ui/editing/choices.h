#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvel {

/// What a control offers: lines, each of which stands for a value of the device. A place in the
/// list means nothing by itself, and neither does a text: two lines may read the same.
class Choices {
 public:
  static constexpr int kNone = -1;
  /// Of a line that the model does not offer, and that keeps its place.
  static constexpr int kNoValue = -2;
  struct Line {
    int value;
    std::string text;
  };

  Choices() = default;
  Choices(std::initializer_list<Line> lines);
  /// Texts that stand for the values from `first` on.
  explicit Choices(std::vector<std::string> texts, int first = 0);
  /// The numbers `first` to `last`; the first of them stands for `first_value`, the next for one
  /// more.
  [[nodiscard]] static Choices Numbers(int first, int last, int first_value,
                                       std::size_t digits = 1);

  /// Adds a line behind the others.
  Choices& Add(int value, std::string text);
  /// Adds the lines of `more` behind the others.
  Choices& Add(const Choices& more);
  /// Says how a value reads in a cell, where that is not what its line says, or where it has none.
  Choices& Reads(int value, std::string text);
  /// Says how values read in a cell that are told apart by neither a line nor Reads; otherwise they
  /// read as nothing.
  Choices& OthersRead(std::function<std::string(int value)> text);

  [[nodiscard]] int Count() const { return data_ ? static_cast<int>(data_->lines.size()) : 0; }
  /// The texts of the lines, as a list shows them.
  [[nodiscard]] std::vector<std::string> Texts() const;
  [[nodiscard]] bool AreTexts(const std::vector<std::string>& texts) const;
  /// The value of a line, 0-based, or kNone.
  [[nodiscard]] int ValueAt(int line) const;
  /// The first line of a value, or kNone.
  [[nodiscard]] int LineOf(int value) const;
  /// The line at which a control shows a value: its own or, of a value without one, the first that
  /// reads as its cell does. kNone for what reads as nothing.
  [[nodiscard]] int LineShowing(int value) const;
  [[nodiscard]] bool Has(int value) const { return LineOf(value) != kNone; }
  /// How a value reads in a cell; empty for one that reads as nothing.
  [[nodiscard]] std::string TextOf(int value) const;
  /// The first value with a line whose cell reads so, or kNone.
  [[nodiscard]] int ValueOf(std::string_view text) const;

 private:
  struct Data {
    std::vector<Line> lines;
    std::vector<Line> readings;
    std::function<std::string(int)> others;
  };
  /// For a change: copies share their lines until one of them changes.
  [[nodiscard]] Data& Own();

  std::shared_ptr<Data> data_;  ///< none without lines
};

}  // namespace quorvel
