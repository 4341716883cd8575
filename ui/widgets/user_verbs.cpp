#include "quorvel/user_verbs.h"

#include <algorithm>

#include "quorvel/widgets.h"

namespace quorvel {

namespace {

VerbAnswer Told(std::string_view name, Answer answer) {
  if (answer == Answer::kDone) return {};
  return {answer, std::string(name) + " " + Describe(answer)};
}

VerbAnswer OtherKind(std::string_view name, const char* verb) {
  return {Answer::kOtherKind, std::string(name) + " is nothing to " + verb};
}

/// Has a control of one of the kinds do something; `verb` says what in words.
template <class... Kinds, class Act>
VerbAnswer With(const NamedUser& user, std::string_view name, const char* verb, Act act) {
  Widget* const widget = user.FindControl(name);
  if (widget == nullptr) return {Answer::kNoSuchControl, user.NotFound(name)};
  VerbAnswer answer = OtherKind(name, verb);
  const auto try_one = [&](auto* control) {
    if (control != nullptr) answer = Told(name, act(*control));
    return control != nullptr;
  };
  static_cast<void>((try_one(dynamic_cast<Kinds*>(widget)) || ...));
  return answer;
}

}  // namespace

Dialog* NamedUser::FindWindow(std::string_view name) const {
  const auto found = std::find_if(windows_.rbegin(), windows_.rend(), [name](const Dialog* it) {
    return name.empty() || it->Name() == name;
  });
  return found == windows_.rend() ? nullptr : *found;
}

Widget* NamedUser::FindControl(std::string_view name) const {
  const auto dot = name.find('.');
  if (dot != std::string_view::npos) {
    const Dialog* const window = FindWindow(name.substr(0, dot));
    return window == nullptr ? nullptr : window->FindWidget(name.substr(dot + 1));
  }
  for (auto window = windows_.rbegin(); window != windows_.rend(); ++window) {
    if (Widget* const widget = (*window)->FindWidget(name)) return widget;
  }
  return nullptr;
}

std::string NamedUser::NoWindow(std::string_view name) {
  return name.empty() ? "no window is open" : "no window " + std::string(name) + " is open";
}

std::string NamedUser::NotFound(std::string_view name) const {
  const auto dot = name.find('.');
  if (dot == std::string_view::npos) return "no open window has a control " + std::string(name);
  const std::string window(name.substr(0, dot));
  if (FindWindow(window) == nullptr) return NoWindow(window);
  return window + " has no such control: " + std::string(name.substr(dot + 1));
}

VerbAnswer NamedUser::Click(std::string_view control) const {
  return With<Button, CheckBox, OptionButton>(*this, control, "click",
                                              [](auto& it) { return it.Click(); });
}

VerbAnswer NamedUser::Type(std::string_view box, std::string_view text) const {
  return With<TextBox>(*this, box, "type into", [text](TextBox& it) { return it.Type(text); });
}

VerbAnswer NamedUser::Select(std::string_view list, int item) const {
  return With<ChoiceWidget>(*this, list, "select in",
                            [item](ChoiceWidget& it) { return it.Choose(item); });
}

VerbAnswer NamedUser::Slide(std::string_view slider, int value) const {
  return With<Slider>(*this, slider, "slide", [value](Slider& it) { return it.Slide(value); });
}

VerbAnswer NamedUser::Pick(std::string_view picker, std::string_view text) const {
  Widget* const widget = FindControl(picker);
  const bool dates = dynamic_cast<DatePicker*>(widget) != nullptr;
  const auto date = ReadDate(text);
  const auto time = ReadTime(text);
  const bool picks = dates || dynamic_cast<TimePicker*>(widget) != nullptr;
  if (picks && !(dates ? date.has_value() : time.has_value())) {
    const char* const told =
        dates ? "a date is told as 2024-02-29, not " : "a time is told as 07:45 or 07:45:30, not ";
    return {Answer::kNotAChoice, told + std::string(text)};
  }
  if (dates) {
    return With<DatePicker>(*this, picker, "pick in", [&](auto& it) { return it.Pick(*date); });
  }
  return With<TimePicker>(*this, picker, "pick in", [&](auto& it) { return it.Pick(*time); });
}

VerbAnswer NamedUser::TurnPage(std::string_view tabs, int page) const {
  return With<TabStrip>(*this, tabs, "turn over", [page](TabStrip& it) { return it.Choose(page); });
}

VerbAnswer NamedUser::Press(std::string_view grid, int row, int column) const {
  return With<Grid>(*this, grid, "press", [=](Grid& it) { return it.Press(row, column); });
}

VerbAnswer NamedUser::Release(std::string_view grid, int first, int last) const {
  return With<Grid>(*this, grid, "release", [=](Grid& it) { return it.Release(first, last); });
}

VerbAnswer NamedUser::Drag(std::string_view grid, int column, int first, int last) const {
  VerbAnswer pressed = Press(grid, first, column);
  return pressed.answer == Answer::kDone ? Release(grid, first, last) : pressed;
}

VerbAnswer NamedUser::Mark(std::string_view grid, int row) const {
  return With<Grid>(*this, grid, "mark", [row](Grid& it) { return it.Mark(row); });
}

VerbAnswer NamedUser::Empty(std::string_view grid) const {
  VerbAnswer done = With<Grid>(*this, grid, "empty", [](Grid& it) { return it.Empty(); });
  if (done.answer == Answer::kNotAChoice) {
    done.cause = "the cells of this column of " + std::string(grid) + " cannot be empty";
  }
  return done;
}

VerbAnswer NamedUser::Paste(std::string_view grid, std::string_view lines) const {
  std::string refusal;
  VerbAnswer done = With<Grid>(*this, grid, "paste into", [&](Grid& it) {
    const auto keep = it.Owner().shared_from_this();
    const Answer answer = it.Paste(lines);
    if (answer == Answer::kNotAChoice || answer == Answer::kNoSuchPlace) {
      refusal = keep->PasteRefusal(answer);
    }
    return answer;
  });
  if (!refusal.empty()) done.cause = refusal;
  return done;
}

VerbAnswer NamedUser::CloseWindow(std::string_view name) const {
  Dialog* const dialog = FindWindow(name);
  if (dialog == nullptr) return {Answer::kNoSuchControl, NoWindow(name)};
  const std::string closed = dialog->Name();
  return Told(closed, dialog->CloseWindow());
}

VerbAnswer NamedUser::Undo(std::string_view window) const {
  Dialog* const dialog = FindWindow(window);
  if (dialog == nullptr) return {Answer::kNoSuchControl, NoWindow(window)};
  const Answer answer = dialog->Undo();
  if (answer != Answer::kNoSuchPlace) return Told(dialog->Name(), answer);
  return {answer, "nothing can be taken back in " + dialog->Name()};
}

VerbAnswer NamedUser::Redo(std::string_view window) const {
  Dialog* const dialog = FindWindow(window);
  if (dialog == nullptr) return {Answer::kNoSuchControl, NoWindow(window)};
  const Answer answer = dialog->Redo();
  if (answer != Answer::kNoSuchPlace) return Told(dialog->Name(), answer);
  return {answer, "nothing can be done again in " + dialog->Name()};
}

VerbAnswer NamedUser::PutBack(std::string_view control, PutBackTo to) const {
  Widget* const widget = FindControl(control);
  if (widget == nullptr) return {Answer::kNoSuchControl, NotFound(control)};
  const Answer answer = widget->Owner().PutBack(*widget, to);
  return answer == Answer::kOtherKind ? OtherKind(control, "put back") : Told(control, answer);
}

VerbAnswer NamedUser::PutBackCell(std::string_view grid, int row, int column, PutBackTo to) const {
  VerbAnswer pressed = Press(grid, row, column);
  return pressed.answer == Answer::kDone ? PutBack(grid, to) : pressed;
}

std::vector<std::string> ItemsOf(const Widget& widget) {
  if (const auto* list = dynamic_cast<const ChoiceWidget*>(&widget)) return list->Items();
  std::vector<std::string> items;
  if (const auto* tabs = dynamic_cast<const TabStrip*>(&widget)) {
    for (const Page& page : tabs->Pages()) items.push_back(page.caption);
  }
  if (const auto* bar = dynamic_cast<const StatusBar*>(&widget)) {
    for (int panel = 1; panel <= bar->Panels(); ++panel) items.push_back(bar->Panel(panel));
  }
  return items;
}

}  // namespace quorvel
