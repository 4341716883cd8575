#include "muxhost/window/send_choice.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace quorvel::muxhost {

namespace {

void Tick(const QObject& dialog, const char* name) {
  auto* const button = dialog.findChild<QAbstractButton*>(name);
  if (button != nullptr && !button->isChecked()) button->click();
}

bool IsTicked(const QWidget& dialog, const char* name) {
  const auto* const button = dialog.findChild<QAbstractButton*>(name);
  return button != nullptr && button->isChecked();
}

/// A press of START, with the mouse or a key, that it would take.
bool StartsSending(const QWidget& pressed, const QEvent& event) {
  // Other events come also while the window is destroyed: it must not be looked through then.
  if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::KeyPress) return false;
  const auto* const start = pressed.window()->findChild<QAbstractButton*>("cmdOK");
  if (start == nullptr || !start->isEnabled() || !start->isVisible()) return false;
  if (event.type() == QEvent::MouseButtonPress) return &pressed == start;
  const int key = static_cast<const QKeyEvent&>(event).key();
  const bool button = qobject_cast<const QAbstractButton*>(&pressed) != nullptr;
  if (key == Qt::Key_Space) return &pressed == start;
  return (key == Qt::Key_Return || key == Qt::Key_Enter) && (&pressed == start || !button);
}

}  // namespace

SendChoice::SendChoice(bool all, bool macros) : all_(all), macros_(macros) {
  qApp->installEventFilter(this);
}

bool SendChoice::MaySend(const QWidget& dialog) {
  const bool all = IsTicked(dialog, "optBlk(0)");
  const bool macros = IsTicked(dialog, "chkMacro(0)");
  if ((!all || all_) && (!macros || macros_)) return true;
  if (may_send && !may_send(all, macros)) return false;
  all_ = all;
  macros_ = macros;
  return true;
}

bool SendChoice::eventFilter(QObject* object, QEvent* event) {
  const auto* const widget = qobject_cast<QWidget*>(object);
  if (widget != nullptr && widget->window()->objectName() == "frm_ToMux" &&
      StartsSending(*widget, *event) && !MaySend(*widget->window())) {
    return true;
  }
  if (!made_ && event->type() == QEvent::Show && object->objectName() == "frm_ToMux") {
    made_ = true;
    Tick(*object, all_ ? "optBlk(0)" : "optBlk(1)");
    if (macros_) Tick(*object, "chkMacro(0)");
  }
  return false;
}

}  // namespace quorvel::muxhost
