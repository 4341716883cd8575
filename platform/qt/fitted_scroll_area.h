#pragma once

#include <QEvent>
#include <QScrollArea>

namespace quorvel::qt {

/// Shows its content whole where there is space, and scrolls it where a small screen leaves too
/// little. Without a border or background of its own, it is not to be seen until it scrolls.
class FittedScrollArea : public QScrollArea {
 public:
  explicit FittedScrollArea(QWidget& parent) : QScrollArea(&parent) {
    auto* const content = new QWidget;
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
  }
  [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    return widget()->minimumSizeHint().boundedTo({200, 120});
  }

 protected:
  /// The window around follows when the content needs more space, as when a control is shown.
  bool event(QEvent* event) override {
    const bool done = QScrollArea::event(event);
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return done;
  }
};

}  // namespace quorvel::qt
