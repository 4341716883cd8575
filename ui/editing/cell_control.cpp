#include "ui/editing/cell_control.h"

#include <array>
#include <utility>

#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

/// A list with the lines that it offers.
class List {
 public:
  List(ChoiceWidget& list, Choices choices) : list_(list), choices_(std::move(choices)) {}

  [[nodiscard]] Widget& Control() const { return list_; }
  [[nodiscard]] const Choices& Lines() const { return choices_; }
  void Show(int value) { ShowIn(choices_, value); }
  /// Shows a value among lines of its own, which the list then offers.
  void ShowIn(const Choices& choices, int value) {
    if (!choices.AreTexts(list_.Items())) list_.SetItems(choices.Texts());
    list_.Owner().Remember(offered_);
    offered_ = &choices == &choices_ ? Choices() : choices;
    list_.Select(choices.LineShowing(value));
  }
  [[nodiscard]] int Chosen() const {
    const Choices& offered = offered_.Count() == 0 ? choices_ : offered_;
    // Another column may have given the list its own lines since.
    return offered.AreTexts(list_.Items()) ? offered.ValueAt(list_.Current()) : Choices::kNone;
  }

 private:
  ChoiceWidget& list_;
  Choices choices_;
  Choices offered_;  ///< the lines that were shown last, where they are others
};

class ListCells : public CellControl {
 public:
  ListCells(ChoiceWidget& list, Choices choices, ChoicesOfRow of_row)
      : list_(list, std::move(choices)), of_row_(std::move(of_row)) {}

  [[nodiscard]] Widget& Control() const override { return list_.Control(); }
  [[nodiscard]] std::string TextOf(int /*part*/, int value) const override {
    return list_.Lines().TextOf(value);
  }
  [[nodiscard]] int ValueOf(int /*part*/, const std::string& text) const override {
    return list_.Lines().ValueOf(text);
  }
  [[nodiscard]] bool Offers(int /*part*/, int value) const override {
    return list_.Lines().Has(value);
  }
  void Show(int row, const std::vector<int>& values) override {
    if (of_row_) {
      list_.ShowIn(of_row_(row), values.front());
    } else {
      list_.Show(values.front());
    }
  }
  [[nodiscard]] int Chosen(int /*part*/) const override { return list_.Chosen(); }

 private:
  List list_;
  ChoicesOfRow of_row_;
};

/// Two lists that are moved together, so either tells what both stand at.
class ListPairCells : public CellControl {
 public:
  ListPairCells(List one, List other) : lists_{std::move(one), std::move(other)} {}

  [[nodiscard]] Widget& Control() const override { return lists_[0].Control(); }
  [[nodiscard]] bool StandsAtOneValue() const override { return true; }
  [[nodiscard]] Widget* OtherControl() const override { return &lists_[1].Control(); }
  [[nodiscard]] std::string TextOf(int part, int value) const override {
    return At(part).Lines().TextOf(value);
  }
  [[nodiscard]] int ValueOf(int part, const std::string& text) const override {
    return At(part).Lines().ValueOf(text);
  }
  [[nodiscard]] bool Offers(int part, int value) const override {
    return At(part).Lines().Has(value);
  }
  void Show(int /*row*/, const std::vector<int>& values) override {
    for (List& list : lists_) list.Show(values.front());
  }
  [[nodiscard]] int Chosen(int /*part*/) const override { return lists_[0].Chosen(); }

 private:
  [[nodiscard]] const List& At(int part) const { return lists_.at(static_cast<std::size_t>(part)); }

  std::array<List, 2> lists_;
};

/// A slider shows something even when the cell has nothing. That is no choice until the user moves
/// the handle.
class SliderCells : public CellControl {
 public:
  SliderCells(Slider& slider, Label& shown) : slider_(slider), shown_(shown) {}

  [[nodiscard]] Widget& Control() const override { return slider_; }
  [[nodiscard]] std::string TextOf(int /*part*/, int value) const override {
    return value < 0 ? "" : std::to_string(value);
  }
  [[nodiscard]] int ValueOf(int part, const std::string& text) const override {
    const int value = ReadNumber(text).value_or(kNone);
    return Offers(part, value) ? value : kNone;
  }
  [[nodiscard]] bool Offers(int /*part*/, int value) const override {
    return value >= slider_.Minimum() && value <= slider_.Maximum();
  }
  void Show(int /*row*/, const std::vector<int>& values) override {
    slider_.Owner().Remember(blank_);
    blank_ = values.front() == kNone;
    slider_.SetValue(blank_ ? slider_.Minimum() : values.front());
    shown_.SetCaption(TextOf(0, values.front()));
  }
  [[nodiscard]] int Chosen(int /*part*/) const override {
    return blank_ && !slider_.Edited() ? kNone : slider_.Value();
  }

 private:
  Slider& slider_;
  Label& shown_;
  bool blank_ = true;
};

constexpr int kHours = 24;
constexpr int kMinutes = 60;

class TimeCells : public CellControl {
 public:
  explicit TimeCells(TimePicker& picker) : picker_(picker) {}

  [[nodiscard]] Widget& Control() const override { return picker_; }
  [[nodiscard]] std::string TextOf(int part, int value) const override {
    return Offers(part, value)
               ? TimeText(ClockFormat::kHoursMinutes, {value / kMinutes, value % kMinutes, 0})
               : "";
  }
  [[nodiscard]] int ValueOf(int /*part*/, const std::string& text) const override {
    const auto time = ReadTime(text);
    return time ? time->hour * kMinutes + time->minute : kNone;
  }
  [[nodiscard]] bool Offers(int /*part*/, int value) const override {
    return value >= 0 && value < kHours * kMinutes;
  }
  void Show(int /*row*/, const std::vector<int>& values) override {
    if (Offers(0, values.front())) {
      picker_.SetTime({values.front() / kMinutes, values.front() % kMinutes, 0});
    } else {
      picker_.Clear();
    }
  }
  [[nodiscard]] int Chosen(int /*part*/) const override {
    const auto& time = picker_.Time();
    return time && IsTime(*time) ? time->hour * kMinutes + time->minute : kNone;
  }

 private:
  TimePicker& picker_;
};

class HourAndMinuteCells : public CellControl {
 public:
  explicit HourAndMinuteCells(TimePicker& picker) : picker_(picker), whole_(picker) {}

  [[nodiscard]] Widget& Control() const override { return whole_.Control(); }
  [[nodiscard]] std::string TextOf(int part, int value) const override {
    return Offers(part, value) ? NumberText(value, 2) : "";
  }
  [[nodiscard]] int ValueOf(int part, const std::string& text) const override {
    const int value = ReadNumber(text).value_or(kNone);
    return Offers(part, value) ? value : kNone;
  }
  [[nodiscard]] bool Offers(int part, int value) const override {
    return value >= 0 && value <= (part == 0 ? kHours - 1 : picker_.LastMinute());
  }
  void Show(int row, const std::vector<int>& values) override {
    const bool whole = Offers(0, values.at(0)) && Offers(1, values.at(1));
    whole_.Show(row, {whole ? values.at(0) * kMinutes + values.at(1) : kNone});
  }
  [[nodiscard]] int Chosen(int part) const override {
    const int minutes = whole_.Chosen(0);
    if (minutes == kNone) return kNone;
    return part == 0 ? minutes / kMinutes : minutes % kMinutes;
  }

 private:
  TimePicker& picker_;
  TimeCells whole_;
};

}  // namespace

std::unique_ptr<CellControl> MakeCellControl(ChoiceWidget& list, Choices choices,
                                             ChoicesOfRow of_row) {
  return std::make_unique<ListCells>(list, std::move(choices), std::move(of_row));
}

std::unique_ptr<CellControl> MakeCellControl(ChoiceWidget& one, Choices choices_of_one,
                                             ChoiceWidget& other, Choices choices_of_other) {
  return std::make_unique<ListPairCells>(List(one, std::move(choices_of_one)),
                                         List(other, std::move(choices_of_other)));
}

std::unique_ptr<CellControl> MakeCellControl(Slider& slider, Label& shown) {
  return std::make_unique<SliderCells>(slider, shown);
}

std::unique_ptr<CellControl> MakeCellControl(TimePicker& picker) {
  return std::make_unique<TimeCells>(picker);
}

std::unique_ptr<CellControl> MakeHourAndMinute(TimePicker& picker) {
  return std::make_unique<HourAndMinuteCells>(picker);
}

}  // namespace quorvel
