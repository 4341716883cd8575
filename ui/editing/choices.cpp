#include "ui/editing/choices.h"

#include <algorithm>

#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

template <class Lines>
auto FindValue(const Lines& lines, int value) {
  return std::find_if(lines.begin(), lines.end(),
                      [value](const auto& it) { return it.value == value; });
}

}  // namespace

Choices::Choices(std::vector<std::string> texts, int first) {
  lines_.reserve(texts.size());
  for (std::string& text : texts) lines_.push_back({first++, std::move(text)});
}

Choices Choices::Numbers(int first, int last, int first_value, std::size_t digits) {
  return Choices(NumberTexts(first, last, digits), first_value);
}

Choices& Choices::Add(int value, std::string text) {
  lines_.push_back({value, std::move(text)});
  return *this;
}

Choices& Choices::Add(const Choices& more) {
  lines_.insert(lines_.end(), more.lines_.begin(), more.lines_.end());
  return *this;
}

Choices& Choices::Reads(int value, std::string text) {
  readings_.push_back({value, std::move(text)});
  return *this;
}

Choices& Choices::OthersRead(std::function<std::string(int)> text) {
  others_ = std::move(text);
  return *this;
}

std::vector<std::string> Choices::Texts() const {
  std::vector<std::string> texts;
  texts.reserve(lines_.size());
  for (const Line& line : lines_) texts.push_back(line.text);
  return texts;
}

int Choices::ValueAt(int line) const {
  return line >= 0 && line < Count() ? lines_[static_cast<std::size_t>(line)].value : kNone;
}

int Choices::LineOf(int value) const {
  // Most lists count: the line is found where it would then be.
  const int expected = lines_.empty() ? kNone : value - lines_.front().value;
  if (expected >= 0 && ValueAt(expected) == value) return expected;
  const auto found = FindValue(lines_, value);
  return found == lines_.end() ? kNone : static_cast<int>(found - lines_.begin());
}

std::string Choices::TextOf(int value) const {
  if (value == kNone) return {};
  const auto reading = FindValue(readings_, value);
  if (reading != readings_.end()) return reading->text;
  const int line = LineOf(value);
  if (line != kNone) return lines_[static_cast<std::size_t>(line)].text;
  return others_ ? others_(value) : std::string();
}

int Choices::ValueOf(std::string_view text) const {
  for (const Line& line : lines_) {
    if (TextOf(line.value) == text) return line.value;
  }
  return kNone;
}

}  // namespace quorvel
