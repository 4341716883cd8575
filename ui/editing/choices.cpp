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

Choices::Choices(std::initializer_list<Line> lines)
    : data_(std::make_shared<Data>(Data{lines, {}, {}})) {}

Choices::Choices(std::vector<std::string> texts, int first) {
  std::vector<Line>& lines = Own().lines;
  lines.reserve(texts.size());
  for (std::string& text : texts) lines.push_back({first++, std::move(text)});
}

Choices Choices::Numbers(int first, int last, int first_value, std::size_t digits) {
  Choices numbers;
  std::vector<Line>& lines = numbers.Own().lines;
  lines.reserve(static_cast<std::size_t>(std::max(last - first + 1, 0)));
  for (int number = first; number <= last; ++number) {
    lines.push_back({first_value++, NumberText(number, digits)});
  }
  return numbers;
}

Choices::Data& Choices::Own() {
  if (data_ == nullptr) {
    data_ = std::make_shared<Data>();
  } else if (data_.use_count() > 1) {
    data_ = std::make_shared<Data>(*data_);
  }
  return *data_;
}

Choices& Choices::Add(int value, std::string text) {
  Own().lines.push_back({value, std::move(text)});
  return *this;
}

Choices& Choices::Add(const Choices& more) {
  if (more.data_ == nullptr) return *this;
  const auto added = more.data_;  // also where a list adds itself
  std::vector<Line>& lines = Own().lines;
  lines.insert(lines.end(), added->lines.begin(), added->lines.end());
  return *this;
}

Choices& Choices::Reads(int value, std::string text) {
  Own().readings.push_back({value, std::move(text)});
  return *this;
}

Choices& Choices::OthersRead(std::function<std::string(int)> text) {
  Own().others = std::move(text);
  return *this;
}

std::vector<std::string> Choices::Texts() const {
  std::vector<std::string> texts;
  if (data_ == nullptr) return texts;
  texts.reserve(data_->lines.size());
  for (const Line& line : data_->lines) texts.push_back(line.text);
  return texts;
}

bool Choices::AreTexts(const std::vector<std::string>& texts) const {
  if (data_ == nullptr) return texts.empty();
  return std::equal(texts.begin(), texts.end(), data_->lines.begin(), data_->lines.end(),
                    [](const std::string& text, const Line& line) { return text == line.text; });
}

int Choices::ValueAt(int line) const {
  return line >= 0 && line < Count() ? data_->lines[static_cast<std::size_t>(line)].value : kNone;
}

int Choices::LineOf(int value) const {
  if (Count() == 0) return kNone;
  // Most lists count: the line is found where it would then be.
  const std::vector<Line>& lines = data_->lines;
  const int expected = value - lines.front().value;
  if (expected >= 0 && ValueAt(expected) == value) return expected;
  const auto found = FindValue(lines, value);
  return found == lines.end() ? kNone : static_cast<int>(found - lines.begin());
}

int Choices::LineShowing(int value) const {
  const int line = LineOf(value);
  if (line != kNone) return line;
  const std::string text = TextOf(value);
  return text.empty() ? kNone : LineOf(ValueOf(text));
}

std::string Choices::TextOf(int value) const {
  if (value == kNone || data_ == nullptr) return {};
  const auto reading = FindValue(data_->readings, value);
  if (reading != data_->readings.end()) return reading->text;
  const int line = LineOf(value);
  if (line != kNone) return data_->lines[static_cast<std::size_t>(line)].text;
  return data_->others ? data_->others(value) : std::string();
}

int Choices::ValueOf(std::string_view text) const {
  if (data_ == nullptr) return kNone;
  for (const Line& line : data_->lines) {
    if (TextOf(line.value) == text) return line.value;
  }
  return kNone;
}

}  // namespace quorvel
