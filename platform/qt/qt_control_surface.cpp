#include "quorvel/qt_control_surface.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <utility>

#include "platform/qt/looks.h"
#include "platform/qt/texts.h"

namespace quorvel {

ControlSurfaceWidget::ControlSurfaceWidget(ControlSurface& surface, QWidget* parent)
    : QWidget(parent), surface_(&surface) {
  surface.AttachView(this);
  ControlSurfaceWidget::Refresh(Aspect::kState);
}

ControlSurfaceWidget::~ControlSurfaceWidget() { Detach(); }

void ControlSurfaceWidget::Detach() {
  if (surface_ == nullptr) return;
  surface_->AttachView(nullptr);
  surface_ = nullptr;
  update();
}

void ControlSurfaceWidget::Refresh(Aspect) {
  setFont(qt::ToQt(surface_->LabelFont()));
  setEnabled(surface_->Enabled());
  setAccessibleName(qt::Shown(surface_->Label1()));
  updateGeometry();
  update();
}

QSize ControlSurfaceWidget::sizeHint() const {
  if (surface_ == nullptr) return {};
  const Size extent = surface_->Extent();
  const QSize label = fontMetrics().size(Qt::TextSingleLine, qt::Shown(surface_->Label1()));
  return extent.width > 0 && extent.height > 0 ? QSize(extent.width, extent.height) : label;
}

void ControlSurfaceWidget::paintEvent(QPaintEvent*) {
  if (surface_ == nullptr) return;
  QPainter painter(this);
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.setPen(palette().color(group, QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, qt::Shown(surface_->Label1()));
}

void ControlSurfaceWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed_ = true;
}

void ControlSurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
  const bool inside = rect().contains(event->position().toPoint());
  if (inside && surface_ != nullptr) surface_->Click();
}

void ControlSurfaceWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  // The second release of a double-click is no click of its own.
  if (event->button() == Qt::LeftButton && surface_ != nullptr) surface_->DoubleClick();
}

}  // namespace quorvel
