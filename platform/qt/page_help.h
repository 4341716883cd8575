#pragma once

#include <QString>
#include <QWidget>

namespace quorvel::qt {

/// Shows what there is to know of the page in front, over its window and until it is closed.
void ShowPageHelp(QWidget& window, const QString& title, const QString& help);

}  // namespace quorvel::qt
