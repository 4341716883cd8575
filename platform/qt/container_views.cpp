#include "platform/qt/container_views.h"

#include <QPainter>
#include <QTabBar>
#include <algorithm>

#include "platform/qt/fitted_scroll_area.h"
#include "platform/qt/view_builder.h"

namespace quorvel::qt {

void GroupBox::ShowCaption(const QString& caption) {
  setTitle(caption);
  Trim();
  updateGeometry();
}

void GroupBox::Trim() {
  if (layout() == nullptr) return;
  if (title().isEmpty()) {
    setContentsMargins(0, 0, 0, 0);
    layout()->setContentsMargins(0, 0, 0, 0);
  } else {
    layout()->unsetContentsMargins();
  }
}

QSize GroupBox::sizeHint() const {
  return title().isEmpty() ? QWidget::sizeHint() : QGroupBox::sizeHint();
}

QSize GroupBox::minimumSizeHint() const {
  return title().isEmpty() ? QWidget::minimumSizeHint() : QGroupBox::minimumSizeHint();
}

void GroupBox::paintEvent(QPaintEvent* event) {
  if (!title().isEmpty()) QGroupBox::paintEvent(event);
}

void GroupBox::resizeEvent(QResizeEvent* event) {
  QGroupBox::resizeEvent(event);
  Trim();
}

void GroupBox::changeEvent(QEvent* event) {
  QGroupBox::changeEvent(event);
  Trim();
}

FrameView::FrameView(ViewBuilder& builder, Frame& model, QWidget& parent)
    : ViewOf(builder.Verbs(), model, new GroupBox(parent)) {
  builder.Build(model.Content(), *GetBody());
  DrawAll();
}

void FrameView::Draw(Aspect) {
  const QString caption = Captioned(GetModel()->Caption());
  // Lines in a border without a caption stand as high as those beside them, whose frames have one.
  const bool empty = caption.isEmpty() && GetModel()->HasBorder();
  GetBody()->ShowCaption(empty ? QStringLiteral(" ") : caption);
}

void MarkedTabBar::Mark(int tab, bool marked) {
  if (tabData(tab).toBool() == marked) return;
  setTabData(tab, marked);
  setAccessibleTabName(tab, marked ? tabText(tab) + QStringLiteral(" *") : QString());
  update();
}

void MarkedTabBar::paintEvent(QPaintEvent* event) {
  QTabBar::paintEvent(event);
  QPainter painter(this);
  for (int tab = 0; tab < count(); ++tab) {
    if (!tabData(tab).toBool() || !isTabVisible(tab)) continue;
    DrawChangeCorner(painter, tabRect(tab).adjusted(3, 3, 0, 0),
                     palette().color(QPalette::WindowText));
  }
}

WideTabs::WideTabs(QWidget& parent) : QTabWidget(&parent), bar_(new MarkedTabBar(this)) {
  bar_->setObjectName("qt_tabwidget_tabbar");  // as the toolkit names its own
  setTabBar(bar_);
}

QSize WideTabs::sizeHint() const {
  constexpr int kEnds = 8;
  return QTabWidget::sizeHint().expandedTo({tabBar()->sizeHint().width() + kEnds, 0});
}

TabStripView::TabStripView(ViewBuilder& builder, TabStrip& model, QWidget& parent)
    : ViewOf(builder.Verbs(), model, new WideTabs(parent)) {
  GetBody()->setElideMode(Qt::ElideNone);
  for (const Page& page : model.Pages()) {
    auto* const area = new FittedScrollArea(*GetBody());
    builder.Build(page.content, *area->widget());
    GetBody()->addTab(area, QString());
  }
  QObject::connect(GetBody(), &QTabWidget::currentChanged, Context(),
                   [this](int page) { Act([page](TabStrip& tabs) { tabs.Choose(page); }); });
  DrawAll();
}

void TabStripView::Draw(Aspect) {
  WideTabs& tabs = *GetBody();
  const int pages = std::min(GetModel()->Count(), tabs.count());
  for (int i = 0; i < pages; ++i) {
    const Page& page = GetModel()->Pages()[static_cast<std::size_t>(i)];
    if (tabs.tabText(i) != Captioned(page.caption)) tabs.setTabText(i, Captioned(page.caption));
    tabs.setTabVisible(i, page.visible);
    tabs.Mark(i, page.changed);
    tabs.setTabEnabled(i, page.visible);  // Ctrl+Tab would reach a tab that is only hidden
    tabs.widget(i)->setAccessibleName(Shown(page.caption));
    // A hidden page does not make the window larger.
    const auto policy = page.visible ? QSizePolicy::Expanding : QSizePolicy::Ignored;
    tabs.widget(i)->setSizePolicy(policy, policy);
  }
  tabs.setCurrentIndex(GetModel()->Current());
}

}  // namespace quorvel::qt
