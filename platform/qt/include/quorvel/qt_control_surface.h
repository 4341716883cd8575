#pragma once

#include <QWidget>

#include "quorvel/control_surface.h"
#include "quorvel/export.h"

namespace quorvel {

/// What a host with Qt 6 Widgets places in its window for a control: the surface's label. A click
/// and a double-click reach the control's events.
///
/// A host may destroy the control from one of them; it calls Detach before, and deletes the widget
/// with deleteLater.
class QUORVEL_QT_API ControlSurfaceWidget : public QWidget, private WidgetView {
 public:
  explicit ControlSurfaceWidget(ControlSurface& surface, QWidget* parent = nullptr);
  /// Detaches itself.
  ~ControlSurfaceWidget() override;

  /// Ends the tie to the surface, before the control is destroyed. The widget shows nothing then.
  void Detach();

  /// The extent that the control gives its surface, or the label's size when it gives none.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void Refresh(Aspect what) override;

  ControlSurface* surface_;
  bool pressed_ = false;
};

}  // namespace quorvel
