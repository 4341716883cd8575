#pragma once

#include "quorvel/widgets.h"

namespace quorvel {

template <class User>
Answer UseGrid(Grid& grid, User& user) {
  switch (user.Below(6)) {
    case 1: return grid.Release(user.Place(grid.Rows()), user.Place(grid.Rows()));
    case 3: return grid.Paste(user.Text(grid));
    case 4: return grid.Mark(user.Place(grid.Rows()));
    case 5: return grid.Empty();
    default: return grid.Press(user.Place(grid.Rows()), user.Place(grid.Columns()));
  }
}

/// Does to a control what a person can do. The user says what: `Below(n)` is one of n ways,
/// `Place(n)` one of n places (or one beside them), and there are his `Year()` and `Text(control)`.
template <class User>
Answer Use(Widget& widget, User& user) {
  switch (widget.Kind()) {
    case WidgetKind::kButton: return static_cast<Button&>(widget).Click();
    case WidgetKind::kCheckBox: return static_cast<CheckBox&>(widget).Click();
    case WidgetKind::kOptionButton: return static_cast<OptionButton&>(widget).Click();
    case WidgetKind::kTextBox: return static_cast<TextBox&>(widget).Type(user.Text(widget));
    case WidgetKind::kListBox:
    case WidgetKind::kComboBox: {
      auto& list = static_cast<ChoiceWidget&>(widget);
      const int item = user.Place(list.Count());
      return user.Below(2) == 0 ? list.Choose(item) : list.MoveOnTo(item);
    }
    case WidgetKind::kSlider: {
      auto& slider = static_cast<Slider&>(widget);
      return slider.Slide(slider.Minimum() + user.Place(slider.Maximum() - slider.Minimum() + 1));
    }
    case WidgetKind::kTimePicker: {
      const ClockTime time{user.Place(24), user.Place(60), user.Place(60)};
      return static_cast<TimePicker&>(widget).Pick(time);
    }
    case WidgetKind::kDatePicker: {
      const CalendarDate date{user.Year(), 1 + user.Place(12), 1 + user.Place(31)};
      return static_cast<DatePicker&>(widget).Pick(date);
    }
    case WidgetKind::kGrid: return UseGrid(static_cast<Grid&>(widget), user);
    case WidgetKind::kTabStrip: {
      auto& tabs = static_cast<TabStrip&>(widget);
      return tabs.Choose(user.Place(tabs.Count()));
    }
    default: return widget.Focus();
  }
}

}  // namespace quorvel
