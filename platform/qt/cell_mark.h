#pragma once

#include <QFocusFrame>
#include <QPainter>

namespace quorvel::qt {

/// A frame around the control that edits the current cell of a grid. It stands outside the control
/// and takes no space.
class CellMark : public QFocusFrame {
 public:
  explicit CellMark(QWidget& control) : QFocusFrame(control.parentWidget()) { setWidget(&control); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr int kWidth = 2;
    QPainter painter(this);
    const QBrush colour = palette().brush(QPalette::Active, QPalette::Highlight);
    painter.fillRect(0, 0, width(), kWidth, colour);
    painter.fillRect(0, height() - kWidth, width(), kWidth, colour);
    painter.fillRect(0, 0, kWidth, height(), colour);
    painter.fillRect(width() - kWidth, 0, kWidth, height(), colour);
  }
};

}  // namespace quorvel::qt
