#pragma once

#include <QGroupBox>
#include <QTabWidget>
#include <vector>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/layout.h"

namespace quorvel::qt {

class ViewBuilder;

/// A captioned border around a group of controls. A single line without a caption has no border.
class GroupBox : public QGroupBox {
 public:
  explicit GroupBox(QWidget& parent) : QGroupBox(&parent) {}
  void ShowCaption(const QString& caption);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Trim();
};

class FrameView : public ViewOf<Frame, GroupBox> {
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
