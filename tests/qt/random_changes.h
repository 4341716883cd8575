#pragma once

#include <random>
#include <string>
#include <vector>

#include "quorvel/widgets.h"

namespace quorvel {

/// What a program does to a control, at random.
class RandomChanges {
 public:
  explicit RandomChanges(unsigned seed) : random_(seed) {}

  [[nodiscard]] int Any(std::size_t count) { return static_cast<int>(random_() % count); }
  [[nodiscard]] bool OneIn(std::size_t count) { return Any(count) == 0; }
  template <class List>
  [[nodiscard]] auto& AnyOf(List& list) {
    return list[static_cast<std::size_t>(Any(std::size(list)))];
  }

  void Change(Widget& widget) {
    switch (Any(8)) {
      case 0: return widget.SetVisible(!OneIn(4));
      case 1: return widget.SetEnabled(!OneIn(4));
      case 2: return widget.SetCaption(Text());
      default: return ChangeValue(widget);
    }
  }

 private:
  [[nodiscard]] std::string Text() {
    const std::string texts[] = {"",
                                 "1",
                                 "On",
                                 "Camera & lamp",
                                 std::string("A\0B", 3),
                                 "Stra\xC3\x9F",
                                 "as long as a text can be, and longer"};
    return AnyOf(texts);
  }

  void ChangeValue(Widget& widget) {
    const int number = Any(40) - 8;
    if (auto* it = As<CheckBox>(widget)) it->SetChecked(OneIn(2));
    if (auto* it = As<OptionButton>(widget)) OneIn(2) ? it->Select() : it->Deselect();
    if (auto* it = As<TextBox>(widget)) OneIn(4) ? it->SetMaxLength(Any(9)) : it->SetText(Text());
    if (auto* it = As<ChoiceWidget>(widget)) {
      if (OneIn(3)) it->SetItems(std::vector<std::string>(random_() % 30, Text()));
      it->Select(number);
    }
    if (auto* it = As<Slider>(widget)) OneIn(3) ? it->SetRange(number, 20) : it->SetValue(number);
    if (auto* it = As<TimePicker>(widget)) OneIn(3) ? it->Clear() : it->SetTime({number, 5, 9});
    if (auto* it = As<DatePicker>(widget)) OneIn(3) ? it->Clear() : it->SetDate({2024, number, 29});
    if (auto* it = As<Grid>(widget)) ChangeGrid(*it, number);
    if (auto* it = As<TabStrip>(widget)) {
      it->SetPageVisible(Any(it->Pages().size()), !OneIn(4));
      it->SetPageCaption(Any(it->Pages().size()), Text());
    }
    if (auto* it = As<ProgressBar>(widget)) it->SetValue(number);
    if (auto* it = As<StatusBar>(widget)) it->SetPanel(1 + Any(3), Text());
  }

  void ChangeGrid(Grid& grid, int number) {
    if (OneIn(30)) grid.SetSize(Any(30), grid.Columns());  // its editing knows the columns
    if (OneIn(8) && grid.Columns() < 15) grid.AddColumns(1);
    const auto rows = static_cast<std::size_t>(grid.Rows());
    const auto columns = static_cast<std::size_t>(grid.Columns());
    grid.SetCell(Any(rows), Any(columns), Text(), number);
    if (OneIn(4)) grid.SetCurrent(number, number);
  }

  template <class Kind>
  static Kind* As(Widget& widget) {
    return dynamic_cast<Kind*>(&widget);
  }

  std::mt19937 random_;
};

/// The handlers of a control that its user verbs call.
inline std::vector<Handler*> HandlersOf(Widget& widget) {
  std::vector<Handler*> handlers;
  const auto add = [&](auto* it, auto... members) {
    if (it != nullptr) (handlers.push_back(&(it->*members)), ...);
  };
  add(dynamic_cast<Button*>(&widget), &Button::on_click);
  add(dynamic_cast<CheckBox*>(&widget), &CheckBox::on_click);
  add(dynamic_cast<OptionButton*>(&widget), &OptionButton::on_click);
  add(dynamic_cast<ChoiceWidget*>(&widget), &ChoiceWidget::on_click);
  add(dynamic_cast<TextBox*>(&widget), &TextBox::on_change);
  add(dynamic_cast<Slider*>(&widget), &Slider::on_change);
  add(dynamic_cast<TimePicker*>(&widget), &TimePicker::on_change);
  add(dynamic_cast<DatePicker*>(&widget), &DatePicker::on_change);
  add(dynamic_cast<TabStrip*>(&widget), &TabStrip::on_change);
  add(dynamic_cast<Grid*>(&widget), &Grid::on_press, &Grid::on_release);
  return handlers;
}

}  // namespace quorvel
