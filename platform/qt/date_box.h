#pragma once

#include <QCalendarWidget>
#include <QDate>
#include <QFrame>
#include <QToolButton>
#include <functional>
#include <memory>

#include "platform/qt/parts_box.h"

namespace quorvel::qt {

/// A calendar that pops up at a box. It is left with Escape, F4 or a click beside it, and goes when
/// a day is picked: with a click, or with Return on the day that the arrow keys have come to.
class CalendarPopup : public QFrame {
 public:
  explicit CalendarPopup(QWidget& box);
  std::function<void(const QDate&)> on_pick;

  void PopUp(const QDate& date);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QPoint Place() const;
  void Pick(const QDate& date);

  QCalendarWidget calendar_;
};

/// A box for a date. Its calendar opens with the button in it, F4, or Alt and the down arrow.
class DateBox : public PartsBox {
 public:
  explicit DateBox(QWidget& parent);
  /// A day was picked in the calendar, which is closed already.
  std::function<void(const QDate&)> on_pick;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void OpenCalendar();
  void CloseCalendar();

  QToolButton button_{this};
  std::unique_ptr<CalendarPopup> calendar_;  ///< made when it is first opened: it takes time
};

}  // namespace quorvel::qt
