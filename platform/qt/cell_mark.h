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

/// A bar at the left of a control that the user has changed, beside the control like the frame, so
/// that both can be seen.
class ChangeBar : public QFocusFrame {
 public:
  explicit ChangeBar(QWidget& control) : QFocusFrame(control.parentWidget()) {
    setWidget(&control);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    constexpr int kWidth = 3;
    QPainter painter(this);
    painter.fillRect(0, 0, kWidth, height(), palette().brush(QPalette::WindowText));
  }
};

/// A filled corner at the upper left of a cell or tab that holds a change.
inline void DrawChangeCorner(QPainter& painter, const QRect& place, const QColor& colour) {
  constexpr int kSize = 6;
  const QPoint corner = place.topLeft();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(QPolygon({corner, corner + QPoint(kSize, 0), corner + QPoint(0, kSize)}));
  painter.restore();
}

}  // namespace quorvel::qt
