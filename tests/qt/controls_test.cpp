#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtControls : public OnScreen {
 protected:
  QtControls() {
    constexpr int kItems = 101;
    std::vector<std::string> items;
    for (int i = 0; i < kItems; ++i) items.push_back(std::to_string(i));
    dialog_->list.SetItems(items);
    Show();
  }
};

TEST_F(QtControls, RewrittenTextKeepsTheCursorWhereTheTypistIs) {
  TextBox& box = dialog_->text;
  box.on_change = [&box] {
    std::string digits;
    for (const char c : box.Text()) {
      if (c >= '0' && c <= '9') digits += c;
    }
    box.RewriteText(digits);
  };
  box.SetText("1234");
  auto& edit = Body<QLineEdit>("text");
  edit.setCursorPosition(2);
  QTest::keyClicks(&edit, "9x8");
  EXPECT_EQ(box.Text(), "129834");
  EXPECT_EQ(edit.cursorPosition(), 4);
  edit.setCursorPosition(3);
  box.SetText("129834");
  EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST_F(QtControls, ListHasNoCurrentItemUntilAPickAndTellsEachOnce) {
  auto& list = Body<QListView>("list");
  list.setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(list.selectionModel()->hasSelection());
  EXPECT_EQ(dialog_->list.Current(), ListBox::kNone);
  QTest::keyClick(&list, Qt::Key_Down);
  ClickCell(list, 2);
  ClickCell(list, 2);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, CellPlace(list, 1, 0));
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.height() + 50));
  EXPECT_EQ(TakeNotes(),
            "list 0 \"0\" of 101; list 2 \"2\" of 101; list 2 \"2\" of 101; "
            "list 3 \"3\" of 101; list 1 \"1\" of 101; ");
  dialog_->list.Select(500);
  EXPECT_FALSE(list.selectionModel()->hasSelection());

  dialog_->list.SetItems({"Off", "On"});
  dialog_->list.Select(1);
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, CellPlace(list, 1, 0));
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, list.viewport()->rect().bottomLeft());
  EXPECT_EQ(TakeNotes(), "list 1 \"On\" of 2; ");
  EXPECT_TRUE(list.selectionModel()->isSelected(list.model()->index(1, 0)));
}

TEST_F(QtControls, LongListScrollsToWhatTheProgramSelectsAndShowsWholeRowsAndTheFocus) {
  dialog_->tabs.SetCurrent(1);
  dialog_->list.Select(77);
  dialog_->tabs.SetCurrent(0);
  Settle();
  auto& list = Body<QListView>("list");
  const auto place = [&list](int row) { return list.visualRect(list.model()->index(row, 0)); };
  const int height = place(77).height();
  EXPECT_TRUE(list.viewport()->rect().contains(place(77)));
  EXPECT_LT(list.height(), 500);
  EXPECT_EQ(list.viewport()->height() % height, 0);
  dialog_->list.Select(50);
  EXPECT_NEAR(place(50).center().y(), list.viewport()->height() / 2, height);

  const auto colour = [&] {
    const QPoint beside_the_text(place(50).right() - 2, place(50).center().y());
    return list.viewport()->grab().toImage().pixelColor(beside_the_text);
  };
  auto& button = Body("cancel");
  button.setFocus();
  const QColor without = colour();
  QTest::keyClick(&button, Qt::Key_Up);
  EXPECT_TRUE(button.hasFocus());
  list.setFocus();
  EXPECT_NE(colour(), without);
}

class QtValues : public OnScreen {
 protected:
  QtValues() { Show(); }
};

TEST_F(QtValues, TimesAreTypedOrSteppedAndTakenWhenTheBoxIsLeft) {
  dialog_->time.SetFormat(ClockFormat::kHoursMinutes);
  auto& box = Body<QAbstractSpinBox>("time");
  auto& line = *box.findChild<QLineEdit*>();
  EXPECT_EQ(line.text(), "07:45");
  box.setFocus();
  line.selectAll();
  QTest::keyClicks(&box, "9:05");
  EXPECT_EQ(TakeNotes(), "");
  Body("slider").setFocus();
  EXPECT_EQ(TakeNotes(), "time 09:05; ");
  EXPECT_EQ(line.text(), "09:05");
  box.setFocus();
  line.setCursorPosition(1);
  QTest::keyClick(&box, Qt::Key_Down);
  line.setCursorPosition(4);
  QTest::keyClick(&box, Qt::Key_Up);
  EXPECT_EQ(TakeNotes(), "time 08:05; time 08:06; ");
  line.selectAll();
  QTest::keyClicks(&box, "25:99");
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(line.text(), "08:06") << "no time";
  EXPECT_EQ(TakeNotes(), "");
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(TakeNotes(), "time 08:06; ") << "the same time is a choice as well";
  line.selectAll();
  QTest::keyClicks(&box, "10:00");
  QTest::keyClick(&box, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(TakeNotes(), "time 10:00; button; ");
}

TEST_F(QtValues, BoxThatSelectsOnFocusAndIsTakenAsAWhole) {
  TextBox& text = dialog_->text;
  auto& box = Body<QLineEdit>("text");
  text.SetText("1027");
  text.SetTakenWhenLeft(true);
  text.SetSelectOnFocus(5);
  Body("slider").setFocus();
  box.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(box.selectedText(), "1027");
  QTest::keyClicks(&box, "80");
  EXPECT_EQ(TakeNotes(), "");
  Body("slider").setFocus();
  EXPECT_EQ(TakeNotes(), "text 80; ");
  Click(box);
  EXPECT_EQ(box.selectedText(), "80");
  box.deselect();
  Click(box);
  EXPECT_EQ(box.selectedText(), "") << "a click where the focus is places the cursor";
  box.selectAll();
  QTest::keyClicks(&box, "8080");
  QTest::keyClick(&box, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(TakeNotes(), "text 8080; button; ");
}

TEST_F(QtValues, BoxThatIsSelectedWholeAtEveryClick) {
  TextBox& text = dialog_->text;
  auto& box = Body<QLineEdit>("text");
  text.SetText("192");
  text.SetSelectOnFocus(TextBox::kWhole, true);
  text.on_change = [this, &text] {
    if (text.Text().size() > 3) text.RewriteText("255");
    dialog_->notes += text.Text() + "; ";
  };
  Body("slider").setFocus();
  Click(box);
  EXPECT_EQ(box.selectedText(), "192");
  QTest::keyClicks(&box, "1234");
  EXPECT_EQ(TakeNotes(), "1; 12; 123; 255; ");
  EXPECT_EQ(box.selectedText(), "255") << "the next key replaces it";
  box.deselect();
  Click(box);
  EXPECT_EQ(box.selectedText(), "255");
}

TEST_F(QtValues, ArrowsPickAmongTheOptionsOfAGroupThatCanBePicked) {
  dialog_->option(1).SetEnabled(false);
  dialog_->option(3).SetVisible(false);
  auto& first = Body("option(0)");
  auto& third = Body("option(2)");
  first.setFocus();
  QTest::keyClick(&first, Qt::Key_Down);
  EXPECT_TRUE(third.hasFocus());
  QTest::keyClick(&third, Qt::Key_Right);
  EXPECT_TRUE(first.hasFocus());
  QTest::keyClick(&first, Qt::Key_Up);
  EXPECT_EQ(TakeNotes(), "option(2) on; option(0) on; option(2) on; ");
  QTest::keyClick(&third, Qt::Key_Tab);
  EXPECT_TRUE(Body("combo").hasFocus());
  QTest::keyClick(&Body("combo"), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(third.hasFocus()) << "Tab stops at the selected option";
  QTest::keyClick(&third, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Body("check").hasFocus()) << "and at no other of the group";
}

TEST_F(QtValues, ListsAreAsTallAsAskedAndLeaveTheirPlaceOnlyIfTheyMay) {
  dialog_->Close();
  dialog_->list.SetRows(9);
  dialog_->SetLayout(Row(dialog_->list, dialog_->button));
  Show();
  auto& list = Body<QListView>("list");
  EXPECT_GE(list.sizeHint().height(), 9 * list.sizeHintForRow(0));
  for (const bool keeps : {false, true}) {
    dialog_->list.SetKeepsPlace(keeps);
    dialog_->list.SetVisible(true);
    Settle();
    const int before = Body("button").x();
    dialog_->list.SetVisible(false);
    Settle();
    EXPECT_EQ(Body("button").x() == before, keeps);
  }
}

struct TwoFrames : Dialog {
  explicit TwoFrames(Platform& platform) : Dialog(platform, "frm_TwoFrames") {
    SetLayout(Row(Framed(left, Lines(text)), Framed(right, Lines(first, second))));
    first(1).Select();
  }
  Frame left{*this, "left", "Titles"};
  ControlArray<TextBox> text{*this, "text", 4};
  Frame right{*this, "right"};
  ControlArray<OptionButton> first{*this, "first", 2};
  ControlArray<OptionButton> second{*this, "second", 2};
};
using QtTwoFrames = OnScreenOf<TwoFrames>;

TEST_F(QtTwoFrames, GroupsOfOptionsStayApartLinesMeetAndHiddenControlsTakeNoSpace) {
  Show();
  Click(Body("second(0)"));
  EXPECT_TRUE(dialog_->second(0).Selected());
  EXPECT_TRUE(Body<QRadioButton>("first(1)").isChecked());
  EXPECT_TRUE(Body<QRadioButton>("second(0)").isChecked());

  const auto top = [this](const char* name) { return Body(name).mapToGlobal(QPoint()).y(); };
  EXPECT_EQ(top("text(1)"), top("first(1)"));
  const int before = top("first(1)");
  dialog_->first(0).SetVisible(false);
  Settle();
  EXPECT_EQ(before - top("first(1)"), Body("first(1)").height() + 4);
  EXPECT_EQ(Body("left").height(), Body("left").sizeHint().height());
  dialog_->right.SetEnabled(false);
  Click(Body("second(1)"));
  EXPECT_FALSE(dialog_->second(1).Selected());
}

}  // namespace
}  // namespace quorvel
