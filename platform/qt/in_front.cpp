#include "platform/qt/in_front.h"

#include <QWindow>

namespace quorvel::qt {

void KeepInFrontOf(QWidget& window, const QWidget* other) {
  if (other == nullptr || other->window() == &window) return;
  if (other->window()->windowHandle() == nullptr) return;
  window.winId();  // makes the native window, which has none before it is shown
  window.windowHandle()->setTransientParent(other->window()->windowHandle());
}

}  // namespace quorvel::qt
