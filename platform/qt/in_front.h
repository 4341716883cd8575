#pragma once

#include <QWidget>

namespace quorvel::qt {

/// Keeps a window in front of another one without being its child: the other one may end first.
void KeepInFrontOf(QWidget& window, const QWidget* other);

}  // namespace quorvel::qt
