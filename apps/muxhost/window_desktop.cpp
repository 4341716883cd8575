#include "apps/muxhost/window_desktop.h"

#include <QApplication>
#include <QWidget>

namespace quorvel::muxhost {

bool OthersAreOpen(const QWidget* window) {
  for (const QWidget* const other : QApplication::topLevelWidgets()) {
    if (other != window && other->isVisible() && other->windowType() != Qt::ToolTip) return true;
  }
  return false;
}

bool IsLocked() { return QApplication::activeModalWidget() != nullptr; }

void CloseLockingWindows() {
  while (QWidget* const window = QApplication::activeModalWidget()) {
    if (!window->close()) return;
  }
}

}  // namespace quorvel::muxhost
