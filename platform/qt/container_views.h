#pragma once

#include <QGroupBox>
#include <QTabWidget>
#include <vector>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/layout.h"

namespace quorvel::qt {

class ViewBuilder;

/// A captioned border around a group of controls.
class FrameView : public ViewOf<Frame, QGroupBox> {
 public:
  FrameView(ViewBuilder& builder, Frame& model, QWidget& parent);

 private:
  void Draw(Aspect what) override;
};

/// The toolkit's tabs, wide enough to show every tab.
class WideTabs : public QTabWidget {
 public:
  explicit WideTabs(QWidget& parent) : QTabWidget(&parent) {}
  [[nodiscard]] QSize sizeHint() const override;
};

/// Pages behind one another.
class TabStripView : public ViewOf<TabStrip, WideTabs> {
 public:
  TabStripView(ViewBuilder& builder, TabStrip& model, QWidget& parent);

 private:
  void Draw(Aspect what) override;
};

}  // namespace quorvel::qt
