#include <QMenu>
#include <QPushButton>

#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtMenu : public OnScreen {
 protected:
  QtMenu() {
    host_.setGeometry(100, 60, 400, 300);
    host_.show();
    platform_.SetHostWindow(&host_);
    MenuItem root;
    root.children = {Item("mnu_Alarm", "Alarms & inputs"),
                     Item("mnu_Macro", "Macro"),
                     {},
                     Item("mnu_Record", "Record"),
                     Item("mnu_Lock", "Lock")};
    root.children[1].visible = false;
    root.children[2].separator = true;
    root.children[3].enabled = false;
    root.children[4].children = {Item("mnu_On", "On"), Item("mnu_Off", "Off")};
    root.children[4].children[0].checked = true;
    menu_ = std::make_shared<PopupMenu>(root);
  }

  MenuItem Item(const std::string& name, const std::string& caption) {
    MenuItem item;
    item.name = name;
    item.caption = caption;
    item.on_choose = [this, name] { chosen_ += name; };
    return item;
  }
  void PopUp() {
    platform_.PopUp(menu_, 30, 20);
    Settle();
  }
  [[nodiscard]] static QMenu* Up() {
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }
  [[nodiscard]] static QAction& Action(const char* name) {
    return *Up()->findChild<QAction*>(name);
  }
  static void ClickOn(const char* name) {
    ClickAt(*Up(), Up()->actionGeometry(&Action(name)).center());
  }

  QWidget host_;
  std::shared_ptr<PopupMenu> menu_;
  std::string chosen_;
};

TEST_F(QtMenu, ShowsItemsAsTheModelHasThem) {
  PopUp();
  ASSERT_NE(Up(), nullptr);
  EXPECT_EQ(Up()->pos(), host_.mapToGlobal(QPoint(30, 20)));
  EXPECT_EQ(Action("mnu_Alarm").text(), "Alarms && inputs");
  EXPECT_FALSE(Action("mnu_Macro").isVisible());
  EXPECT_FALSE(Action("mnu_Record").isEnabled());
  QMenu* const lock = Up()->actions().at(4)->menu();
  ASSERT_NE(lock, nullptr);
  EXPECT_TRUE(lock->actions().at(0)->isChecked());
  EXPECT_FALSE(lock->actions().at(1)->isChecked());
  EXPECT_TRUE(Up()->actions().at(2)->isSeparator());
}

TEST_F(QtMenu, PopsUpBelowItsButtonWhileThatIsToBeSeen) {
  QPushButton button("Menu", &host_);
  button.setGeometry(200, 100, 80, 25);
  platform_.SetMenuButton(&button);
  for (const bool seen : {false, true}) {
    button.setVisible(seen);
    PopUp();
    EXPECT_EQ(Up()->pos(), host_.mapToGlobal(seen ? QPoint(200, 125) : QPoint(30, 20)));
  }
}

TEST_F(QtMenu, AChoiceActsFromTheLoopAndADismissalDoesNot) {
  PopUp();
  ClickOn("mnu_Alarm");
  EXPECT_EQ(chosen_, "");
  EXPECT_EQ(Up(), nullptr);
  Settle();
  EXPECT_EQ(chosen_, "mnu_Alarm");
  PopUp();
  ClickOn("mnu_Record");
  QTest::keyClick(Up(), Qt::Key_Escape);
  Settle();
  EXPECT_EQ(Up(), nullptr);
  EXPECT_EQ(chosen_, "mnu_Alarm");
}

TEST_F(QtMenu, AnItemMayPopTheMenuUpAgain) {
  menu_->Item("mnu_Alarm").on_choose = [this] { platform_.PopUp(menu_, 0, 0); };
  PopUp();
  ClickOn("mnu_Alarm");
  Settle();
  ASSERT_NE(Up(), nullptr);
  menu_->Item("mnu_Record").enabled = true;
  PopUp();  // replaces the one that is up
  EXPECT_TRUE(Action("mnu_Record").isEnabled());
  EXPECT_EQ(Up()->pos(), host_.mapToGlobal(QPoint(30, 20)));
}

TEST_F(QtMenu, TakeDownAlsoTakesTheChoiceBack) {
  PopUp();
  platform_.TakeDown(PopupMenu({}));
  EXPECT_NE(Up(), nullptr);
  ClickOn("mnu_Alarm");
  platform_.TakeDown(*menu_);
  Settle();
  EXPECT_EQ(chosen_, "");
  PopUp();
  platform_.TakeDown(*menu_);
  EXPECT_EQ(Up(), nullptr);
}

}  // namespace
}  // namespace quorvel
