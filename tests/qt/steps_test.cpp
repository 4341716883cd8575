#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "tests/qt/installer.h"

namespace quorvel {
namespace {

/// Opens Camera Setup, and answers questions.
class QtSteps : public testing::Test, protected Installer {
 protected:
  QtSteps() : Installer(kFamilies[5]), dialog_(Open("mnu_CSetup").shared_from_this()) {}
  bool Ask(const Message& message) override {
    asked_.push_back(message.text);
    return answer_;
  }
  template <class QtWidget = QWidget>
  [[nodiscard]] QtWidget& Body(const char* name) {
    return *WindowOf(*dialog_)->findChild<QtWidget*>(name);
  }
  static void Press(QWidget& body, Qt::Key key, Qt::KeyboardModifiers with = Qt::ControlModifier) {
    QTest::keyClick(&body, key, with);
    QTest::qWait(0);
  }

  const std::shared_ptr<Dialog> dialog_;
  std::vector<std::string> asked_;
  bool answer_ = false;
};

TEST_F(QtSteps, KeysTakeBackAndPutBackInAnyControl) {
  auto& title = Body<QLineEdit>("m_CameraTitle(0)");
  const QString was = title.text();
  title.setFocus(Qt::TabFocusReason);
  title.selectAll();
  QTest::keyClicks(&title, "Lobby");
  EXPECT_EQ(title.accessibleDescription(), "Changed from: " + was);
  Press(title, Qt::Key_Z);
  EXPECT_EQ(title.text(), was);
  EXPECT_EQ(title.accessibleDescription(), "");
  Press(title, Qt::Key_Y);
  EXPECT_EQ(title.text(), "Lobby");
  Press(title, Qt::Key_Backspace);
  EXPECT_EQ(title.text(), was);
  EXPECT_FALSE(dialog_->IsChanged());

  auto& tabs = Body<QTabWidget>("SSTab1");
  tabs.setCurrentIndex(1);
  dialog_->Find<ListBox>("lstSnlGain").Choose(25);
  auto& grid = Body<QTableView>("MSFG_SnlGain");
  const auto spoken = [&grid] {
    return QAccessible::queryAccessibleInterface(&grid)->tableInterface()->cellAt(0, 1)->text(
        QAccessible::Name);
  };
  EXPECT_EQ(spoken(), "75. Changed from: 100");
  EXPECT_EQ(tabs.tabBar()->accessibleTabName(1), "Camera AGC *");
  tabs.setCurrentIndex(2);
  Press(tabs, Qt::Key_Z);
  EXPECT_EQ(tabs.currentIndex(), 1) << "what was changed comes to the front";
  EXPECT_EQ(spoken(), "100");
  EXPECT_EQ(tabs.tabBar()->accessibleTabName(1), "");
  Press(grid, Qt::Key_Y);
  grid.setFocus();
  Press(grid, Qt::Key_Backspace);
  EXPECT_EQ(spoken(), "100");

  auto& list = Body("lstSnlGain");
  list.setFocus();
  QTest::keyClicks(&list, "125");
  EXPECT_EQ(spoken(), "125. Changed from: 100");
  Press(list, Qt::Key_Z);
  EXPECT_EQ(spoken(), "100") << "what is typed is one step";
}

TEST_F(QtSteps, EscapeAsksBeforeAChangeIsLostAndCancelDoesNot) {
  auto& box = Body("m_CameraCovert(0)");
  dialog_->Find<CheckBox>("m_CameraCovert(0)").Click();
  Press(box, Qt::Key_Escape, {});
  EXPECT_TRUE(dialog_->Shown());
  EXPECT_FALSE(WindowOf(*dialog_)->close());
  EXPECT_EQ(asked_.size(), 2U);
  EXPECT_EQ(dialog_->CancelButton()->Click(), Answer::kDone);
  EXPECT_EQ(asked_.size(), 2U);
  EXPECT_FALSE(dialog_->Shown());
}

TEST_F(QtSteps, AControlsMenuHasTheStepsAndATextBoxItsClipboardToo) {
  auto& title = Body<QLineEdit>("m_CameraTitle(0)");
  QTest::keyClicks(&title, "x");
  QContextMenuEvent event(QContextMenuEvent::Mouse, {1, 1}, title.mapToGlobal(QPoint(1, 1)));
  QApplication::sendEvent(&title, &event);
  auto* const menu = WindowOf(*dialog_)->findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  std::string texts;
  for (const QAction* const action : menu->actions()) {
    texts += action->text().section('\t', 0, 0).remove('&').toStdString() +
             (action->isEnabled() ? "" : " (off)") + "|";
  }
  EXPECT_TRUE(texts.starts_with("Undo|Redo (off)|As it was|As in the device||Cut")) << texts;
  menu->actions().front()->trigger();
  EXPECT_FALSE(dialog_->IsChanged());
}

}  // namespace
}  // namespace quorvel
