#include <algorithm>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "ui/context.h"
#include "ui/editing/column_field.h"
#include "ui/editing/device_text.h"
#include "ui/editing/fields.h"
#include "ui/editing/number_box.h"
#include "ui/editing/octet_boxes.h"

namespace quorvel {

namespace {

/// Runs `use` for the control of a line: of an array its element, else the control itself.
template <class Control>
[[nodiscard]] Control& ControlAt(ControlArray<Control>& controls, int line) {
  return controls(line);
}
template <class Control>
[[nodiscard]] Control& ControlAt(Control& control, int /*line*/) {
  return control;
}

template <class Boxes>
class CheckField final : public ValueField {
 public:
  CheckField(Boxes& boxes, SettingRef setting) : ValueField(std::move(setting)), boxes_(boxes) {}

 protected:
  void Show(int line, int value) override { ControlAt(boxes_, line).SetChecked(value == 1); }
  [[nodiscard]] int Present(int line) const override {
    const bool checked = ControlAt(boxes_, line).Checked();
    if (checked == (Opened(line) == 1)) return kNone;  // as it was filled
    return checked ? 1 : 0;
  }
  [[nodiscard]] bool Offers(int value) const override { return value == 0 || value == 1; }
  [[nodiscard]] std::string TextOf(int value) const override { return value == 1 ? "x" : "-"; }
  void TellChanges(int line, std::vector<FieldChange>& changes) const override {
    changes.push_back({.control = &ControlOf(line)});
  }
  [[nodiscard]] const Widget& ControlOf(int line) const override { return ControlAt(boxes_, line); }

 private:
  Boxes& boxes_;
};

/// A control that offers lines, each of which stands for a value.
class ChoiceField : public ValueField {
 protected:
  ChoiceField(Choices choices, SettingRef setting)
      : ValueField(std::move(setting)), choices_(std::move(choices)) {}
  [[nodiscard]] const Choices& Lines() const { return choices_; }
  [[nodiscard]] bool Offers(int value) const override { return choices_.Has(value); }
  [[nodiscard]] std::string TextOf(int value) const override { return choices_.TextOf(value); }

 private:
  Choices choices_;
};

class OptionsField final : public ChoiceField {
 public:
  OptionsField(ControlArray<OptionButton>& options, Choices choices, SettingRef setting,
               std::string name)
      : ChoiceField(std::move(choices), std::move(setting)),
        options_(options),
        name_(std::move(name)) {
    int i = 0;
    for (std::string& text : Lines().Texts()) options_(i++).SetCaption(std::move(text));
    if (!name_.empty()) options_.SetSpokenNames(name_);
  }

 protected:
  void Show(int /*line*/, int value) override { options_.Select(Lines().LineOf(value)); }
  [[nodiscard]] int Present(int /*line*/) const override {
    return Lines().ValueAt(options_.Selected());
  }
  [[nodiscard]] const Widget& ControlOf(int /*line*/) const override { return options_(0); }
  void TellChanges(int line, std::vector<FieldChange>& changes) const override {
    ValueField::TellChanges(line, changes);
    const int selected = options_.Selected();
    if (selected >= 0) changes.back().control = &options_(selected);
  }
  [[nodiscard]] bool EditedBy(const Widget& control, int /*line*/) const override {
    return std::any_of(options_.begin(), options_.end(),
                       [&control](const OptionButton& option) { return &option == &control; });
  }
  void TellPlace(int /*line*/, ShownSetting& shown) const override {
    shown.caption = name_.empty() ? options_(0).SurroundingCaption() : name_;
  }

 private:
  ControlArray<OptionButton>& options_;
  std::string name_;
};

class ListField final : public ChoiceField {
 public:
  ListField(ChoiceWidget& list, Choices choices, SettingRef setting)
      : ChoiceField(std::move(choices), std::move(setting)), list_(list) {
    list_.SetItems(Lines().Texts());
  }

 protected:
  void Show(int line, int /*value*/) override { list_.Select(Lines().LineOf(CommonUpTo(line))); }
  [[nodiscard]] int Present(int /*line*/) const override {
    return Lines().ValueAt(list_.Current());
  }
  [[nodiscard]] const Widget& ControlOf(int /*line*/) const override { return list_; }

 private:
  ChoiceWidget& list_;
};

class SliderField final : public ValueField {
 public:
  SliderField(Slider& slider, Label& shown, SettingRef setting)
      : ValueField(std::move(setting)), slider_(slider), shown_(shown) {
    slider_.on_change = [this] { shown_.SetCaption(std::to_string(slider_.Value())); };
  }

 protected:
  void Show(int line, int /*value*/) override {
    const int common = CommonUpTo(line);
    slider_.Owner().Remember(blank_);
    blank_ = common == kNone;
    slider_.SetValue(blank_ ? slider_.Minimum() : common);
    shown_.SetCaption(TextOf(common));
  }
  [[nodiscard]] int Present(int /*line*/) const override {
    return blank_ && !slider_.Edited() ? kNone : slider_.Value();
  }
  [[nodiscard]] bool Offers(int value) const override {
    return value >= slider_.Minimum() && value <= slider_.Maximum();
  }
  [[nodiscard]] std::string TextOf(int value) const override {
    return value == kNone ? "" : std::to_string(value);
  }
  [[nodiscard]] const Widget& ControlOf(int /*line*/) const override { return slider_; }

 private:
  Slider& slider_;
  Label& shown_;
  bool blank_ = true;  ///< until the user moves the handle
};

/// Hour, minute and second, or year, month and day, as one number, whatever they hold.
constexpr int kByteBits = 8;
constexpr int kByteMask = 0xFF;
SettingRef ThreeParts(SettingRef high, SettingRef middle, SettingRef low) {
  return Joined(
      {std::move(high), std::move(middle), std::move(low)},
      [](const std::vector<int>& parts) {
        return parts.at(0) << 2 * kByteBits | (parts.at(1) & kByteMask) << kByteBits |
               (parts.at(2) & kByteMask);
      },
      [](int value, std::vector<int>& parts) {
        parts = {value >> 2 * kByteBits, value >> kByteBits & kByteMask, value & kByteMask};
      });
}

class TimeField final : public ValueField {
 public:
  TimeField(TimePicker& picker, SettingRef setting)
      : ValueField(std::move(setting)), picker_(picker) {}

 protected:
  void Show(int /*line*/, int value) override { picker_.SetTime(TimeOfValue(value)); }
  [[nodiscard]] int Present(int /*line*/) const override {
    const auto& time = picker_.Time();
    if (!time) return kNone;
    return (time->hour << 2 * kByteBits) | (time->minute << kByteBits) | time->second;
  }
  [[nodiscard]] bool Offers(int value) const override { return IsTime(TimeOfValue(value)); }
  [[nodiscard]] std::string TextOf(int value) const override {
    return TimeText(picker_.Format(), TimeOfValue(value));
  }
  [[nodiscard]] const Widget& ControlOf(int /*line*/) const override { return picker_; }

 private:
  static ClockTime TimeOfValue(int value) {
    return {value >> 2 * kByteBits, value >> kByteBits & kByteMask, value & kByteMask};
  }
  TimePicker& picker_;
};

/// What no calendar has shows as the nearest date that it has, and stays until the user picks one.
class DateField final : public ValueField {
 public:
  DateField(DatePicker& picker, SettingRef setting)
      : ValueField(std::move(setting)), picker_(picker) {}
  void TakeFrom(MuxData& record, int line) override {
    picker_.Pick(NearestDate(DateOfValue(StoredIn(record, line))));
  }

 protected:
  void Show(int /*line*/, int value) override { picker_.SetDate(NearestDate(DateOfValue(value))); }
  [[nodiscard]] int Present(int /*line*/) const override {
    const auto& date = picker_.Date();
    if (!date || !picker_.Edited()) return kNone;
    return (date->year << 2 * kByteBits) | (date->month << kByteBits) | date->day;
  }
  [[nodiscard]] bool Offers(int value) const override { return IsDate(DateOfValue(value)); }
  [[nodiscard]] std::string TextOf(int value) const override {
    return DateText(NearestDate(DateOfValue(value)));
  }
  [[nodiscard]] const Widget& ControlOf(int /*line*/) const override { return picker_; }

 private:
  static CalendarDate DateOfValue(int value) {
    return {value >> 2 * kByteBits, value >> kByteBits & kByteMask, value & kByteMask};
  }
  DatePicker& picker_;
};

class PortField final : public ValueField {
 public:
  PortField(TextBox& box, int least, int most, int otherwise, SettingRef setting)
      : ValueField(std::move(setting)), box_(box), port_(box, least, most, otherwise) {}

 protected:
  void Show(int /*line*/, int value) override { port_.Show(value); }
  [[nodiscard]] int Present(int /*line*/) const override { return port_.Number(); }
  /// What is stored out of range is shown, and stays until the user types.
  [[nodiscard]] bool Offers(int /*value*/) const override { return true; }
  [[nodiscard]] std::string TextOf(int value) const override { return std::to_string(value); }
  [[nodiscard]] const Widget& ControlOf(int /*line*/) const override { return box_; }

 private:
  TextBox& box_;
  PortBox port_;
};

class OctetsField final : public Field {
 public:
  OctetsField(ControlArray<TextBox>& boxes, SettingRef octets)
      : boxes_(boxes), octets_(boxes), setting_(std::move(octets)) {}
  void PutBack(int /*line*/) override {
    for (int i = 0; i < boxes_.Count(); ++i)
      octets_.Show(i, opened_.at(static_cast<std::size_t>(i)));
  }
  [[nodiscard]] std::optional<std::string> OpenedText(int /*line*/) const override {
    return Dotted(opened_);
  }
  void TakeFrom(MuxData& record, int /*line*/) override {
    for (int i = 0; i < boxes_.Count(); ++i) {
      octets_.Show(i, static_cast<Byte>(setting_.Access().Get(record, i)));
    }
  }

 protected:
  void Fill(MuxData& record, int line) override {
    opened_.clear();
    for (int i = 0; i < boxes_.Count(); ++i) {
      opened_.push_back(static_cast<Byte>(setting_.Access().Get(record, i)));
    }
    PutBack(line);
  }
  void Write(MuxData& record, int /*line*/) override {
    for (int i = 0; i < boxes_.Count(); ++i) {
      const Byte octet = octets_.Octet(i);
      if (octet != opened_.at(static_cast<std::size_t>(i))) setting_.Access().Set(record, i, octet);
    }
  }
  void Tell(MuxData& record, int /*line*/, ShownSetting& shown) const override {
    for (int i = 0; i < boxes_.Count(); ++i) {
      setting_.Access().AddNames(record, i, shown.settings);
    }
    shown.control = &boxes_(0);
    shown.caption = boxes_(0).SurroundingCaption();
    shown.is = Dotted(Present());
  }
  [[nodiscard]] bool LineDiffers(int /*line*/) const override { return Present() != opened_; }
  [[nodiscard]] EditedValue ValueOf(int /*line*/) const override { return {0, Dotted(Present())}; }
  void TellChanges(int /*line*/, std::vector<FieldChange>& changes) const override {
    for (int i = 0; i < boxes_.Count(); ++i) {
      const Byte was = opened_.at(static_cast<std::size_t>(i));
      if (octets_.Octet(i) == was) continue;
      changes.push_back({.control = &boxes_(i), .was = std::to_string(was)});
    }
  }
  [[nodiscard]] bool EditedBy(const Widget& control, int /*line*/) const override {
    return std::any_of(boxes_.begin(), boxes_.end(),
                       [&control](const TextBox& box) { return &box == &control; });
  }

 private:
  [[nodiscard]] std::vector<Byte> Present() const {
    std::vector<Byte> octets;
    for (int i = 0; i < boxes_.Count(); ++i) octets.push_back(octets_.Octet(i));
    return octets;
  }
  static std::string Dotted(const std::vector<Byte>& octets) {
    std::string text;
    for (const Byte octet : octets) text += (text.empty() ? "" : ".") + std::to_string(octet);
    return text;
  }

  ControlArray<TextBox>& boxes_;
  OctetBoxes octets_;
  SettingRef setting_;
  std::vector<Byte> opened_;
};

class TextsField final : public Field {
 public:
  TextsField(ControlArray<TextBox>& boxes, int lines, Label& notes, TextRef setting,
             const Context& context)
      : boxes_(boxes),
        series_(boxes, TextSeries::Kind::kLines),
        notes_(context.texts, notes),
        setting_(std::move(setting)) {
    for (int line = 0; line < lines; ++line) {
      texts_.emplace_back(boxes(line), context.platform, notes_);
    }
  }
  void PutBack(int line) override { At(line).PutBack(); }
  [[nodiscard]] std::optional<std::string> OpenedText(int line) const override {
    return At(line).Shown();
  }
  void TakeFrom(MuxData& record, int line) override {
    std::string text = setting_->Get(record, line);
    At(line).Type(Editable(text));
    taken_[line] = {boxes_(line).Text(), std::move(text)};
  }

 protected:
  void Fill(MuxData& record, int line) override {
    const std::string text = setting_->Get(record, line);
    At(line).Show(Editable(text));
    taken_.erase(line);
  }
  void Write(MuxData& record, int line) override {
    auto typed = At(line).Typed();
    if (!typed) return;
    const auto taken = taken_.find(line);
    const bool as_taken = taken != taken_.end() && taken->second.shown == boxes_(line).Text();
    setting_->Set(record, line, as_taken ? taken->second.stored : std::move(*typed));
  }
  void Tell(MuxData& record, int line, ShownSetting& shown) const override {
    setting_->AddNames(record, line, shown.settings);
    shown.control = &boxes_(line);
    shown.is = boxes_(line).Text();
  }
  [[nodiscard]] bool LineDiffers(int line) const override { return At(line).Typed().has_value(); }
  [[nodiscard]] EditedValue ValueOf(int line) const override {
    return {LineDiffers(line) ? 1 : 0, boxes_(line).Text()};
  }
  void TellChanges(int line, std::vector<FieldChange>& changes) const override {
    changes.push_back({.control = &boxes_(line), .was = At(line).Shown()});
  }
  [[nodiscard]] bool EditedBy(const Widget& control, int line) const override {
    return &control == &boxes_(line);
  }

 private:
  [[nodiscard]] DeviceText& At(int line) { return texts_.at(static_cast<std::size_t>(line)); }
  [[nodiscard]] const DeviceText& At(int line) const {
    return texts_.at(static_cast<std::size_t>(line));
  }

  ControlArray<TextBox>& boxes_;
  TextSeries series_;
  NoteLine notes_;
  /// What another record holds has blanks at its end, or bytes that no box shows.
  struct Taken {
    std::string shown;
    std::string stored;
  };
  TextRef setting_;
  std::deque<DeviceText> texts_;
  std::map<int, Taken> taken_;  ///< by line
};

}  // namespace

Field& FieldGroup::Check(CheckBox& box, SettingRef setting) {
  return Add(std::make_unique<CheckField<CheckBox>>(box, std::move(setting)));
}

Field& FieldGroup::Check(ControlArray<CheckBox>& boxes, SettingRef setting) {
  return Add(std::make_unique<CheckField<ControlArray<CheckBox>>>(boxes, std::move(setting)));
}

Field& FieldGroup::Options(ControlArray<OptionButton>& options, Choices choices, SettingRef setting,
                           std::string name) {
  return Add(std::make_unique<OptionsField>(options, std::move(choices), std::move(setting),
                                            std::move(name)));
}

Field& FieldGroup::List(ChoiceWidget& list, Choices choices, SettingRef setting) {
  return Add(std::make_unique<ListField>(list, std::move(choices), std::move(setting)));
}

Field& FieldGroup::Slide(Slider& slider, Label& shown, SettingRef setting) {
  return Add(std::make_unique<SliderField>(slider, shown, std::move(setting)));
}

Field& FieldGroup::Pick(TimePicker& picker, SettingRef hour, SettingRef minute, SettingRef second) {
  return Add(std::make_unique<TimeField>(
      picker, ThreeParts(std::move(hour), std::move(minute), std::move(second))));
}

Field& FieldGroup::Pick(DatePicker& picker, SettingRef day, SettingRef month, SettingRef year) {
  return Add(std::make_unique<DateField>(
      picker, ThreeParts(std::move(year), std::move(month), std::move(day))));
}

Field& FieldGroup::Port(TextBox& box, int least, int most, int otherwise, SettingRef setting) {
  return Add(std::make_unique<PortField>(box, least, most, otherwise, std::move(setting)));
}

Field& FieldGroup::Octets(ControlArray<TextBox>& boxes, SettingRef octets) {
  return Add(std::make_unique<OctetsField>(boxes, std::move(octets)));
}

Field& FieldGroup::Texts(ControlArray<TextBox>& boxes, Label& notes, TextRef setting) {
  return Add(std::make_unique<TextsField>(boxes, lines_, notes, std::move(setting), context_));
}

Field& FieldGroup::Column(GridEditing& editing, Grid& grid, int column, SettingRef setting) {
  return Add(std::make_unique<ColumnField>(editing, grid, column, std::move(setting)));
}

}  // namespace quorvel
