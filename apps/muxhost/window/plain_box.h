#pragma once

#include <QMessageBox>

namespace quorvel::muxhost {

/// A message box whose text may hold names of files and devices: nothing in it is markup.
class PlainBox : public QMessageBox {
 public:
  PlainBox(Icon icon, const QString& text, StandardButtons buttons, QWidget* over)
      : QMessageBox(icon, over->windowTitle(), text, buttons, over) {
    setTextFormat(Qt::PlainText);
  }
};

}  // namespace quorvel::muxhost
