#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

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

}  // namespace
}  // namespace quorvel
