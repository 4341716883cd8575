#include <algorithm>

#include "apps/muxhost/script/commands.h"
#include "apps/muxhost/script/parser.h"

namespace quorvel::muxhost::commands {

namespace {

constexpr int kMostPlaces = 1000;
constexpr int kLongestWait = 3'600'000;

/// The control that a line names, as CONTROL or WINDOW.CONTROL. Without a window it is the one in
/// the frontmost window that has a control of that name: what the user means by it.
Widget& FindControl(const Desk& desk, const std::string& target) {
  const auto dot = target.find('.');
  if (dot != std::string::npos) {
    return desk.platform.Window(target.substr(0, dot)).Find<Widget>(target.substr(dot + 1));
  }
  const auto& windows = desk.platform.Windows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (Widget* const widget = (*window)->FindWidget(target)) return *widget;
  }
  throw ScriptError("no open window has a control " + target);
}

template <class Control>
Control& FindControlOf(const Desk& desk, const std::string& target, const char* verb) {
  auto* const control = dynamic_cast<Control*>(&FindControl(desk, target));
  if (control == nullptr) throw ScriptError(target + " is nothing to " + verb);
  return *control;
}

void Require(Answer answer, const std::string& target) {
  if (answer != Answer::kDone) throw ScriptError(target + " " + Describe(answer));
}

int Place(const char* what, const std::string& text) {
  return ToNumber(what, text, 0, kMostPlaces);
}

template <class... Kinds>
bool ClickOneOf(Widget& widget, Answer& answer) {
  const auto click = [&answer](auto* control) {
    if (control != nullptr) answer = control->Click();
    return control != nullptr;
  };
  return (click(dynamic_cast<Kinds*>(&widget)) || ...);
}

}  // namespace

void Menu(Desk& desk, Words /*words*/) {
  RequireUnlocked(desk);
  desk.session.OpenMenu();
}

void Choose(Desk& desk, Words words) {
  const std::string& name = words[1];
  const MenuItem item = desk.platform.Menu().Item(name);
  if (item.separator) throw ScriptError(name + " is a separator");
  if (!item.children.empty()) throw ScriptError(name + " opens a submenu");
  Require(desk.platform.ChooseMenu(name), name);
}

void Dismiss(Desk& desk, Words /*words*/) {
  if (!desk.platform.MenuIsUp()) throw ScriptError("no menu is up");
  desk.platform.DismissMenu();
}

void Click(Desk& desk, Words words) {
  Answer answer = Answer::kDone;
  if (!ClickOneOf<Button, CheckBox, OptionButton>(FindControl(desk, words[1]), answer)) {
    throw ScriptError(words[1] + " is nothing to click");
  }
  Require(answer, words[1]);
}

void Type(Desk& desk, Words words) {
  Require(FindControlOf<TextBox>(desk, words[1], "type into").Type(words[2]), words[1]);
}

void Select(Desk& desk, Words words) {
  const int index = Place("index", words[2]);
  Require(FindControlOf<ChoiceWidget>(desk, words[1], "select in").Choose(index), words[1]);
}

void Slide(Desk& desk, Words words) {
  const int value = ToNumber("value", words[2]);
  Require(FindControlOf<Slider>(desk, words[1], "slide").Slide(value), words[1]);
}

void Pick(Desk& desk, Words words) {
  Widget& widget = FindControl(desk, words[1]);
  if (auto* const dates = dynamic_cast<DatePicker*>(&widget)) {
    const auto date = ReadDate(words[2]);
    if (!date) throw ScriptError("a date is told as 2024-02-29, not " + words[2]);
    return Require(dates->Pick(*date), words[1]);
  }
  auto& times = FindControlOf<TimePicker>(desk, words[1], "pick in");
  const auto time = ReadTime(words[2]);
  if (!time) throw ScriptError("a time is told as 07:45 or 07:45:30, not " + words[2]);
  Require(times.Pick(*time), words[1]);
}

void Press(Desk& desk, Words words) {
  const int row = Place("row", words[2]);
  const int column = Place("column", words[3]);
  Require(FindControlOf<Grid>(desk, words[1], "press").Press(row, column), words[1]);
}

void Release(Desk& desk, Words words) {
  const int first = Place("first row", words[2]);
  const int last = Place("last row", words[3]);
  Require(FindControlOf<Grid>(desk, words[1], "release").Release(first, last), words[1]);
}

void Mark(Desk& desk, Words words) {
  const int row = Place("row", words[2]);
  Require(FindControlOf<Grid>(desk, words[1], "mark").Mark(row), words[1]);
}

void Empty(Desk& desk, Words words) {
  const Answer answer = FindControlOf<Grid>(desk, words[1], "empty").Empty();
  if (answer == Answer::kNotAChoice) {
    throw ScriptError("the cells of this column of " + words[1] + " cannot be empty");
  }
  Require(answer, words[1]);
}

void Paste(Desk& desk, Words words) {
  auto& grid = FindControlOf<Grid>(desk, words[1], "paste into");
  const Answer answer = grid.Paste(words[2]);
  if (answer == Answer::kNotAChoice || answer == Answer::kNoSuchPlace) {
    throw ScriptError(grid.Owner().PasteRefusal(answer));
  }
  Require(answer, words[1]);
}

void Tab(Desk& desk, Words words) {
  const int page = Place("page", words[2]);
  Require(FindControlOf<TabStrip>(desk, words[1], "turn over").Choose(page), words[1]);
}

void Close(Desk& desk, Words words) {
  const auto& windows = desk.platform.Windows();
  if (windows.empty()) throw ScriptError("no window is open");
  Dialog& dialog = words.size() > 1 ? desk.platform.Window(words[1]) : *windows.back();
  const std::string name = dialog.Name();
  Require(dialog.CloseWindow(), name);
}

void AnswerNext(Desk& desk, Words words) {
  if (words[1] == "file" && words.size() == 3) {
    const bool cancel = words[2] == "cancel";
    desk.platform.AnswerNextFile(cancel ? std::nullopt : std::optional(words[2]));
    return;
  }
  const bool ok = words[1] == "ok";
  if ((!ok && words[1] != "cancel") || words.size() > 2) {
    throw ScriptError("answer takes ok, cancel or a file, not " + words.back());
  }
  desk.platform.AnswerNext(ok);
}

void Wait(Desk& desk, Words words) {
  desk.platform.Advance(ToNumber("time", words[1], 0, kLongestWait));
}

}  // namespace quorvel::muxhost::commands
