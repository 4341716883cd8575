#include <gtest/gtest.h>

#include <set>

#include "quorvel/headless_platform.h"
#include "tests/ui/every_kind.h"

namespace quorvel {
namespace {

class WidgetVerbs : public ::testing::Test {
 protected:
  WidgetVerbs() { d.Show(); }
  HeadlessPlatform platform;
  std::shared_ptr<EveryKind> dialog = std::make_shared<EveryKind>(platform);
  EveryKind& d = *dialog;
};

struct Recorder : WidgetView {
  void Refresh(Aspect what) override { told.insert(what); }
  std::set<Aspect> told;
};

constexpr ClockTime kOne{1, 2, 3}, kTwo{2, 3, 4}, kAfternoon{13, 5, 9}, kNoTime{24, 0, 0};
constexpr CalendarDate kNewYear{2024, 1, 1}, kLeapDay{2024, 2, 29}, kNoDay{2023, 2, 29};
constexpr Aspect kState = Aspect::kState;
constexpr Aspect kContent = Aspect::kContent;
constexpr Aspect kSelection = Aspect::kSelection;

TEST_F(WidgetVerbs, AreToldToTheView) {
  const std::vector<Page> only(1, Page{"Only", {}});
  const struct {
    Widget& widget;
    Handler verb;
    std::set<Aspect> told;
  } cases[] = {
      {d.button, [&] { d.button.SetCaption("OK"); }, {kState}},
      {d.button, [&] { d.button.SetSpokenName("Done"); }, {kState}},
      {d.button, [&] { d.button.SetKeepsPlace(true); }, {kState}},
      {d.button, [&] { d.button.SetEnabled(false); }, {kState}},
      {d.button, [&] { d.button.SetVisible(false); }, {kState}},
      {d.text, [&] { d.text.SetLabel(d.label); }, {kState}},
      {d.text, [&] { d.label.SetCaption("Title"); }, {kState}},
      {d.grid, [&] { d.tabs.SetCaption("Around"); }, {kState}},
      {d.text, [&] { d.text.SetMaxLength(9); }, {kState}},
      {d.text, [&] { d.text.SetShownLength(20); }, {kState}},
      {d.text, [&] { d.text.SetTakenWhenLeft(true); }, {kState}},
      {d.text, [&] { d.text.SetText("a"); }, {kSelection}},
      {d.text, [&] { d.text.RewriteText("b"); }, {kSelection}},
      {d.text, [&] { d.text.Type("c"); }, {kSelection}},
      {d.text, [&] { d.text.Focus(); }, {kSelection}},
      {d.check, [&] { d.check.SetChecked(true); }, {kSelection}},
      {d.check, [&] { d.check.Click(); }, {kSelection}},
      {d.option(0), [&] { d.option(1).Select(); }, {kSelection}},
      {d.option(0), [&] { d.option(0).Click(); }, {kSelection}},
      {d.option(0), [&] { d.option(0).Deselect(); }, {kSelection}},
      {d.list, [&] { d.list.Select(0); }, {kSelection}},
      {d.list, [&] { d.list.Choose(1); }, {kSelection}},
      {d.list, [&] { d.list.SetRows(3); }, {kState}},
      {d.combo, [&] { d.combo.SetItems({"a"}); }, {kContent}},
      {d.slider, [&] { d.slider.SetRange(0, 5); }, {kState}},
      {d.slider, [&] { d.slider.SetSteps(1, 2); }, {kState}},
      {d.slider, [&] { d.slider.SetValue(4); }, {kSelection}},
      {d.slider, [&] { d.slider.Slide(3); }, {kSelection}},
      {d.time, [&] { d.time.SetTime(kOne); }, {kSelection}},
      {d.time, [&] { d.time.SetFormat(ClockFormat::kTwelveHours); }, {kState, kSelection}},
      {d.time, [&] { d.time.Pick(kTwo); }, {kSelection}},
      {d.time, [&] { d.time.Clear(); }, {kSelection}},
      {d.date, [&] { d.date.SetDate(kNewYear); }, {kSelection}},
      {d.date, [&] { d.date.Pick(kLeapDay); }, {kSelection}},
      {d.date, [&] { d.date.Clear(); }, {kSelection}},
      {d.grid, [&] { d.grid.SetHeaderRows(2); }, {kContent}},
      {d.grid, [&] { d.grid.SetMergedHeader(true); }, {kContent}},
      {d.grid, [&] { d.grid.SetSize(6, 2); }, {kContent, kSelection}},
      {d.grid, [&] { d.grid.AddColumns(1); }, {kContent}},
      {d.grid, [&] { d.grid.SetLeastWidth(1, 9); }, {kContent}},
      {d.grid, [&] { d.grid.SetAlign(Grid::Align::kCentre); }, {kContent}},
      {d.grid, [&] { d.grid.SetCell(3, 1, "x"); }, {kContent}},
      {d.grid, [&] { d.grid.SetCurrent(4, 1); }, {kSelection}},
      {d.grid, [&] { d.grid.Press(3, 2); }, {kSelection}},
      {d.grid, [&] { d.grid.Release(3, 4); }, {kSelection}},
      {d.grid, [&] { d.grid.SetRange(Grid::Range::kOneRow); }, {kState}},
      {d.tabs, [&] { d.tabs.SetPageCaption(1, "Third"); }, {kState}},
      {d.tabs, [&] { d.tabs.Choose(1); }, {kSelection}},
      {d.tabs, [&] { d.tabs.SetCurrent(0); }, {kSelection}},
      {d.tabs, [&] { d.tabs.SetPageVisible(0, false); }, {kState, kSelection}},
      {d.tabs, [&] { d.tabs.SetPages(only); }, {kContent}},
      {d.progress, [&] { d.progress.SetMaximum(9); }, {kState}},
      {d.progress, [&] { d.progress.SetValue(5); }, {kSelection}},
      {d.status, [&] { d.status.SetPanel(2, "x"); }, {kSelection}},
  };
  Recorder others;  // a caption is told to those that are called by it where it is drawn itself
  d.label.AttachView(&others);
  d.tabs.AttachView(&others);
  int number = 0;
  for (const auto& it : cases) {
    Recorder view;
    it.widget.AttachView(&view);
    it.verb();
    it.widget.AttachView(nullptr);
    EXPECT_EQ(view.told, it.told) << "case " << number << ", " << it.widget.Name();
    ++number;
  }

  Recorder window;
  d.AttachView(&window);
  d.SetCaption("Window");
  EXPECT_EQ(window.told, std::set{kState});
  d.SetLayout(Column(d.button));
  EXPECT_EQ(window.told, (std::set{kState, kContent}));
  d.AttachView(nullptr);
  d.label.AttachView(nullptr);
}

/// A program verb, which cannot be refused.
template <class Verb>
std::function<Answer()> Program(Verb verb) {
  return [verb] {
    verb();
    return Answer::kDone;
  };
}

TEST_F(WidgetVerbs, KeepToTheRangeOfTheirWidget) {
  d.grid.SetSize(4, 3);
  d.list.SetItems({"a", "b", "b"});
  d.text.SetMaxLength(3);
  d.slider.SetRange(2, 5);
  constexpr const char* kPages[] = {"*0 \"Titles & texts\", 1 \"Spare page\", 2 \"Last\"",
                                    "0 \"Titles & texts\", *1 \"Spare page\", 2 \"Last\""};
  constexpr Answer kDone = Answer::kDone, kNoSuchPlace = Answer::kNoSuchPlace;
  constexpr Answer kNotAChoice = Answer::kNotAChoice;
  const auto at = [this](int row, int column) {
    return [this, row, column] { return d.grid.Press(row, column); };
  };
  const auto release = [this](int first, int last) {
    return [this, first, last] { return d.grid.Release(first, last); };
  };
  const struct {
    Widget& widget;
    std::function<Answer()> verb;
    Answer answer;
    const char* value;  ///< of the grid: its beginning
  } cases[] = {
      {d.list, [&] { return d.list.Choose(2); }, kDone, "2 \"b\" of 3"},
      {d.list, [&] { return d.list.Choose(3); }, kNoSuchPlace, "2 \"b\" of 3"},
      {d.list, [&] { return d.list.Choose(-1); }, kNoSuchPlace, "2 \"b\" of 3"},
      {d.list, [&] { return d.list.Choose(0); }, kDone, "0 \"a\" of 3"},
      {d.list, Program([&] { d.list.Select(d.list.IndexOf("b")); }), kDone, "1 \"b\" of 3"},
      {d.list, Program([&] { d.list.Select(3); }), kDone, "none of 3"},
      {d.list, Program([&] { d.list.Select(0); }), kDone, "0 \"a\" of 3"},
      {d.list, Program([&] { d.list.Select(-1); }), kDone, "none of 3"},
      {d.list, Program([&] { d.list.Select(d.list.IndexOf("c")); }), kDone, "none of 3"},
      {d.text, [&] { return d.text.Type("abc"); }, kDone, "abc"},
      {d.text, [&] { return d.text.Type("äbcd"); }, kDone, "äbc"},
      {d.text, Program([&] { d.text.SetText("abcd"); }), kDone, "abcd"},
      {d.check, [&] { return d.check.Click(); }, kDone, "on"},
      {d.check, [&] { return d.check.Click(); }, kDone, "off"},
      {d.slider, [&] { return d.slider.Slide(1); }, kNoSuchPlace, "0 of 2..5"},
      {d.slider, [&] { return d.slider.Slide(2); }, kDone, "2 of 2..5"},
      {d.slider, [&] { return d.slider.Slide(5); }, kDone, "5 of 2..5"},
      {d.slider, [&] { return d.slider.Slide(6); }, kNoSuchPlace, "5 of 2..5"},
      {d.slider, Program([&] { d.slider.SetRange(7, 6); }), kDone, "5 of 7..7"},
      {d.slider, Program([&] { d.slider.SetRange(0, 100), d.slider.SetValue(200); }), kDone,
       "200 of 0..100"},
      {d.slider, [&] { return d.slider.Slide(101); }, kNoSuchPlace, "200 of 0..100"},
      {d.time, Program([&] { d.time.SetTime(kNoTime); }), kDone, ""},
      {d.time, [&] { return d.time.Pick(kNoTime); }, kNotAChoice, ""},
      {d.time, [&] { return d.time.Pick(kAfternoon); }, kDone, "01:05:09 PM"},
      {d.time, Program([&] { d.time.SetFormat(ClockFormat::kHoursMinutes); }), kDone, "13:05"},
      {d.date, [&] { return d.date.Pick(kNoDay); }, kNotAChoice, "2024-02-29"},
      {d.date, [&] { return d.date.Pick(kNewYear); }, kDone, "2024-01-01"},
      {d.progress, Program([&] { d.progress.SetValue(101); }), kDone, "100 of 100"},
      {d.progress, Program([&] { d.progress.SetMaximum(9); }), kDone, "9 of 9"},
      {d.progress, Program([&] { d.progress.SetValue(-1); }), kDone, "0 of 9"},
      {d.progress, Program([&] { d.progress.SetMaximum(-1); }), kDone, "0 of 0"},
      {d.status, Program([&] { d.status.SetPanel(1, "a"); }), kDone, "\"a\" | \"\""},
      {d.status, Program([&] { d.status.SetPanel(2, "b"); }), kDone, "\"a\" | \"b\""},
      {d.grid, at(1, 0), kDone, "4 x 3, at 1,0"},
      {d.grid, at(3, 2), kDone, "4 x 3, at 3,2"},
      {d.grid, at(0, 1), kNoSuchPlace, "4 x 3, at 3,2"},
      {d.grid, at(4, 1), kNoSuchPlace, "4 x 3, at 3,2"},
      {d.grid, at(1, 3), kNoSuchPlace, "4 x 3, at 3,2"},
      {d.grid, at(1, -1), kNoSuchPlace, "4 x 3, at 3,2"},
      {d.grid, release(3, 1), kDone, "4 x 3, at 3,2"},
      {d.grid, release(0, 2), kNoSuchPlace, "4 x 3, at 3,2"},
      {d.grid, release(2, 4), kNoSuchPlace, "4 x 3, at 3,2"},
      {d.grid, Program([&] { d.grid.SetCurrent(9, 9); }), kDone, "4 x 3, at 3,2"},
      {d.grid, Program([&] { d.grid.SetCurrent(-1, -1); }), kDone, "4 x 3, at 0,0"},
      {d.grid, Program([&] { d.grid.AddColumns(-1); }), kDone, "4 x 3, at 0,0"},
      {d.grid, Program([&] { d.grid.SetSize(0, 0); }), kDone, "1 x 1, at 0,0"},
      {d.tabs, [&] { return d.tabs.Choose(3); }, kNoSuchPlace, kPages[0]},
      {d.tabs, [&] { return d.tabs.Choose(1); }, kDone, kPages[1]},
      {d.tabs, [&] { return d.tabs.Choose(-1); }, kNoSuchPlace, kPages[1]},
  };
  int number = 0;
  for (const auto& it : cases) {
    SCOPED_TRACE(testing::Message() << "case " << number++ << ", " << it.widget.Name());
    EXPECT_EQ(it.verb(), it.answer);
    const std::string value = it.widget.ValueText();
    EXPECT_EQ(value.substr(0, value.find('\n')), it.value);
  }
  EXPECT_THROW(static_cast<void>(d.grid.Cell(1, 0)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(d.grid.Cell(0, 1)), std::out_of_range);
  d.list.SetRows(-1);
  EXPECT_EQ(d.list.Rows(), 0);
}

TEST_F(WidgetVerbs, OfAPersonAreEditsAndThoseOfTheProgramAreNot) {
  const auto edited = [this] {
    std::string names;
    if (d.text.Edited()) names += "text ";
    if (d.slider.Edited()) names += "slider ";
    if (d.time.Edited()) names += "time ";
    if (d.date.Edited()) names += "date ";
    return names;
  };
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(edited(), "");
    d.text.Type("a");
    d.slider.Slide(3);
    d.time.Pick(kOne);
    d.date.Pick(kNewYear);
    d.text.RewriteText("b");
    EXPECT_EQ(edited(), "text slider time date ");
    d.text.SetText("c");
    d.slider.SetValue(4);
    d.time.SetTime(kTwo);
    d.date.SetDate(kLeapDay);
    EXPECT_EQ(edited(), "");
    d.time.Pick(kOne);
    d.date.Pick(kNewYear);
    d.time.Clear();
    d.date.Clear();
  }
}

TEST_F(WidgetVerbs, AreRefusedWhereAPersonCannotReachTheWidget) {
  int calls = 0;
  const Handler count = [&calls] { ++calls; };
  d.text.on_change = d.button.on_click = d.check.on_click = d.option(0).on_click = count;
  d.list.on_click = d.slider.on_change = d.time.on_change = d.date.on_change = count;
  d.grid.on_press = d.grid.on_release = d.tabs.on_change = count;
  d.grid.takes_paste = [](int, int, const std::string&) { return true; };
  d.grid.on_paste = [&calls](int, int, const std::string&) { ++calls; };
  const std::function<Answer()> verbs[] = {
      [&] { return d.text.Type("a"); },      [&] { return d.text.Focus(); },
      [&] { return d.button.Click(); },      [&] { return d.check.Click(); },
      [&] { return d.option(0).Click(); },   [&] { return d.list.Choose(1); },
      [&] { return d.slider.Slide(3); },     [&] { return d.time.Pick(kOne); },
      [&] { return d.date.Pick(kNewYear); }, [&] { return d.grid.Press(2, 1); },
      [&] { return d.grid.Release(1, 2); },  [&] { return d.grid.Paste("a"); },
      [&] { return d.tabs.Choose(1); }};
  const auto all_answer = [&](Answer expected) {
    int number = 0;
    for (const auto& verb : verbs) EXPECT_EQ(verb(), expected) << "verb " << number++;
  };
  const auto enable_all = [this](bool enabled) {
    for (Widget* const widget : d.Widgets()) widget->SetEnabled(enabled);
  };
  const auto show_all = [this](bool visible) {
    for (Widget* const widget : d.Widgets()) widget->SetVisible(visible);
  };
  const std::string before = d.list.ValueText() + d.grid.ValueText() + d.tabs.ValueText();
  show_all(false);
  all_answer(Answer::kHidden);
  show_all(true);
  enable_all(false);
  all_answer(Answer::kDisabled);
  enable_all(true);
  d.Close();
  all_answer(Answer::kHidden);
  EXPECT_EQ(d.CloseWindow(), Answer::kHidden);
  d.Show();
  platform.at_modal = [&](Dialog& modal) {
    all_answer(Answer::kDisabled);
    EXPECT_EQ(d.CloseWindow(), Answer::kDisabled);
    modal.Close();
    return true;
  };
  std::make_shared<EveryKind>(platform)->ShowModal();
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(d.list.ValueText() + d.grid.ValueText() + d.tabs.ValueText(), before);
  EXPECT_EQ(d.text.Text() + d.slider.ValueText() + d.check.ValueText(), "0 of 0..20off");
  all_answer(Answer::kDone);
  EXPECT_EQ(calls, 13);
}

}  // namespace
}  // namespace quorvel
