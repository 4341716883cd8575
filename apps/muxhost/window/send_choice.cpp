#include "apps/muxhost/window/send_choice.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace quorvel::muxhost {

namespace {

void Tick(const QObject& dialog, const char* name) {
  auto* const button = dialog.findChild<QAbstractButton*>(name);
  if (button != nullptr && !button->isChecked()) button->click();
}

}  // namespace

SendChoice::SendChoice(bool all, bool macros) : all_(all), macros_(macros) {
  qApp->installEventFilter(this);
}

bool SendChoice::eventFilter(QObject* object, QEvent* event) {
  if (!made_ && event->type() == QEvent::Show && object->objectName() == "frm_ToMux") {
    made_ = true;
    Tick(*object, all_ ? "optBlk(0)" : "optBlk(1)");
    if (macros_) Tick(*object, "chkMacro(0)");
  }
  return false;
}

}  // namespace quorvel::muxhost
