#include "platform/qt/date_box.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QStyle>
#include <QTextCharFormat>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/texts.h"

namespace quorvel::qt {

CalendarPopup::CalendarPopup(QWidget& box) : QFrame(&box, Qt::Popup) {
  setFrameStyle(StyledPanel | Plain);
  setAttribute(Qt::WA_NoMouseReplay);  // the click that closes it on its button opens no other
  auto* const around = new QVBoxLayout(this);
  around->setContentsMargins(0, 0, 0, 0);
  around->addWidget(&calendar_);
  calendar_.setDateRange({1, 1, 1}, {9999, 12, 31});
  calendar_.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar_.setDateEditEnabled(false);  // dates are typed into the box
  // The toolkit's red is hard to read on a dark ground.
  for (const auto day : {Qt::Saturday, Qt::Sunday}) calendar_.setWeekdayTextFormat(day, {});
  // By itself the button would run a loop while its menu is up, in which the window could go.
  auto* const month = calendar_.findChild<QToolButton*>("qt_calendar_monthbutton");
  if (QMenu* const months = month == nullptr ? nullptr : month->menu()) {
    month->setMenu(nullptr);
    QObject::connect(month, &QToolButton::clicked, months, [month, months] {
      months->popup(month->mapToGlobal(month->rect().bottomLeft()));
    });
  }
  const auto pick = [this](const QDate& date) { Pick(date); };
  QObject::connect(&calendar_, &QCalendarWidget::clicked, this, pick);
  QObject::connect(&calendar_, &QCalendarWidget::activated, this, pick);
}

void CalendarPopup::PopUp(const QDate& date) {
  calendar_.setSelectedDate(date);
  adjustSize();
  move(Place());
  show();
  calendar_.setFocus(Qt::PopupFocusReason);
}

/// Below the box, or above it where the screen ends.
QPoint CalendarPopup::Place() const {
  const QWidget& box = *parentWidget();
  const QRect space = box.screen()->availableGeometry();
  QRect place(box.mapToGlobal(QPoint(0, box.height())), size());
  if (place.bottom() > space.bottom()) place.moveBottom(box.mapToGlobal(QPoint()).y() - 1);
  place.moveRight(std::min(place.right(), space.right()));
  return {std::max(place.left(), space.left()), std::max(place.top(), space.top())};
}

void CalendarPopup::Pick(const QDate& date) {
  if (!isVisible()) return;  // a double-click picks with its first click
  close();
  on_pick(date);
}

void CalendarPopup::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F4) {
    close();
  } else {
    QFrame::keyPressEvent(event);
  }
}

DateBox::DateBox(QWidget& parent) : PartsBox(parent) {
  setButtonSymbols(NoButtons);
  button_.setArrowType(Qt::DownArrow);
  button_.setAutoRaise(true);
  button_.setFocusPolicy(Qt::NoFocus);
  button_.setCursor(Qt::ArrowCursor);
  button_.setAccessibleName(Tr("Calendar"));
  const int width = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2;
  lineEdit()->setTextMargins(0, 0, width, 0);
  QObject::connect(&button_, &QToolButton::pressed, this, [this] { OpenCalendar(); });
}

void DateBox::OpenCalendar() {
  if (calendar_ != nullptr && calendar_->isVisible()) return;
  setFocus(Qt::PopupFocusReason);
  Take(false);
  if (!isVisible() || !isEnabled()) return;  // what was typed made the window go
  if (calendar_ == nullptr) {
    calendar_ = std::make_unique<CalendarPopup>(*this);
    calendar_->on_pick = [this](const QDate& date) { on_pick(date); };
  }
  const QDate shown = QDate::fromString(lineEdit()->text(), Qt::ISODate);
  calendar_->PopUp(shown.isValid() ? shown : QDate::currentDate());
}

void DateBox::CloseCalendar() {
  if (calendar_ != nullptr) calendar_->close();
}

void DateBox::keyPressEvent(QKeyEvent* event) {
  const bool alt = (event->modifiers() & Qt::AltModifier) != 0;
  if (event->key() == Qt::Key_F4 || (alt && event->key() == Qt::Key_Down)) {
    OpenCalendar();
  } else {
    PartsBox::keyPressEvent(event);
  }
}

void DateBox::resizeEvent(QResizeEvent* event) {
  PartsBox::resizeEvent(event);
  const int width = lineEdit()->textMargins().right();
  button_.setGeometry(this->width() - width - 1, 1, width, height() - 2);
}

void DateBox::hideEvent(QHideEvent* event) {
  PartsBox::hideEvent(event);
  CloseCalendar();
}

void DateBox::changeEvent(QEvent* event) {
  PartsBox::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled()) CloseCalendar();
}

}  // namespace quorvel::qt
