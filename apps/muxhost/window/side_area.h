#pragma once

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace quorvel::muxhost {

/// As wide as what it holds. On a low screen it scrolls, for which it keeps space free. The wheel
/// turns a box in it only when that has the focus: what is scrolled must not change on the way.
class SideArea : public QScrollArea {
 public:
  explicit SideArea(QWidget* side) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWidget(side);
    for (QWidget* const box : side->findChildren<QWidget*>()) {
      if (qobject_cast<QComboBox*>(box) == nullptr &&
          qobject_cast<QAbstractSpinBox*>(box) == nullptr) {
        continue;
      }
      box->setFocusPolicy(Qt::StrongFocus);
      box->installEventFilter(this);
    }
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
  bool eventFilter(QObject* object, QEvent* event) override {
    const auto* const box = qobject_cast<const QWidget*>(object);
    if (event->type() != QEvent::Wheel || box == nullptr || box->hasFocus()) {
      return QScrollArea::eventFilter(object, event);
    }
    event->ignore();
    return true;
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
