#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>

#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtControls : public OnScreen {
 protected:
  QtControls() { Show(); }

  static void ClickItem(QListView& list, int item) {
    const QRect place = list.visualRect(list.model()->index(item, 0));
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

TEST_F(QtControls, ListTellsEachPickOnce) {
  dialog_->pages.SetCurrent(1);
  Settle();
  auto& list = Body<QListView>("lst_Action");
  ClickItem(list, 2);
  ClickItem(list, 2);
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::mousePress(list.viewport(), Qt::LeftButton, {},
                    list.visualRect(list.model()->index(1, 0)).center());
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.height() + 50));
  EXPECT_EQ(dialog_->TakeNotes(), (Notes{"choose 2", "choose 2", "choose 3", "choose 1"}));
}

TEST_F(QtControls, ListWithoutACurrentItemStaysSoUntilAPick) {
  dialog_->pages.SetCurrent(1);
  Settle();
  auto& list = Body<QListView>("lst_Action");
  list.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(!list.selectionModel()->hasSelection());
  EXPECT_EQ(dialog_->list.Current(), ListBox::kNone);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"choose 0"});
  dialog_->list.Select(500);
  EXPECT_TRUE(!list.selectionModel()->hasSelection());
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
  auto& list = Body<QListView>("lst_Action");
  EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(77, 0))));
  EXPECT_LT(list.height(), 500);
  EXPECT_LT(list.width(), 320);
  dialog_->list.SetItems({"one", "two"});
  EXPECT_EQ(list.model()->rowCount(), 2);
  EXPECT_TRUE(!list.selectionModel()->hasSelection());
}

TEST_F(QtControls, ListShowsWholeRowsAndWhetherItHasTheFocus) {
  dialog_->pages.SetCurrent(1);
  Settle();
  auto& list = Body<QListView>("lst_Action");
  EXPECT_EQ(list.viewport()->height() % list.visualRect(list.model()->index(0, 0)).height(), 0);
  dialog_->list.Select(50);
  const QRect place = list.visualRect(list.model()->index(50, 0));
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
