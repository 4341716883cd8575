#include "ui/editing/cell_control.h"

#include <utility>

#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

class ListCells : public CellControl {
 public:
  ListCells(ChoiceWidget& list, std::vector<std::string> items, CellTextRule text)
      : list_(list), items_(std::move(items)), text_(std::move(text)) {}

  [[nodiscard]] const Widget& Control() const override { return list_; }
  [[nodiscard]] bool Has(int /*part*/, int item) const override {
    return item >= 0 && static_cast<std::size_t>(item) < Items().size();
  }
  [[nodiscard]] std::string TextOf(int part, int item) const override {
    if (!Has(part, item)) return {};
    return text_ ? text_(item) : Items()[static_cast<std::size_t>(item)];
  }
  [[nodiscard]] int ItemOf(int part, const std::string& text) const override {
    int item = 0;
    while (Has(part, item) && TextOf(part, item) != text) ++item;
    return Has(part, item) ? item : kNone;
  }
  void Show(const std::vector<int>& items) override {
    if (list_.Items() != Items()) list_.SetItems(items_);
    list_.Select(items.front());
  }
  [[nodiscard]] int Chosen(int /*part*/) const override {
    return list_.Items() == Items() ? list_.Current() : kNone;
  }

 private:
  [[nodiscard]] const std::vector<std::string>& Items() const {
    return items_.empty() ? list_.Items() : items_;
  }

  ChoiceWidget& list_;
  std::vector<std::string> items_;
  CellTextRule text_;
};

/// A slider shows something even when the cell has nothing. That is no choice until somebody moves
/// the handle.
class SliderCells : public CellControl {
 public:
  SliderCells(Slider& slider, Label& shown) : slider_(slider), shown_(shown) {}

  [[nodiscard]] const Widget& Control() const override { return slider_; }
  [[nodiscard]] bool Has(int /*part*/, int item) const override { return item >= 0; }
  [[nodiscard]] bool Offers(int /*part*/, int item) const override {
    return item >= slider_.Minimum() && item <= slider_.Maximum();
  }
  [[nodiscard]] std::string TextOf(int part, int item) const override {
    return Has(part, item) ? std::to_string(item) : "";
  }
  [[nodiscard]] int ItemOf(int /*part*/, const std::string& text) const override {
    return ReadNumber(text).value_or(kNone);
  }
  void Show(const std::vector<int>& items) override {
    blank_ = items.front() == kNone;
    slider_.SetValue(blank_ ? slider_.Minimum() : items.front());
    shown_.SetCaption(TextOf(0, items.front()));
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

  [[nodiscard]] const Widget& Control() const override { return picker_; }
  [[nodiscard]] bool Has(int /*part*/, int item) const override {
    return item >= 0 && item < kHours * kMinutes;
  }
  [[nodiscard]] std::string TextOf(int /*part*/, int item) const override {
    return TimeText(ClockFormat::kHoursMinutes, {item / kMinutes, item % kMinutes, 0});
  }
  [[nodiscard]] int ItemOf(int /*part*/, const std::string& text) const override {
    const auto time = ReadTime(text);
    return time ? time->hour * kMinutes + time->minute : kNone;
  }
  void Show(const std::vector<int>& items) override {
    if (items.front() == kNone) {
      picker_.Clear();
    } else {
      picker_.SetTime({items.front() / kMinutes, items.front() % kMinutes, 0});
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
  explicit HourAndMinuteCells(TimePicker& picker) : whole_(picker) {}

  [[nodiscard]] const Widget& Control() const override { return whole_.Control(); }
  [[nodiscard]] bool Has(int part, int item) const override {
    return item >= 0 && item < (part == 0 ? kHours : kMinutes);
  }
  [[nodiscard]] std::string TextOf(int part, int item) const override {
    return Has(part, item) ? NumberText(item, 2) : "";
  }
  [[nodiscard]] int ItemOf(int part, const std::string& text) const override {
    const int item = ReadNumber(text).value_or(kNone);
    return Has(part, item) ? item : kNone;
  }
  void Show(const std::vector<int>& items) override {
    const bool blank = items.at(0) == kNone || items.at(1) == kNone;
    whole_.Show({blank ? kNone : items.at(0) * kMinutes + items.at(1)});
  }
  [[nodiscard]] int Chosen(int part) const override {
    const int minutes = whole_.Chosen(0);
    if (minutes == kNone) return kNone;
    return part == 0 ? minutes / kMinutes : minutes % kMinutes;
  }

 private:
  TimeCells whole_;
};

}  // namespace

std::unique_ptr<CellControl> MakeCellControl(ChoiceWidget& list, std::vector<std::string> items,
                                             CellTextRule text) {
  return std::make_unique<ListCells>(list, std::move(items), std::move(text));
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
