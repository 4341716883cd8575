#include "ui/editing/grid_editing.h"

#include <gtest/gtest.h>

#include "quorvel/headless_platform.h"
#include "ui/editing/number_texts.h"

namespace quorvel {
namespace {

using Reach = ColumnRules::Reach;

/// A grid of four rows beside one control of every kind that can edit it.
class Desk : public Dialog {
 public:
  explicit Desk(Platform& platform) : Dialog(platform, "frm_Desk") {
    SetLayout(Row(grid, Column(list, combo, slider, shown, picker)));
    grid.SetSize(5, 8);
    slider.SetRange(0, 5);
  }
  /// Two lines read the same, and line 2 stands for 99; "NONE" reads as nothing in a cell.
  static Choices Macros() {
    Choices macros{{0, "NONE"}, {1, "Macro 1"}, {99, "Macro 1"}, {3, "Macro 3"}};
    return macros.Reads(0, "").Reads(9, "Macro 9");
  }
  static Choices Rates() { return Choices({"----", "----", "5.0 pps"}); }
  std::string TextsOf(int column) const {
    std::string texts;
    for (int row = 1; row < grid.Rows(); ++row) texts += grid.Cell(row, column) + "|";
    return texts;
  }

  Grid grid{*this, "MSFG_Desk"};
  ListBox list{*this, "lst_Macro"};
  ComboBox combo{*this, "cbRate"};
  Slider slider{*this, "slPreEvDur"};
  Label shown{*this, "lbPreEv"};
  TimePicker picker{*this, "DTPicker1"};
};

class Editing : public ::testing::Test {
 protected:
  Editing() { desk_->Show(); }
  void Press(int row, int column) { EXPECT_EQ(desk_->grid.Press(row, column), Answer::kDone); }
  void Drag(int first, int last, int column) {
    Press(first, column);
    EXPECT_EQ(desk_->grid.Release(first, last), Answer::kDone);
  }
  HeadlessPlatform platform_;
  std::shared_ptr<Desk> desk_ = std::make_shared<Desk>(platform_);
};

TEST_F(Editing, LookingAtCellsChangesNone) {
  GridEditing editing(desk_->grid);
  editing.Bind(1, desk_->list, Desk::Macros(), {.empty = 0});
  editing.Bind(2, desk_->combo, Desk::Rates());
  editing.Bind(3, desk_->slider, desk_->shown);
  editing.Bind(4, desk_->picker);
  const struct {
    int column;
    int value;
    const char* text;
  } cases[] = {
      {1, 0, ""},     {1, 99, "Macro 1"}, {1, 3, "Macro 3"}, {1, 9, "Macro 9"}, {1, 77, ""},
      {2, 1, "----"}, {2, -1, ""},        {2, 5, ""},        {3, 4, "4"},       {3, 200, "200"},
      {3, -1, ""},    {4, 465, "07:45"},  {4, 1440, ""},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(testing::Message() << it.column << " " << it.value);
    desk_->list.Select(1);
    editing.SetValue(3, it.column, it.value);
    Drag(3, 3, it.column);
    EXPECT_EQ(desk_->grid.Cell(3, it.column), it.text);
    EXPECT_EQ(editing.ValueAt(3, it.column), it.value);
  }
  editing.SetValue(2, 1, 9);
  Drag(2, 4, 1);
  EXPECT_EQ(desk_->TextsOf(1), "|Macro 9|||");
}

TEST_F(Editing, DeleteEmptiesWhatCanBeEmpty) {
  GridEditing editing(desk_->grid);
  std::vector<int> written;
  int chosen = 0;
  editing.Bind(1, desk_->list, Desk::Macros(),
               {.takes = [](int row) { return row != 3; },
                .written = [&](int row) { written.push_back(row); },
                .chosen = [&] { ++chosen; },
                .empty = 0});
  editing.Bind(2, desk_->combo, Desk::Rates());
  editing.Bind(4, desk_->picker, {.empty = Grid::kNone});
  const auto fill = [&] {
    for (int row = 1; row <= 4; ++row) {
      editing.SetValue(row, 1, 3);
      editing.SetValue(row, 2, 2);
      editing.SetValue(row, 4, 60);
    }
    Press(2, 1);
    desk_->grid.Release(2, 4);
  };
  fill();
  written.clear();
  chosen = 0;
  EXPECT_EQ(desk_->grid.Empty(), Answer::kDone);
  EXPECT_EQ(desk_->TextsOf(1) + desk_->TextsOf(4), "Macro 3||Macro 3||01:00|01:00|01:00|01:00|");
  EXPECT_EQ(written, (std::vector<int>{2, 4}));
  EXPECT_EQ(chosen, 1);
  EXPECT_EQ(desk_->list.Current(), 0);
  Press(2, 2);
  EXPECT_EQ(desk_->grid.Empty(), Answer::kNotAChoice);
  editing.SetEmpties(GridEditing::Empties::kRows);
  fill();
  EXPECT_EQ(desk_->grid.Empty(), Answer::kDone);
  EXPECT_EQ(desk_->TextsOf(1) + desk_->TextsOf(4), "Macro 3||Macro 3||01:00||||");
  EXPECT_EQ(editing.ValueAt(2, 4), Grid::kNone);
}

TEST_F(Editing, TwoListsStandAtOneValue) {
  ListBox other(*desk_, "lstHours");
  GridEditing editing(desk_->grid, GridEditing::Release::kSelects);
  editing.BindPair(1, desk_->list, Choices({"001", "009", "017"}), 2, other,
                   Choices({"003", "024", "048"}));
  EXPECT_EQ(desk_->list.Count() * 10 + other.Count(), 33) << "before any press";
  editing.SetValue(1, 1, 2);
  editing.SetValue(1, 2, 2);
  Press(1, 2);
  EXPECT_EQ(desk_->list.CurrentText() + " " + other.CurrentText(), "017 048");
  other.Choose(1);
  EXPECT_EQ(desk_->list.CurrentText(), "009");
  EXPECT_EQ(desk_->TextsOf(1) + desk_->TextsOf(2), "009||||024||||");
  desk_->list.Choose(0);
  EXPECT_EQ(other.CurrentText(), "003");
  EXPECT_EQ(desk_->TextsOf(1) + desk_->TextsOf(2), "001||||003||||");
}

TEST_F(Editing, AListMayOfferOtherLinesInEveryRow) {
  GridEditing editing(desk_->grid, GridEditing::Release::kSelects);
  Choices all({"0 pps", "1 pps", "4 pps", "20 pps"});
  editing.Bind(1, desk_->combo, all, {.of_row = [&](int row) {
                 return row == 1 ? all : Choices{{0, "0 pps"}, {2, "4 pps"}};
               }});
  editing.SetValue(2, 1, 3);
  Press(1, 1);
  EXPECT_EQ(desk_->combo.Count(), 4);
  Press(2, 1);
  EXPECT_EQ(desk_->combo.Count(), 2);
  EXPECT_EQ(desk_->combo.Current(), ComboBox::kNone);  // the cell's own is not among them
  EXPECT_EQ(desk_->grid.Paste("20 pps"), Answer::kDone) << "as it is";
  desk_->combo.Choose(1);
  EXPECT_EQ(editing.ValueAt(2, 1), 2);
  EXPECT_EQ(desk_->grid.Paste("20 pps"), Answer::kNotAChoice);
}

TEST_F(Editing, WhatIsSelectedMayDecideWhatIsOffered) {
  GridEditing editing(desk_->grid);
  Choices rates{{2, "4 pps"}, {3, "20 pps"}};
  rates.OthersRead([](int) { return "4 pps"; });
  editing.Bind(1, desk_->combo, rates, {.of_row = [&](int) {
                 return desk_->grid.LastSelected() == 4 ? rates : Choices{{2, "4 pps"}};
               }});
  for (const int row : {1, 2, 3, 4}) editing.SetValue(row, 1, row - 1);
  Drag(3, 4, 1);
  EXPECT_EQ(desk_->combo.Count(), 2);
  Press(3, 1);
  EXPECT_EQ(desk_->combo.Count(), 1);
  desk_->grid.Mark(4);
  EXPECT_EQ(desk_->combo.Count(), 2);
  // A value without a line reads as one that has one: the list shows it, a drag leaves it.
  Drag(3, 1, 1);
  EXPECT_EQ(desk_->TextsOf(1), "4 pps|4 pps|4 pps|4 pps|") << desk_->combo.CurrentText();
  EXPECT_EQ(editing.ValueAt(1, 1), 0);
  desk_->combo.Choose(0);
  EXPECT_EQ(editing.ValueAt(1, 1), 2);
  desk_->grid.SetCell(1, 1, "DISABLE", 2);
  Press(1, 1);
  EXPECT_EQ(desk_->combo.Current(), ChoiceWidget::kNone) << "not what the cell reads";
}

TEST_F(Editing, ControlsReachTheirColumnOrTheWholeRow) {
  GridEditing editing(desk_->grid, GridEditing::Release::kSelects);
  std::vector<int> written;
  ColumnRules whole_row{.shows = Reach::kInRow, .writes = Reach::kInRow};
  editing.Bind(1, desk_->list, Desk::Macros());
  editing.Bind(2, desk_->list, Desk::Macros());
  editing.Bind(3, desk_->slider, desk_->shown, whole_row);
  whole_row.takes = [](int row) { return row != 2; };
  whole_row.written = [&written](int row) { written.push_back(row); };
  editing.Bind(4, desk_->combo, Desk::Rates(), whole_row);
  editing.SetValue(1, 3, 5);
  Drag(1, 3, 2);
  EXPECT_EQ(desk_->slider.Value(), 5);
  EXPECT_EQ(desk_->shown.Caption(), "5");
  desk_->list.Choose(1);
  desk_->combo.Choose(2);
  desk_->slider.Slide(5);
  EXPECT_EQ(desk_->TextsOf(1), "||||");
  EXPECT_EQ(desk_->TextsOf(2), "Macro 1|Macro 1|Macro 1||");
  EXPECT_EQ(desk_->TextsOf(3), "5|5|5||");
  EXPECT_EQ(desk_->TextsOf(4), "5.0 pps||5.0 pps||");
  EXPECT_EQ(written, (std::vector<int>{1, 3}));

  Press(4, 1);  // nothing there: the slider stands at its end, and that can be chosen
  EXPECT_EQ(desk_->combo.Current(), ChoiceWidget::kNone);
  EXPECT_EQ(desk_->shown.Caption(), "");
  desk_->slider.Slide(0);
  EXPECT_EQ(desk_->grid.Cell(4, 3), "0");
  EXPECT_EQ(desk_->shown.Caption(), "0");
  Press(4, 0);
  desk_->list.Choose(2);
  EXPECT_EQ(desk_->TextsOf(1) + desk_->TextsOf(2), "||||Macro 1|Macro 1|Macro 1||");
}

TEST_F(Editing, ARowMayLackAColumnAndACellMayHaveToBeFilled) {
  GridEditing editing(desk_->grid, GridEditing::Release::kSelects);
  const auto odd = [&](int row) { return editing.ValueAt(row, 1) == 1; };
  ColumnRules rules{.shows = Reach::kInRow, .writes = Reach::kInRow, .moves = true};
  editing.Bind(1, desk_->list, Desk::Macros(), rules);
  rules.has = rules.needs = odd;
  editing.Bind(2, desk_->slider, desk_->shown, rules);
  for (int row = 1; row <= 4; ++row) editing.SetValue(row, 1, row % 2);
  for (const int row : {1, 3}) editing.SetValue(row, 2, 4);
  Press(2, 1);
  desk_->slider.Slide(5);
  EXPECT_EQ(desk_->shown.Caption() + desk_->TextsOf(2), "4||4||") << "nothing to choose";
  EXPECT_EQ(desk_->grid.Column(), 1);
  desk_->grid.Release(2, 4);
  desk_->slider.Slide(5);
  EXPECT_EQ(desk_->shown.Caption() + desk_->TextsOf(2), "4||5||");
  EXPECT_EQ(std::make_pair(desk_->grid.Column(), desk_->grid.LastSelected()), std::make_pair(2, 4));
  editing.ChooseInAllRows(1, 1);
  EXPECT_EQ(desk_->TextsOf(1), "Macro 1|Macro 1|Macro 1|Macro 1|");
  EXPECT_EQ(editing.Waits(2, 2) * 10 + editing.Waits(3, 2), 10);
  Press(3, 1);
  desk_->list.Choose(3);
  EXPECT_EQ(desk_->TextsOf(2), "4||||") << "the row has lost the column";
  EXPECT_EQ(desk_->grid.Paste("Macro 3\t"), Answer::kDone);
  EXPECT_EQ(desk_->grid.Paste("Macro 3\t4"), Answer::kNotAChoice);
}

TEST_F(Editing, AControlOfAnotherColumnIsNotMarkedAndChoosesNothing) {
  GridEditing editing(desk_->grid);
  desk_->SetEditsCellWords("Edits ");
  desk_->grid.SetCell(0, 1, "Macro");
  desk_->grid.SetCell(0, 3, "Sub macro");
  editing.Bind(1, desk_->list, Desk::Macros());
  editing.Bind(2, desk_->slider, desk_->shown);
  editing.Bind(3, desk_->list, Desk::Macros());
  editing.Bind(4, desk_->picker);
  editing.Bind(5, desk_->combo, Desk::Rates(), {.writes = Reach::kInRow});
  for (const int column : {1, 2, 3}) editing.SetValue(1, column, column);
  const struct {
    int column;
    bool list, slider, picker;
    const char* note;
  } cases[] = {{1, true, false, false, "Edits Macro"},
               {2, false, true, false, ""},
               {3, true, false, false, "Edits Sub macro"},
               {4, false, false, true, ""},
               {0, false, false, false, ""}};
  for (const auto& it : cases) {
    SCOPED_TRACE(it.column);
    Press(1, it.column);
    EXPECT_EQ(desk_->list.EditsCell(), it.list);
    EXPECT_EQ(desk_->slider.EditsCell(), it.slider);
    EXPECT_EQ(desk_->picker.EditsCell(), it.picker);
    EXPECT_TRUE(desk_->combo.EditsCell());
    EXPECT_EQ(desk_->list.SpokenNote(), it.note);
  }
  desk_->list.Choose(0);
  EXPECT_EQ(desk_->list.Current(), 3);
  desk_->slider.Slide(0);
  EXPECT_EQ(desk_->slider.Value(), 2);
  EXPECT_EQ(desk_->shown.Caption(), "2");
  desk_->picker.Pick({7, 45, 0});
  EXPECT_EQ(desk_->picker.ValueText(), "");
  EXPECT_EQ(desk_->TextsOf(1) + desk_->TextsOf(3), "Macro 1||||Macro 3||||");
  Press(1, 1);
  desk_->list.Choose(2);
  Press(1, 2);
  desk_->list.Choose(0);
  EXPECT_EQ(desk_->list.Current(), 2) << "what was chosen last in its own column";
}

TEST_F(Editing, HoursAndMinutesAreOneTime) {
  GridEditing editing(desk_->grid, GridEditing::Release::kSelects);
  editing.BindPair(2, 3, desk_->picker);
  editing.SetValue(1, 2, 7);
  editing.SetValue(1, 3, 5);
  editing.SetValue(2, 2, 7);
  Press(1, 3);
  EXPECT_EQ(desk_->picker.ValueText(), "07:05");
  Drag(2, 3, 2);
  EXPECT_EQ(desk_->picker.ValueText(), "");
  desk_->picker.Pick({0, 9, 0});
  EXPECT_EQ(desk_->TextsOf(2) + desk_->TextsOf(3), "07|00|00||05|09|09||");
  EXPECT_EQ(editing.ValueAt(3, 3), 9);
  for (const auto& [column, value] : std::vector<std::pair<int, int>>{{2, 24}, {3, 60}}) {
    editing.SetValue(4, column, value);
    EXPECT_EQ(desk_->grid.Cell(4, column), "") << "no clock shows it";
  }
  Press(4, 1);
  desk_->picker.Pick({1, 1, 0});
  EXPECT_EQ(desk_->TextsOf(2), "07|00|00||");
}

TEST_F(Editing, PastesAllOrNothing) {
  GridEditing editing(desk_->grid);
  editing.Bind(1, desk_->list, Desk::Macros());
  editing.Bind(2, desk_->slider, desk_->shown, {.takes = [](int row) { return row != 4; }});
  editing.Bind(3, desk_->picker);
  const struct {
    int first, last, column;
    const char* text;
    Answer answer;
    const char* cells;  ///< columns 1 to 3 afterwards
  } cases[] = {
      {1, 1, 1, "Macro 3\t5\t7:45\r\n\t0\t23:59\r\n", Answer::kDone,
       "Macro 3||||5|0|||07:45|23:59|||"},
      {2, 4, 1, "Macro 1", Answer::kDone, "|Macro 1|Macro 1|Macro 1|||||||||"},
      {2, 4, 1, "Macro 3\nMacro 1", Answer::kDone, "|Macro 3|Macro 1||||||||||"},
      {3, 3, 1, "Macro 3\nMacro 3\nMacro 3", Answer::kNoSuchPlace, "||||||||||||"},
      {1, 1, 1, "Macro 3\t6", Answer::kNotAChoice, "||||||||||||"},
      {1, 1, 1, "Macro 3\nNONE", Answer::kNotAChoice, "||||||||||||"},
      {3, 3, 2, "1\n1", Answer::kNotAChoice, "||||||||||||"},
      {1, 1, 3, "07:45\t1", Answer::kNotAChoice, "||||||||||||"},
      {1, 1, 3, "24:00", Answer::kNotAChoice, "||||||||||||"},
      {1, 1, 7, "\t\t", Answer::kNoSuchPlace, "||||||||||||"},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.text);
    desk_->grid.SetSize(5, 8);
    Press(it.first, it.column);
    desk_->list.Select(ChoiceWidget::kNone);
    desk_->grid.Release(it.first, it.last);
    EXPECT_EQ(desk_->grid.Paste(it.text), it.answer);
    EXPECT_EQ(desk_->TextsOf(1) + desk_->TextsOf(2) + desk_->TextsOf(3), it.cells);
  }
  desk_->grid.SetSize(5, 8);
  editing.SetValue(1, 1, 99);
  editing.SetValue(2, 2, 4);
  Drag(1, 1, 1);
  desk_->grid.SetCurrent(1, 1);
  EXPECT_EQ(desk_->grid.Copied(1, 2), "Macro 1\t");
  EXPECT_EQ(desk_->grid.Paste("Macro 1"), Answer::kDone);
  EXPECT_EQ(editing.ValueAt(1, 1), 99);  // the text of two lines; it was this one
  EXPECT_EQ(desk_->grid.Paste("Macro 3"), Answer::kDone);
  EXPECT_EQ(desk_->list.Current(), 3);
  editing.SetValue(1, 1, 9);
  EXPECT_EQ(desk_->grid.Paste("Macro 9"), Answer::kDone);  // as it is, listed or not
}

}  // namespace
}  // namespace quorvel
