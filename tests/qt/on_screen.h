#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <string>
#include <utility>

#include "quorvel/qt_platform.h"
#include "tests/ui/every_kind.h"

namespace quorvel {

inline void ClickAt(QWidget& body, QPoint place) {
  QTest::mouseClick(&body, Qt::LeftButton, {}, place);
}
/// A click near the left end, where ticks are.
inline void Click(QWidget& body) { ClickAt(body, {8, body.height() / 2}); }

/// Turns the wheel over a place; a notch is 120 wide.
inline void TurnWheel(QWidget& body, QPoint place, QPoint by) {
  QWheelEvent turn(place, body.mapToGlobal(place), {}, by, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&body, &turn);
}

/// The middle of a cell, counted below the header.
inline QPoint CellPlace(const QAbstractItemView& view, int row, int column) {
  return view.visualRect(view.model()->index(row, column)).center();
}
inline void ClickCell(QWidget& body, int row, int column = 0) {
  auto& view = dynamic_cast<QAbstractItemView&>(body);
  ClickAt(*view.viewport(), CellPlace(view, row, column));
}

/// A dialog on screen, and the toolkit's widgets in it by their names in the code.
template <class Kind>
class OnScreenOf : public testing::Test {
 protected:
  OnScreenOf() { Settle(); }
  ~OnScreenOf() override {
    dialog_.reset();
    Settle();
  }

  static void Settle() {
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Show() {
    dialog_->Show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Settle();
  }

  [[nodiscard]] QWidget& Window() const { return *platform_.WindowOf(*dialog_); }
  template <class QtWidget = QWidget>
  [[nodiscard]] QtWidget& Body(const std::string& name) const {
    const QWidget& window = Window();
    return *window.findChild<QtWidget*>(QString::fromStdString(name));
  }

  /// What handlers saw since last asked.
  std::string TakeNotes() { return std::exchange(dialog_->notes, {}); }

  QtPlatform platform_;
  std::shared_ptr<Kind> dialog_ = std::make_shared<Kind>(platform_);
};

using OnScreen = OnScreenOf<EveryKind>;

}  // namespace quorvel
