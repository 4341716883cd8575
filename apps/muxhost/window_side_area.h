#pragma once

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace quorvel::muxhost {

/// As wide as what it holds. On a low screen it scrolls, for which it keeps space free.
class SideArea : public QScrollArea {
 public:
  explicit SideArea(QWidget* side) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWidget(side);
  }
  [[nodiscard]] QSize sizeHint() const override {
    const int bar = verticalScrollBar()->sizeHint().width();
    return widget()->minimumSizeHint() + QSize(bar, 0);
  }

 protected:
  bool event(QEvent* event) override {
    const bool done = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return done;
  }
};

/// Fills the space there is; where that is too little for what it holds it scrolls.
class MainArea : public QScrollArea {
 public:
  explicit MainArea(QWidget* side) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(side);
  }
  [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
};

}  // namespace quorvel::muxhost
