#include <gtest/gtest.h>

#include "quorvel/headless_platform.h"
#include "ui/editing/octet_boxes.h"

namespace quorvel {
namespace {

class AllKinds : public Dialog {
 public:
  explicit AllKinds(Platform& platform) : Dialog(platform, "frm_All") {
    SetLayout(Column(
        Tabs(tabs, Page{"Record", Row(grid)},
             Page{"Events",
                  Row(Framed(outer, Column(Framed(inner, Row(slider, Labelled(lb_Days, days))))))},
             Page{"Other", Row(time, date)}),
        Dotted(octets, dots, 1), Row(port_box, options, button)));
  }
  TabStrip tabs{*this, "SSTab1"};
  Grid grid{*this, "MSFG_MDect"};
  Frame outer{*this, "Frame1", "Timers"};
  Frame inner{*this, "Frame2"};
  Slider slider{*this, "slLnkAlm"};
  Label lb_Days{*this, "lbDays", "Days"};
  ComboBox days{*this, "cbRTDays"};
  TimePicker time{*this, "DTPicker1"};
  DatePicker date{*this, "Calendar"};
  ControlArray<TextBox> octets{*this, "txTCPHost", 4};
  ControlArray<Label> dots{*this, "lbTxdotIP", 4};
  TextBox port_box{*this, "txtTCPPort"};
  ControlArray<OptionButton> options{*this, "optSignal", 3};
  Button button{*this, "cmdOK"};
  OctetBoxes address{octets};
  PortBox port{port_box, 1027, 32767, 1027};
};

class Widgets : public ::testing::Test {
 protected:
  Widgets() { dialog_->Show(); }
  HeadlessPlatform platform_;
  std::shared_ptr<AllKinds> dialog_ = std::make_shared<AllKinds>(platform_);
};

TEST_F(Widgets, ADotSendsTheFocusToTheNextOctet) {
  const struct {
    int box;
    const char* typed;
    int focus;
  } cases[] = {{0, "10.", 1}, {1, ".", 2}, {3, "9.", 3}, {2, "7.8.9", 3}, {0, "9.8.7.6.\r\n", 3}};
  for (const auto& it : cases) {
    for (int i = 0; i < 4; ++i) dialog_->address.Show(i, static_cast<Byte>(i + 1));
    EXPECT_EQ(dialog_->octets(it.box).Type(it.typed), Answer::kDone);
    EXPECT_EQ(dialog_->FocusSentTo(), &dialog_->octets(it.focus)) << it.typed;
    EXPECT_GT(dialog_->octets(it.focus).SelectedCharacters(), 0);
  }
  EXPECT_EQ(dialog_->octets(1).Type("2.", "0"), Answer::kDone);
  EXPECT_EQ(dialog_->octets(1).Text() + "." + dialog_->octets(2).Text(), "20.7");
  dialog_->octets(1).SetEnabled(false);
  EXPECT_EQ(dialog_->octets(1).Type("5.6"), Answer::kDisabled);
  EXPECT_EQ(dialog_->octets(2).Text(), "7");
  dialog_->address.Show(0, 255);  // what is stored is shown, whether it can be typed or not
  dialog_->port.Show(80);
  EXPECT_EQ(dialog_->address.Octet(0) * 100 + dialog_->port.Number(), 25580);
}

TEST_F(Widgets, FocusSelectsWhatTypingReplaces) {
  TextBox& octet = dialog_->octets(2);
  dialog_->address.Show(2, 168);
  octet.Focus();
  EXPECT_EQ(octet.SelectedCharacters(), 3);
  octet.Type("16");
  EXPECT_EQ(octet.SelectedCharacters(), 0);
  octet.Type("");  // becomes "0", which the next key replaces
  EXPECT_EQ(octet.SelectedCharacters(), 1);
  octet.Type("17");
  octet.Focus(true);
  EXPECT_EQ(octet.SelectedCharacters(), 2);
  dialog_->port.Show(12345);
  dialog_->port_box.Focus();
  EXPECT_EQ(dialog_->port_box.SelectedCharacters(), 5);
  dialog_->port_box.Focus(true);
  EXPECT_EQ(dialog_->port_box.SelectedCharacters(), 0);
  octet.SetEnabled(false);
  EXPECT_EQ(octet.Focus(), Answer::kDisabled);
}

TEST_F(Widgets, TheSameValueIsAChoiceAndOneThatIsRefusedIsNone) {
  int calls = 0;
  const Handler count = [&calls] { ++calls; };
  dialog_->slider.on_change = dialog_->time.on_change = count;
  dialog_->tabs.Choose(1);
  EXPECT_EQ(dialog_->slider.Slide(101), Answer::kNoSuchPlace);
  EXPECT_FALSE(dialog_->slider.Edited());
  EXPECT_EQ(dialog_->slider.Slide(0), Answer::kDone);
  EXPECT_TRUE(dialog_->slider.Edited());
  dialog_->tabs.Choose(2);
  dialog_->time.SetTime({7, 45, 0});
  EXPECT_EQ(dialog_->time.Pick({24, 0, 0}), Answer::kNotAChoice);
  EXPECT_EQ(dialog_->time.Pick({7, 45, 30}), Answer::kDone);
  EXPECT_EQ(dialog_->time.Time(), (ClockTime{7, 45, 0})) << "no seconds in this format";
  EXPECT_EQ(calls, 2);
}

TEST(ClockTimes, AreWrittenAndRead) {
  const struct {
    ClockTime time;
    const char* texts[3];
  } cases[] = {
      {{0, 30, 0}, {"00:30", "00:30:00", "12:30:00 AM"}},
      {{7, 45, 0}, {"07:45", "07:45:00", "07:45:00 AM"}},
      {{12, 0, 0}, {"12:00", "12:00:00", "12:00:00 PM"}},
      {{23, 59, 0}, {"23:59", "23:59:00", "11:59:00 PM"}},
  };
  for (const auto& it : cases) {
    for (int format = 0; format < 3; ++format) {
      EXPECT_EQ(TimeText(static_cast<ClockFormat>(format), it.time), it.texts[format]);
      EXPECT_EQ(ReadTime(it.texts[format]), it.time) << it.texts[format];
    }
  }
  EXPECT_EQ(ReadTime("7:05 PM"), (ClockTime{19, 5, 0}));
  for (const char* text : {"", "7", "24:00", "7:60", "7:5", "07:45:", "07:45:60", "13:00 PM",
                           "0:30 AM", "07:45 ", "-1:00", "007:45", "07:45 XM"}) {
    EXPECT_EQ(ReadTime(text), std::nullopt) << text;
  }
  for (const char* text : {"2023-02-29", "1900-02-29", "2024-13-01", "2024-00-01", "2024-01-00",
                           "2024-1-1", "0000-01-01", "2024-01-011"}) {
    EXPECT_EQ(ReadDate(text), std::nullopt) << text;
  }
}

TEST_F(Widgets, GridsWithTwoHeaderRows) {
  Grid& grid = dialog_->grid;
  const char* const headers[2][6] = {
      {"Camera", "Sensitivity", "Activity", "Activity", "Intrusion", "Intrusion"},
      {"Camera", "Sensitivity", "Link to Event", "Relay Output", "Rejection", "Target Size"}};
  grid.SetHeaderRows(3);  // two at most
  grid.SetRange(Grid::Range::kOneRow);
  grid.SetSize(6, 4);
  grid.SetCell(3, 2, "YES", 1);
  grid.SetLeastWidth(1, 9);
  EXPECT_EQ(grid.AddColumns(2), 4);
  EXPECT_EQ(grid.LeastWidth(0) * 100 + grid.LeastWidth(1) * 10 + grid.LeastWidth(5), 90);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 6; ++column) grid.SetCell(row, column, headers[row][column]);
  }
  EXPECT_EQ(grid.Header().size(), 12U);  // nothing is merged unless asked for
  grid.SetMergedHeader(true);
  EXPECT_EQ(grid.Header(), (std::vector<Grid::HeaderCell>{{0, 0, 2, 1, "Camera"},
                                                          {0, 1, 2, 1, "Sensitivity"},
                                                          {0, 2, 1, 2, "Activity"},
                                                          {0, 4, 1, 2, "Intrusion"},
                                                          {1, 2, 1, 1, "Link to Event"},
                                                          {1, 3, 1, 1, "Relay Output"},
                                                          {1, 4, 1, 1, "Rejection"},
                                                          {1, 5, 1, 1, "Target Size"}}));
  EXPECT_EQ(grid.HeaderRows(), 2);
  EXPECT_EQ(grid.ColumnName(0), "Camera");
  EXPECT_EQ(grid.ColumnName(5), "Intrusion, Target Size");
  EXPECT_EQ(grid.Cell(3, 2) + std::to_string(grid.Value(3, 2)) + grid.Cell(3, 5), "YES1");
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(grid.Press(1, 1), Answer::kNoSuchPlace);
  EXPECT_EQ(grid.Press(3, 5), Answer::kDone);
  EXPECT_EQ(grid.Release(1, 4), Answer::kNoSuchPlace);
  EXPECT_EQ(grid.Release(4, 5), Answer::kDone);
  EXPECT_EQ(grid.FirstSelected() * 10 + grid.LastSelected(), 33);
  EXPECT_EQ(grid.Paste("YES"), Answer::kNotAChoice);  // nobody takes texts
  EXPECT_EQ(grid.Paste("YES\nYES"), Answer::kNoSuchPlace);
  grid.SetRange(Grid::Range::kRows);
  grid.SetCell(4, 2, "NO");
  grid.SetCell(4, 3, "1");
  grid.Press(3, 2);
  grid.Release(3, 4);
  EXPECT_EQ(grid.Copied(2, 3), "YES\t\nNO\t1");
  EXPECT_EQ(grid.Copied(2, 2), "YES\nNO");
  grid.SetCell(0, 4, " ");
  EXPECT_EQ(grid.ColumnName(4), "Rejection");
  grid.SetHeaderRows(0);
  EXPECT_EQ(grid.HeaderRows(), 1);
  grid.SetSize(4, 3);
  EXPECT_EQ(grid.LeastWidth(1), 0);
}

TEST_F(Widgets, AHiddenPageIsNeverInFront) {
  TabStrip& tabs = dialog_->tabs;
  tabs.SetPageVisible(0, false);
  EXPECT_EQ(tabs.Current(), 1);
  tabs.SetCurrent(0);
  EXPECT_EQ(tabs.Current(), 1);
  for (const int page : {1, 2}) tabs.SetPageVisible(page, false);
  EXPECT_FALSE(dialog_->time.Showing());
  tabs.SetPageVisible(2, true);
  EXPECT_TRUE(dialog_->time.Showing());
}

TEST_F(Widgets, OptionsMayHaveNoneSelectedOrAHiddenOne) {
  auto& options = dialog_->options;
  options.SetCaptions({"Low", "Medium", "High"});
  options.Select(2);
  options.ShowFirst(2);
  EXPECT_EQ(options.Selected(), 2);
  EXPECT_EQ(options(2).Click(), Answer::kHidden);
  EXPECT_EQ(options(1).Click(), Answer::kDone);
  EXPECT_EQ(options.Selected(), 1);
  options.Select(9);
  EXPECT_EQ(options.Selected(), -1);
}

TEST_F(Widgets, SpokenNamesComeFromTheNearestWords) {
  EXPECT_EQ(dialog_->days.SpokenName(), "Days");
  dialog_->lb_Days.SetCaption("");
  EXPECT_EQ(dialog_->days.SpokenName(), "Timers");
  EXPECT_EQ(dialog_->button.SpokenName(), "cmdOK");
  dialog_->button.SetCaption("OK");
  EXPECT_EQ(dialog_->button.SpokenName(), "OK");
  dialog_->button.SetSpokenName("OK, and close");
  EXPECT_EQ(dialog_->button.SpokenName(), "OK, and close");

  class Redrawn : public WidgetView {
   public:
    void Refresh(Aspect what) override { states += what == Aspect::kState ? 1 : 0; }
    int states = 0;
  } named, naming;
  dialog_->days.AttachView(&named);
  for (Widget* const widget :
       {static_cast<Widget*>(&dialog_->lb_Days), static_cast<Widget*>(&dialog_->outer)}) {
    widget->AttachView(&naming);
    widget->SetCaption("Weekdays");
    EXPECT_EQ(std::exchange(named.states, 0), 1) << widget->Name();
    widget->AttachView(nullptr);
  }
  dialog_->days.AttachView(nullptr);
}

}  // namespace
}  // namespace quorvel
