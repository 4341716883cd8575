#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtControls : public OnScreen {
 protected:
  QtControls() { Show(); }

  static void ClickItem(QListWidget& list, int item) {
    const QRect place = list.visualItemRect(list.item(item));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
  }
};

TEST_F(QtControls, TypingReachesTheModelUpToItsLimit) {
  auto& edit = Body<QLineEdit>("m_Title(0)");
  edit.setCursorPosition(5);
  QTest::keyClicks(&edit, " one two three");
  EXPECT_EQ(dialog_->m_Title(0).Text(), "Lobby one tw");
  edit.setCursorPosition(2);
  QTest::keyClicks(&edit, "X");
  EXPECT_EQ(dialog_->m_Title(0).Text(), "Lobby one tw");
  EXPECT_TRUE(dialog_->m_Title(0).Edited());
}

TEST_F(QtControls, TextThatTheProgramSetIsShownAndNotWrittenBack) {
  TextBox& box = dialog_->m_Title(0);
  auto& edit = Body<QLineEdit>("m_Title(0)");
  const std::string texts[] = {"Longer than twelve characters", std::string("A\0B", 3),
                               "Stra\xC3\x9F"
                               "e",
                               ""};
  for (const std::string& text : texts) {
    box.SetText(text);
    EXPECT_EQ(edit.text().toStdString(), text);
    EXPECT_EQ(box.Text(), text);
    EXPECT_FALSE(box.Edited());
  }
  EXPECT_EQ(dialog_->TakeNotes(), Notes{});
  box.SetText(std::string("A\0B", 3));
  QTest::keyClick(&edit, Qt::Key_End);
  QTest::keyClicks(&edit, "C");
  EXPECT_EQ(box.Text(), std::string("A\0BC", 4));
}

TEST_F(QtControls, RewrittenTextKeepsTheCursorWhereTheTypistIs) {
  TextBox& box = dialog_->m_Title(0);
  box.on_change = [&box] {
    std::string digits;
    for (const char c : box.Text()) {
      if (c >= '0' && c <= '9') digits += c;
    }
    box.RewriteText(digits);
  };
  box.SetText("1234");
  auto& edit = Body<QLineEdit>("m_Title(0)");
  edit.setCursorPosition(2);
  QTest::keyClicks(&edit, "9x8");
  EXPECT_EQ(box.Text(), "129834");
  EXPECT_EQ(edit.cursorPosition(), 4);
  edit.setCursorPosition(3);
  box.SetText("129834");
  EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST_F(QtControls, CheckBoxAndOptionsFollowBothSides) {
  auto& box = Body<QCheckBox>("Buzzer & lamp");
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
  EXPECT_TRUE(dialog_->chk_Buzzer.Checked());
  dialog_->chk_Buzzer.SetChecked(false);
  EXPECT_FALSE(box.isChecked());

  auto& timed = Body<QRadioButton>("Timed");
  auto& latched = Body<QRadioButton>("Latched");
  EXPECT_FALSE(timed.isChecked() || latched.isChecked());
  for (int i = 0; i < 2; ++i) {  // an option that is selected stays so
    QTest::mouseClick(&timed, Qt::LeftButton, {}, QPoint(8, timed.height() / 2));
    EXPECT_TRUE(timed.isChecked());
  }
  dialog_->opt_Latch(2).Select();
  EXPECT_TRUE(latched.isChecked());
  EXPECT_FALSE(timed.isChecked());
  EXPECT_EQ(dialog_->TakeNotes(), (Notes{"check on", "option on", "option on"}));
}

TEST_F(QtControls, ListTellsEachPickOnce) {
  dialog_->pages.SetCurrent(1);
  Settle();
  auto& list = Body<QListWidget>("lst_Action");
  ClickItem(list, 2);
  ClickItem(list, 2);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::mousePress(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.item(1)).center());
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.height() + 50));
  EXPECT_EQ(dialog_->TakeNotes(), (Notes{"choose 2", "choose 2", "choose 3", "choose 1"}));
}

TEST_F(QtControls, ListWithoutACurrentItemStaysSoUntilAPick) {
  dialog_->pages.SetCurrent(1);
  Settle();
  auto& list = Body<QListWidget>("lst_Action");
  list.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(list.selectedItems().isEmpty());
  EXPECT_EQ(dialog_->list.Current(), ListBox::kNone);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"choose 0"});
  dialog_->list.Select(500);
  EXPECT_TRUE(list.selectedItems().isEmpty());
}

TEST_F(QtControls, GroupsOfOptionsInOneFrameStayApart) {
  struct TwoGroups : Dialog {
    explicit TwoGroups(Platform& platform) : Dialog(platform, "frm_TwoGroups") {
      SetLayout(Column(first, second));
    }
    ControlArray<OptionButton> first{*this, "opt_First", 2};
    ControlArray<OptionButton> second{*this, "opt_Second", 2};
  };
  const auto groups = std::make_shared<TwoGroups>(platform_);
  groups->first(1).Select();
  groups->Show();
  const auto options = platform_.WindowOf(*groups)->findChildren<QRadioButton*>();
  QTest::mouseClick(options.at(2), Qt::LeftButton, {}, QPoint(8, options.at(2)->height() / 2));
  EXPECT_TRUE(groups->second(0).Selected());
  EXPECT_TRUE(options.at(1)->isChecked());
  EXPECT_TRUE(options.at(2)->isChecked());
}

TEST_F(QtControls, LongListScrollsToWhatTheProgramSelects) {
  dialog_->list.Select(77);
  dialog_->pages.SetCurrent(1);
  Settle();
  auto& list = Body<QListWidget>("lst_Action");
  EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(77))));
  EXPECT_LT(list.height(), 500);
  EXPECT_LT(list.width(), 320);
  dialog_->list.SetItems({"one", "two"});
  EXPECT_EQ(list.count(), 2);
  EXPECT_TRUE(list.selectedItems().isEmpty());
}

TEST_F(QtControls, ListShowsWholeRowsAndWhetherItHasTheFocus) {
  dialog_->pages.SetCurrent(1);
  Settle();
  auto& list = Body<QListWidget>("lst_Action");
  EXPECT_EQ(list.viewport()->height() % list.visualItemRect(list.item(0)).height(), 0);
  dialog_->list.Select(50);
  const QRect place = list.visualItemRect(list.item(50));
  EXPECT_NEAR(place.center().y(), list.viewport()->height() / 2, place.height());

  const auto colour = [&] {
    return list.viewport()->grab().toImage().pixelColor(place.right() - 2, place.center().y());
  };
  auto& button = Body<QPushButton>("Cancel");
  button.setFocus();
  const QColor without = colour();
  QTest::keyClick(&button, Qt::Key_Up);
  EXPECT_TRUE(button.hasFocus());
  list.setFocus();
  EXPECT_NE(colour(), without);
}

TEST_F(QtControls, TextBoxIsCalledLikeTheLabelBeforeIt) {
  dialog_->SetLayout(Row(dialog_->lbl_Title, dialog_->m_Title(2), dialog_->chk_Buzzer));
  EXPECT_EQ(Body<QLineEdit>("R&D <b>title</b>").objectName(), "m_Title(2)");
  dialog_->m_Title(2).SetEnabled(false);
  EXPECT_FALSE(Body<QLineEdit>("R&D <b>title</b>").isEnabled());
}

TEST_F(QtControls, HiddenPagesAreOutOfReach) {
  auto& tabs = Body<QTabWidget>("SSTab1");
  dialog_->pages.SetPageVisible(1, false);
  QTest::keyClick(&tabs, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(dialog_->pages.Current(), 2);
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"page 2"});
  dialog_->pages.SetPageVisible(1, true);
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"page 1"});
  dialog_->pages.SetPageVisible(2, false);
  dialog_->pages.SetCurrent(0);
  EXPECT_EQ(tabs.currentIndex(), 0);
  EXPECT_EQ(dialog_->TakeNotes(), Notes{});
}

TEST_F(QtControls, TextsAreShownAsTheyAre) {
  EXPECT_EQ(Window().windowTitle(), "Alarm & recording");
  EXPECT_EQ(Body<QTabWidget>("SSTab1").tabText(0), "Titles && texts");
  EXPECT_EQ(Body<QCheckBox>("Buzzer & lamp").text(), "Buzzer && lamp");
  dialog_->titles.SetCaption("A & B");
  dialog_->cmd_OK.SetCaption("Save & close");
  dialog_->opt_Latch(0).SetCaption("R&D");
  EXPECT_EQ(Body<QGroupBox>("A & B").title(), "A && B");
  EXPECT_EQ(Body<QPushButton>("Save & close").text(), "Save && close");
  EXPECT_EQ(Body<QRadioButton>("R&D").text(), "R&&D");
  auto& label = Body<QLabel>("R&D <b>title</b>");
  EXPECT_EQ(label.text(), "R&D <b>title</b>");
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(QtControls, ProgressAndStatusFollowTheProgram) {
  auto& bar = Body<QProgressBar>("pb_Load");
  dialog_->progress.SetMaximum(225);
  dialog_->progress.SetValue(112);
  EXPECT_EQ(bar.text(), "49%");
  dialog_->progress.SetMaximum(0);
  EXPECT_NE(bar.minimum(), bar.maximum());  // equal ones would show an endless "busy"
  dialog_->status.SetPanel(3, "75%");
  EXPECT_EQ(Body<QWidget>("sb_Load").findChildren<QLabel*>().at(2)->text(), "75%");
}

TEST_F(QtControls, LinesOfFramesSideBySideMeetAndHiddenControlsTakeNoSpace) {
  const auto top = [](const QWidget& body) { return body.mapToGlobal(QPoint()).y(); };
  auto& timed = Body<QRadioButton>("Timed");
  EXPECT_EQ(top(Body<QLineEdit>("m_Title(1)")), top(timed));
  const int before = top(timed);
  dialog_->opt_Latch(0).SetVisible(false);
  Settle();
  EXPECT_EQ(before - top(timed), timed.height() + 4);
  EXPECT_FALSE(Body<QRadioButton>("Transparent").isVisible());
  auto& frame = Body<QGroupBox>("Titles");
  EXPECT_EQ(frame.height(), frame.sizeHint().height());
  dialog_->latch.SetEnabled(false);
  EXPECT_FALSE(timed.isEnabled());
  QTest::mouseClick(&timed, Qt::LeftButton, {}, QPoint(8, timed.height() / 2));
  EXPECT_EQ(dialog_->TakeNotes(), Notes{});
}

}  // namespace
}  // namespace quorvel
