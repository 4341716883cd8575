#include "muxhost/window/desktop.h"

#include <QApplication>
#include <QWidget>

namespace quorvel::muxhost {

namespace {

/// The list of one of the window's boxes, or the menu of a field. The configuration menu has no
/// parent.
bool IsPopupOf(const QWidget* window, const QWidget* other) {
  const QWidget* const parent = other->parentWidget();
  return other->windowType() == Qt::Popup && parent != nullptr && parent->window() == window;
}

}  // namespace

bool OthersAreOpen(const QWidget* window) {
  for (const QWidget* const other : QApplication::topLevelWidgets()) {
    if (other == window || !other->isVisible() || other->windowType() == Qt::ToolTip) continue;
    if (!IsPopupOf(window, other)) return true;
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
