#include "fuzz/random_user.h"

namespace quorvel::fuzz {

namespace {

/// From one before the first place to one behind the last.
int Place(int count, ByteSource& in) { return in.Below(count + 2) - 1; }

std::string Text(ByteSource& in) {
  const auto bytes = in.Take(static_cast<std::size_t>(in.Below(24)));
  return {bytes.begin(), bytes.end()};
}

Answer UseGrid(Grid& grid, ByteSource& in) {
  switch (in.Next() % 5) {
    case 4: return grid.Mark(Place(grid.Rows(), in));
    case 1: return grid.Release(Place(grid.Rows(), in), Place(grid.Rows(), in));
    case 3: return grid.Paste(Text(in));
    default: return grid.Press(Place(grid.Rows(), in), Place(grid.Columns(), in));
  }
}

void CollectNames(const MenuItem& item, std::vector<std::string>& names) {
  for (const MenuItem& child : item.children) {
    names.push_back(child.name);
    CollectNames(child, names);
  }
}

}  // namespace

Answer Use(Widget& widget, ByteSource& in) {
  switch (widget.Kind()) {
    case WidgetKind::kButton: return static_cast<Button&>(widget).Click();
    case WidgetKind::kCheckBox: return static_cast<CheckBox&>(widget).Click();
    case WidgetKind::kOptionButton: return static_cast<OptionButton&>(widget).Click();
    case WidgetKind::kTextBox: return static_cast<TextBox&>(widget).Type(Text(in));
    case WidgetKind::kListBox:
    case WidgetKind::kComboBox: {
      auto& list = static_cast<ChoiceWidget&>(widget);
      return list.Choose(Place(list.Count(), in));
    }
    case WidgetKind::kSlider: {
      auto& slider = static_cast<Slider&>(widget);
      return slider.Slide(slider.Minimum() + Place(slider.Maximum() - slider.Minimum() + 1, in));
    }
    case WidgetKind::kTimePicker: {
      const ClockTime time{Place(24, in), Place(60, in), Place(60, in)};
      return static_cast<TimePicker&>(widget).Pick(time);
    }
    case WidgetKind::kDatePicker: {
      const CalendarDate date{2000 + Place(100, in), Place(13, in), Place(32, in)};
      return static_cast<DatePicker&>(widget).Pick(date);
    }
    case WidgetKind::kGrid: return UseGrid(static_cast<Grid&>(widget), in);
    case WidgetKind::kTabStrip: {
      auto& tabs = static_cast<TabStrip&>(widget);
      return tabs.Choose(Place(tabs.Count(), in));
    }
    default: return widget.Focus();
  }
}

void UseOneOf(Dialog& dialog, std::initializer_list<const char*> names, ByteSource& in) {
  if (in.Empty()) return;
  const char* const name = names.begin()[in.Below(static_cast<int>(names.size()))];
  if (Widget* const widget = dialog.FindWidget(name)) Use(*widget, in);
}

void UseAny(Dialog& dialog, ByteSource& in) {
  const auto& widgets = dialog.Widgets();
  const auto choice = static_cast<std::size_t>(in.Below(static_cast<int>(widgets.size()) + 1));
  if (choice < widgets.size()) {
    Use(*widgets[choice], in);
  } else {
    dialog.CloseWindow();
  }
}

void UseMenu(Desk& desk, ByteSource& in) {
  if (!desk.MenuIsUp()) return;
  std::vector<std::string> names;
  CollectNames(desk.Menu().Root(), names);
  const auto choice = static_cast<std::size_t>(in.Below(static_cast<int>(names.size()) + 1));
  if (choice < names.size()) {
    desk.ChooseMenu(names[choice]);
  } else {
    desk.DismissMenu();
  }
}

}  // namespace quorvel::fuzz
