#include <QAccessible>
#include <QHeaderView>
#include <QSignalSpy>
#include <QToolButton>
#include <functional>

#include "tests/qt/drawn_as_told.h"
#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

using Act = std::function<void(QWidget&)>;

Act Key(int key, Qt::KeyboardModifiers modifiers = {}) {
  return [=](QWidget& body) {
    body.setFocus();
    if (!body.isEnabled()) return;
    QTest::keyClick(&body, static_cast<Qt::Key>(key), modifiers);
  };
}
void ClickTab(QWidget& body, int page) {
  QTabBar& bar = *dynamic_cast<QTabWidget&>(body).tabBar();
  ClickAt(bar, bar.tabRect(page).center());
}

class QtEveryKind : public OnScreen {
 protected:
  QtEveryKind() { Show(); }
};

TEST_F(QtEveryKind, MouseAndKeyboardChangeTheModelUnlessItIsDisabled) {
  const struct {
    const char* control;
    Act act;
    const char* noted;
  } cases[] = {
      {"button", Click, "button; "},
      {"button", Key(Qt::Key_Space), "button; "},
      {"button", Key(Qt::Key_Return), "button; "},
      {"check", Click, "check on; "},
      {"check", Key(Qt::Key_Space), "check off; "},
      {"option(1)", Click, "option(1) on; "},
      {"option(1)", Click, "option(1) on; "},
      {"option(1)", Key(Qt::Key_Up), "option(0) on; "},
      {"option(1)", Key(Qt::Key_Space), "option(1) on; "},
      {"text", Key(Qt::Key_7), "text 7; "},
      {"list", [](QWidget& it) { ClickCell(it, 1); }, "list 1 \"On\" of 3; "},
      {"list", Key(Qt::Key_Up), "list 0 \"Off\" of 3; "},
      {"list", Key(Qt::Key_Space), "list 0 \"Off\" of 3; "},
      {"combo", Key(Qt::Key_Down), "combo 0 \"Black & white\" of 2; "},
      {"combo",
       [](QWidget& it) {
         Click(it);
         auto& combo = dynamic_cast<QComboBox&>(it);
         if (!combo.view()->isVisible()) return;
         QTest::qWait(QApplication::doubleClickInterval());  // a quicker click only opens it
         const QRect item = combo.view()->visualRect(combo.model()->index(1, 0));
         QTest::mouseMove(combo.view()->viewport(), item.center());
         ClickAt(*combo.view()->viewport(), item.center());
       },
       "combo 1 \"Colour\" of 2; "},
      {"slider", [](QWidget& it) { ClickAt(it, QPoint(it.width() - 2, it.height() / 2)); },
       "slider 5 of 0..20; "},
      {"slider", Key(Qt::Key_Left), "slider 4 of 0..20; "},
      {"slider", Key(Qt::Key_Space), "slider 4 of 0..20; "},
      {"time", Key(Qt::Key_Up), "time 08:45:00 AM; "},
      {"time", [](QWidget& it) { ClickAt(it, QPoint(it.width() - 6, it.height() - 5)); },
       "time 07:45:00 AM; "},
      {"date", Key(Qt::Key_Down), "date 2023-02-28; "},
      {"date",
       [](QWidget& it) {
         it.findChild<QLineEdit*>()->setCursorPosition(10);
         Key(Qt::Key_Up)(it);
       },
       "date 2023-03-01; "},
      {"grid", [](QWidget& it) { ClickCell(it, 1, 2); }, "press 2,2; grid 2-2@2; "},
      {"grid", Key(Qt::Key_Left), "press 2,1; grid 2-2@1; "},
      {"grid", Key(Qt::Key_Down), "press 3,1; grid 3-3@1; "},
      {"tabs", [](QWidget& it) { ClickTab(it, 2); },
       "tabs 0 \"Titles & texts\", 1 \"Spare page\" hidden, *2 \"Last\"; "},
      {"tabs", Key(Qt::Key_Tab, Qt::ControlModifier),
       "tabs *0 \"Titles & texts\", 1 \"Spare page\" hidden, 2 \"Last\"; "},
  };
  dialog_->tabs.SetPageVisible(1, false);
  for (const auto& it : cases) {
    Widget& model = *dialog_->FindWidget(it.control);
    for (const bool enabled : {false, true}) {
      model.SetEnabled(enabled);
      it.act(Body(it.control));
      EXPECT_EQ(TakeNotes(), enabled ? it.noted : "") << it.control;
    }
  }
}

TEST_F(QtEveryKind, DrawingFollowsTheProgramWhichCallsNoHandler) {
  static constexpr ClockTime kAfternoon{13, 5, 9}, kNoTime{25, 0, 0};
  const struct {
    const char* control;
    void (*say)(EveryKind&);
    const char* property = nullptr;
    const char* drawn = nullptr;
  } cases[] = {
      {"label", [](EveryKind& it) { it.label.SetCaption("A & B"); }, "text", "A && B"},
      {"button", [](EveryKind& it) { it.button.SetCaption("A & B"); }, "text", "A && B"},
      {"frame", [](EveryKind& it) { it.frame.SetCaption("A & B"); }, "title", "A && B"},
      {"check", [](EveryKind& it) { it.check.SetChecked(true); }, "text", "Buzzer && lamp"},
      {"option(1)", [](EveryKind& it) { it.option.Select(1); }, "checked", "true"},
      {"text", [](EveryKind& it) { it.text.SetText("Over twelve <b>"); }, "text",
       "Over twelve <b>"},
      {"list", [](EveryKind& it) { it.list.Select(1); }},
      {"combo", [](EveryKind& it) { it.combo.Select(1); }, "currentText", "Colour"},
      {"combo", [](EveryKind& it) { it.combo.SetItems({"1"}); }, "currentText", ""},
      {"slider", [](EveryKind& it) { it.slider.SetValue(200); }, "value", "20"},
      {"slider", [](EveryKind& it) { it.slider.SetRange(5, 300); }, "value", "200"},
      {"time", [](EveryKind& it) { it.time.SetTime(kAfternoon); }, "text", "01:05:09 PM"},
      {"time", [](EveryKind& it) { it.time.SetTime(kNoTime); }, "text", ""},
      {"date", [](EveryKind& it) { it.date.Clear(); }, "text", ""},
      {"grid", [](EveryKind& it) { it.grid.SetSize(1, 2); }},
      {"grid", [](EveryKind& it) { it.grid.SetSize(65, 2); }},
      {"grid", [](EveryKind& it) { it.grid.SetCell(2, it.grid.AddColumns(1), "x"); }},
      {"grid", [](EveryKind& it) { it.grid.SetCurrent(60, 2); }},
      {"tabs", [](EveryKind& it) { it.tabs.SetCurrent(1); }},
      {"tabs", [](EveryKind& it) { it.tabs.SetPageVisible(1, false); }},
      {"tabs", [](EveryKind& it) { it.tabs.SetPageCaption(2, "R&D"); }},
      {"progress", [](EveryKind& it) { it.progress.SetMaximum(225), it.progress.SetValue(112); },
       "text", "49%"},
      {"progress", [](EveryKind& it) { it.progress.SetMaximum(0); }, "text", "0%"},
      {"status", [](EveryKind& it) { it.status.SetPanel(2, "75%"); }},
  };
  for (const auto& it : cases) {
    Widget& model = *dialog_->FindWidget(it.control);
    it.say(*dialog_);
    QApplication::processEvents();
    EXPECT_EQ(DrawnAsTold::FirstDifference(Window(), *dialog_), "");
    if (it.property != nullptr) {
      const QString drawn = Body(it.control).property(it.property).toString();
      EXPECT_EQ(drawn.toStdString(), it.drawn) << it.control;
    }
    for (const bool on : {false, true}) {
      model.SetVisible(on);
      model.SetEnabled(on);
      EXPECT_EQ(DrawnAsTold::FirstDifference(Window(), *dialog_), "");
    }
  }
  EXPECT_EQ(Body<QTabWidget>("tabs").tabText(2), "R&&D");
  auto& table = Body<QTableView>("grid");
  EXPECT_TRUE(table.viewport()->rect().contains(CellPlace(table, 59, 2))) << "scrolled to";
  EXPECT_EQ(TakeNotes(), "");
}

TEST_F(QtEveryKind, TabKeyGoesInReadingOrderAndKeysOfTheDialogWorkEverywhere) {
  dialog_->tabs.SetPageVisible(1, false);
  std::vector<std::string> order;
  QWidget* focus = &Body("text");
  for (focus->setFocus(); order.size() < 20; focus = QApplication::focusWidget()) {
    const std::string name = focus->objectName().toStdString();
    if (!order.empty() && name == order.front()) break;
    order.push_back(name);
    QTest::keyClick(focus, Qt::Key_Return);
    EXPECT_EQ(TakeNotes().find("button; ") == 0, name == "button") << name;
    QTest::keyClick(focus, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(TakeNotes(), "button; ") << name;
    QTest::keyClick(focus, Qt::Key_Escape);
    EXPECT_EQ(TakeNotes(), "cancel; ") << name;
    EXPECT_EQ(QApplication::focusWidget(), focus) << name;
    QTest::keyClick(focus, Qt::Key_Tab);
  }
  EXPECT_EQ(order, (std::vector<std::string>{"text", "check", "option(0)", "combo", "slider",
                                             "time", "date", "grid", "list", "button", "cancel",
                                             "qt_tabwidget_tabbar"}));
}

TEST_F(QtEveryKind, WheelChangesNothingWithoutTheFocus) {
  dialog_->combo.Select(0);
  for (QWidget* const body : Window().findChildren<QWidget*>()) {
    if (body->inherits("QTabBar")) continue;
    Body("button").setFocus();
    TurnWheel(*body, {5, 5}, {0, -120});
    EXPECT_EQ(TakeNotes(), "") << body->objectName().toStdString();
  }
}

TEST_F(QtEveryKind, ManyChangesInOneTurnAreDrawnOnce) {
  Grid& grid = dialog_->grid;
  auto& table = Body<QTableView>("grid");
  QSignalSpy changes(table.model(), &QAbstractItemModel::dataChanged);
  QSignalSpy resized(table.horizontalHeader(), &QHeaderView::sectionResized);
  grid.SetSize(17, 13);
  for (int row = 0; row < 17; ++row) {
    for (int column = 0; column < 13; ++column) {
      grid.SetCell(row, column, "Camera " + std::string(static_cast<std::size_t>(row), 'x'));
    }
  }
  EXPECT_EQ(table.model()->index(15, 12).data(), "Camera xxxxxxxxxxxxxxxx") << "never stale";
  ClickCell(table, 1, 1);
  EXPECT_EQ(TakeNotes(), "press 2,1; grid 2-2@1; ");
  EXPECT_EQ(changes.count(), 0);
  QApplication::processEvents();
  EXPECT_EQ(changes.count(), 1);
  EXPECT_LE(resized.count(), 2 * 13);
  EXPECT_GE(table.columnWidth(5), table.fontMetrics().horizontalAdvance("Camera xxxxxxxxxxxxxxxx"));
}

TEST_F(QtEveryKind, ScreenReadersAreToldNamesAndCells) {
  bool named = false;
  for (const auto& relation :
       QAccessible::queryAccessibleInterface(&Body("text"))->relations(QAccessible::Label)) {
    named = named || relation.first->object() == &Body("label");
  }
  EXPECT_TRUE(named);
  EXPECT_EQ(Body<QLabel>("label").textFormat(), Qt::PlainText);
  dialog_->list.SetLabel(dialog_->label);
  EXPECT_EQ(Body<QLabel>("label").buddy(), &Body("list"));

  QAccessibleTableInterface* const table =
      QAccessible::queryAccessibleInterface(&Body("grid"))->tableInterface();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->rowCount(), 4);
  EXPECT_EQ(table->columnDescription(1), "Picture rate under alarm");
  EXPECT_EQ(table->rowDescription(1), "20");
  EXPECT_EQ(table->cellAt(0, 2)->text(QAccessible::Name), "15 s, latched");
  dialog_->grid.Press(3, 2);
  EXPECT_TRUE(table->cellAt(2, 2)->state().selected);
}

class QtCalendar : public QtEveryKind {
 protected:
  void Open(int key = Qt::Key_F4, Qt::KeyboardModifiers modifiers = {}) {
    Key(key, modifiers)(Body("date"));
    ASSERT_NE(Popup(), nullptr);
  }
  static QWidget* Popup() { return QApplication::activePopupWidget(); }
  static void Press(int key) { QTest::keyClick(Popup()->focusWidget(), static_cast<Qt::Key>(key)); }
};

TEST_F(QtCalendar, DaysArePickedByKeyboardAndMouseAndLeftAloneOtherwise) {
  for (const int key : {Qt::Key_Escape, Qt::Key_F4}) {
    Open(Qt::Key_Down, Qt::AltModifier);
    Press(Qt::Key_Right);
    Press(key);
    EXPECT_EQ(Popup(), nullptr);
    EXPECT_TRUE(Body("date").hasFocus());
    EXPECT_EQ(TakeNotes(), "");
  }
  Open();
  Press(Qt::Key_Right);
  Press(Qt::Key_Return);
  EXPECT_EQ(Popup(), nullptr);
  EXPECT_EQ(TakeNotes(), "date 2024-03-01; ");
  dialog_->date.SetDate({2024, 13, 1});
  QTest::mouseClick(Body("date").findChild<QToolButton*>(), Qt::LeftButton);
  auto& days = *Popup()->findChild<QTableView*>();
  ClickAt(*days.viewport(), days.visualRect(days.currentIndex()).center());
  EXPECT_EQ(TakeNotes(), "date " + QDate::currentDate().toString(Qt::ISODate).toStdString() + "; ");
  dialog_->date.SetEnabled(false);
  QTest::mouseClick(Body("date").findChild<QToolButton*>(), Qt::LeftButton);
  Key(Qt::Key_F4)(Body("date"));
  EXPECT_EQ(Popup(), nullptr);
}

TEST_F(QtCalendar, DialogMayGoWhileItIsOpen) {
  for (const int way : {0, 1, 2, 3}) {
    dialog_ = std::make_shared<EveryKind>(platform_);
    dialog_->Show();
    Open();
    if (way == 0) dialog_->Close();
    if (way == 1) dialog_.reset();
    if (way > 1) {
      dialog_->date.on_change = [this, way] { way == 2 ? dialog_->Close() : dialog_.reset(); };
      Press(Qt::Key_Return);
    }
    EXPECT_EQ(Popup(), nullptr);
    Settle();
  }
  // While the calendar's own menu of months is up.
  dialog_ = std::make_shared<EveryKind>(platform_);
  dialog_->Show();
  Open();
  QTest::mouseClick(Popup()->findChild<QToolButton*>("qt_calendar_monthbutton"), Qt::LeftButton);
  ASSERT_TRUE(Popup()->inherits("QMenu"));
  dialog_.reset();
  Settle();
  EXPECT_EQ(Popup(), nullptr);
}

}  // namespace
}  // namespace quorvel
