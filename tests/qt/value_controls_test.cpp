#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <memory>

#include "quorvel/qt_platform.h"
#include "quorvel/widgets.h"

namespace quorvel {
namespace {

class ValueDialog : public Dialog {
 public:
  explicit ValueDialog(Platform& platform) : Dialog(platform, "frm_Values") {
    combo.SetItems({"Off", "On", "R&D"});
    slider.SetRange(0, 20);
    slider.SetValue(200);
    time.SetTime({7, 45, 0});
    port.SetText("1027");
    port.SetTakenWhenLeft(true);
    port.SetSelectOnFocus(5);
    octet.SetText("192");
    octet.SetSelectOnFocus(TextBox::kWhole, true);
    list.SetItems({"1", "2", "3"});
    list.SetRows(9);
    opt(1).SetEnabled(false);
    opt(3).SetVisible(false);
    for (int i = 0; i < 4; ++i) {
      opt(i).on_click = [this, i] { notes += "option " + std::to_string(i) + "; "; };
    }
    SetLayout(Column(opt, combo, slider, time, date, Row(port, octet), Row(list, other), cmd_OK));
    SetKeyButtons(&cmd_OK, nullptr);
    combo.on_click = [this] { notes += "choose " + std::to_string(combo.Current()) + "; "; };
    slider.on_change = [this] { notes += "slide " + std::to_string(slider.Value()) + "; "; };
    time.on_change = [this] { notes += "time " + time.ValueText() + "; "; };
    date.on_change = [this] { notes += "date " + date.ValueText() + "; "; };
    port.on_change = [this] { notes += "port " + port.Text() + "; "; };
    octet.on_change = [this] {
      if (octet.Text().size() > 3) octet.RewriteText("255");
      notes += "octet " + octet.Text() + "; ";
    };
    cmd_OK.on_click = [this] { notes += "OK; "; };
  }

  ControlArray<OptionButton> opt{*this, "opt", 4};
  ComboBox combo{*this, "cbAct"};
  Slider slider{*this, "slAct"};
  TimePicker time{*this, "dtAct"};
  DatePicker date{*this, "Calendar"};
  TextBox port{*this, "txtPort"};
  TextBox octet{*this, "txtOctet"};
  ListBox list{*this, "lstAct"};
  ListBox other{*this, "lstOther"};
  Button cmd_OK{*this, "cmd_OK", "OK"};
  std::string notes;
};

class QtValues : public ::testing::Test {
 protected:
  QtValues() {
    dialog_->Show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(platform_.WindowOf(*dialog_)));
  }
  template <class QtWidget>
  [[nodiscard]] QtWidget& Body(const char* name) const {
    return *platform_.WindowOf(*dialog_)->findChild<QtWidget*>(name);
  }
  std::string TakeNotes() { return std::exchange(dialog_->notes, {}); }

  QtPlatform platform_;
  std::shared_ptr<ValueDialog> dialog_ = std::make_shared<ValueDialog>(platform_);
};

TEST_F(QtValues, TimesAreTypedOrSteppedAndTakenWhenTheBoxIsLeft) {
  auto& box = Body<QAbstractSpinBox>("dtAct");
  auto& line = *box.findChild<QLineEdit*>();
  EXPECT_EQ(line.text(), "07:45");
  box.setFocus();
  line.selectAll();
  QTest::keyClicks(&box, "9:05");
  EXPECT_EQ(TakeNotes(), "");
  Body<QSlider>("slAct").setFocus();
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
  EXPECT_EQ(TakeNotes(), "time 10:00; OK; ");
  dialog_->time.SetFormat(ClockFormat::kTwelveHours);
  dialog_->time.SetTime({13, 5, 9});
  EXPECT_EQ(line.text(), "01:05:09 PM");
  dialog_->time.Clear();
  EXPECT_EQ(line.text(), "");
}

TEST_F(QtValues, DatesKeepToTheCalendar) {
  auto& box = Body<QAbstractSpinBox>("Calendar");
  auto& line = *box.findChild<QLineEdit*>();
  EXPECT_EQ(line.text(), "");
  dialog_->date.SetDate({2024, 2, 29});
  box.setFocus();
  line.setCursorPosition(0);
  QTest::keyClick(&box, Qt::Key_Up);
  EXPECT_EQ(TakeNotes(), "date 2025-02-28; ");
  line.setCursorPosition(10);
  QTest::keyClick(&box, Qt::Key_Up);
  EXPECT_EQ(TakeNotes(), "date 2025-03-01; ");
}

TEST_F(QtValues, BoxesThatSelectOnFocusAndOnesThatAreTakenAsAWhole) {
  auto& port = Body<QLineEdit>("txtPort");
  auto& octet = Body<QLineEdit>("txtOctet");
  port.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(port.selectedText(), "1027");
  QTest::keyClicks(&port, "80");
  EXPECT_EQ(TakeNotes(), "");
  QTest::mouseClick(&octet, Qt::LeftButton);
  EXPECT_EQ(TakeNotes(), "port 80; ");
  EXPECT_EQ(octet.selectedText(), "192");
  QTest::keyClicks(&octet, "1234");
  EXPECT_EQ(TakeNotes(), "octet 1; octet 12; octet 123; octet 255; ");
  EXPECT_EQ(octet.selectedText(), "255") << "the next key replaces it";
  octet.deselect();
  QTest::mouseClick(&octet, Qt::LeftButton);
  EXPECT_EQ(octet.selectedText(), "255");
  QTest::mouseClick(&port, Qt::LeftButton);
  port.deselect();
  QTest::mouseClick(&port, Qt::LeftButton);
  EXPECT_EQ(port.selectedText(), "") << "a click where the focus is places the cursor";
  port.selectAll();
  QTest::keyClicks(&port, "8080");
  QTest::keyClick(&port, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(TakeNotes(), "port 8080; OK; ");
}

TEST_F(QtValues, ArrowsPickAmongTheOptionsOfAGroupThatCanBePicked) {
  auto& first = Body<QWidget>("opt(0)");
  auto& third = Body<QWidget>("opt(2)");
  first.setFocus();
  QTest::keyClick(&first, Qt::Key_Down);
  EXPECT_TRUE(third.hasFocus());
  QTest::keyClick(&third, Qt::Key_Right);
  EXPECT_TRUE(first.hasFocus());
  QTest::keyClick(&first, Qt::Key_Up);
  EXPECT_EQ(TakeNotes(), "option 2; option 0; option 2; ");
  QTest::keyClick(&third, Qt::Key_Tab);
  EXPECT_TRUE(Body<QWidget>("cbAct").hasFocus());
  QTest::keyClick(&Body<QWidget>("cbAct"), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(third.hasFocus()) << "Tab stops at the selected option";
  QTest::keyClick(&third, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_FALSE(first.hasFocus()) << "and at no other of the group";
}

TEST_F(QtValues, ListsAreAsTallAsAskedAndLeaveTheirPlaceOnlyIfTheyMay) {
  auto& list = Body<QWidget>("lstAct");
  auto& other = Body<QWidget>("lstOther");
  EXPECT_GT(list.sizeHint().height(), other.sizeHint().height());
  const auto moves = [&] {
    QApplication::processEvents();
    const int before = other.x();
    dialog_->list.SetVisible(false);
    QApplication::processEvents();
    const int after = other.x();
    dialog_->list.SetVisible(true);
    return before != after;
  };
  EXPECT_TRUE(moves());
  dialog_->list.SetKeepsPlace(true);
  EXPECT_FALSE(moves());
}

}  // namespace
}  // namespace quorvel
