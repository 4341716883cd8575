#include "muxhost/window/interruption.h"

#include <QAbstractButton>
#include <QApplication>

namespace quorvel::muxhost {

bool Interrupt(const Interruption& what) {
  QWidget* const dialog = QApplication::activeModalWidget();
  if (dialog == nullptr || dialog->objectName() != what.window) return false;
  if (what.button == nullptr) return dialog->close();
  auto* const button = dialog->findChild<QAbstractButton*>(what.button);
  if (button == nullptr || !button->isVisible() || !button->isEnabled()) return false;
  button->click();
  return true;
}

}  // namespace quorvel::muxhost
