#pragma once

#include <QGroupBox>
#include <QTabBar>
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

/// The toolkit's tabs; those of pages that hold a change have a filled corner.
class MarkedTabBar : public QTabBar {
 public:
  using QTabBar::QTabBar;
  void Mark(int tab, bool marked);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The toolkit's tabs and pages, wide enough to show every tab.
class WideTabs : public QTabWidget {
 public:
  explicit WideTabs(QWidget& parent);
  [[nodiscard]] QSize sizeHint() const override;
  void Mark(int page, bool marked) { bar_->Mark(page, marked); }

 private:
  MarkedTabBar* const bar_;
};

/// Pages behind one another.
class TabStripView : public ViewOf<TabStrip, WideTabs> {
 public:
  TabStripView(ViewBuilder& builder, TabStrip& model, QWidget& parent);

 private:
  void Draw(Aspect what) override;
};

}  // namespace quorvel::qt
