#include <gtest/gtest.h>

#include <set>

#include "quorvel/headless_platform.h"

namespace quorvel {
namespace {

class OneOfEach : public Dialog {
 public:
  explicit OneOfEach(Platform& platform) : Dialog(platform, "frm_OneOfEach") {
    tabs.SetPages({Page{"First", Column(frame)}, Page{"Second", {}}});
    grid.SetSize(4, 3);
    items.SetItems({"1", "2"});
    SetLayout(Column(tabs, label, text, button, tick, options, items, drop, slider, time, date,
                     grid, bar, status));
    Show();
  }
  TabStrip tabs{*this, "tabs"};
  Frame frame{*this, "frame"};
  Label label{*this, "label"};
  TextBox text{*this, "text"};
  Button button{*this, "button"};
  CheckBox tick{*this, "tick"};
  ControlArray<OptionButton> options{*this, "options", 2};
  ListBox items{*this, "items"};
  ComboBox drop{*this, "drop"};
  Slider slider{*this, "slider"};
  TimePicker time{*this, "time"};
  DatePicker date{*this, "date"};
  Grid grid{*this, "grid"};
  ProgressBar bar{*this, "bar"};
  StatusBar status{*this, "status", 2};
};

struct Recorder : WidgetView {
  void Refresh(Aspect what) override { told.insert(what); }
  std::set<Aspect> told;
};

constexpr Aspect kState = Aspect::kState;
constexpr Aspect kContent = Aspect::kContent;
constexpr Aspect kSelection = Aspect::kSelection;

TEST(Redraw, FollowsEveryVerb) {
  HeadlessPlatform platform;
  const auto dialog = std::make_shared<OneOfEach>(platform);
  OneOfEach& d = *dialog;
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
      {d.frame, [&] { d.tabs.SetCaption("Around"); }, {kState}},
      {d.text, [&] { d.text.SetMaxLength(9); }, {kState}},
      {d.text, [&] { d.text.SetShownLength(20); }, {kState}},
      {d.text, [&] { d.text.SetTakenWhenLeft(true); }, {kState}},
      {d.text, [&] { d.text.SetText("a"); }, {kSelection}},
      {d.text, [&] { d.text.RewriteText("b"); }, {kSelection}},
      {d.text, [&] { d.text.Type("c"); }, {kSelection}},
      {d.text, [&] { d.text.Focus(); }, {kSelection}},
      {d.tick, [&] { d.tick.SetChecked(true); }, {kSelection}},
      {d.tick, [&] { d.tick.Click(); }, {kSelection}},
      {d.options(0), [&] { d.options(0).Select(); }, {kSelection}},
      {d.options(0), [&] { d.options(1).Click(); }, {kSelection}},
      {d.options(0), [&] { d.options(1).Deselect(); }, {kSelection}},
      {d.items, [&] { d.items.Select(0); }, {kSelection}},
      {d.items, [&] { d.items.Choose(1); }, {kSelection}},
      {d.items, [&] { d.items.SetRows(3); }, {kState}},
      {d.drop, [&] { d.drop.SetItems({"a"}); }, {kContent}},
      {d.slider, [&] { d.slider.SetRange(0, 5); }, {kState}},
      {d.slider, [&] { d.slider.SetSteps(1, 2); }, {kState}},
      {d.slider, [&] { d.slider.SetValue(4); }, {kSelection}},
      {d.slider, [&] { d.slider.Slide(3); }, {kSelection}},
      {d.time,
       [&] {
         d.time.SetTime({1, 2, 3});
       },
       {kSelection}},
      {d.time, [&] { d.time.SetFormat(ClockFormat::kTwelveHours); }, {kState, kSelection}},
      {d.time,
       [&] {
         d.time.Pick({2, 3, 4});
       },
       {kSelection}},
      {d.time, [&] { d.time.Clear(); }, {kSelection}},
      {d.date,
       [&] {
         d.date.SetDate({2024, 1, 2});
       },
       {kSelection}},
      {d.date,
       [&] {
         d.date.Pick({2024, 1, 3});
       },
       {kSelection}},
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
      {d.tabs,
       [&] {
         d.tabs.SetPages({Page{"Only", {}}});
       },
       {kContent}},
      {d.bar, [&] { d.bar.SetMaximum(9); }, {kState}},
      {d.bar, [&] { d.bar.SetValue(5); }, {kSelection}},
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

}  // namespace
}  // namespace quorvel
