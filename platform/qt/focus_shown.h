#pragma once

#include <QEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace quorvel::qt {

/// Draws the selection of a list or table that has not got the focus as that of a window in the
/// background.
class FocusDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->widget != nullptr && !option->widget->hasFocus()) {
      option->state &= ~QStyle::State_Active;
    }
  }
};

/// A list or table that shows whether it has the focus: by the colour of its selection, and by its
/// border.
template <class View>
class FocusShown : public View {
 public:
  explicit FocusShown(QWidget* parent) : View(parent) {
    View::setItemDelegate(new FocusDelegate(this));
    QPalette colours = View::palette();
    // Not every style has a colour of its own here.
    colours.setColor(QPalette::Inactive, QPalette::Highlight, QColor(200, 200, 200));
    colours.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    View::setPalette(colours);
  }

 protected:
  bool event(QEvent* event) override {
    const bool done = View::event(event);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) View::update();
    if (event->type() == QEvent::Paint && View::hasFocus()) {
      QPainter painter(this);
      painter.setPen(View::palette().color(QPalette::Active, QPalette::Highlight));
      painter.drawRect(View::rect().adjusted(0, 0, -1, -1));
    }
    return done;
  }
};

}  // namespace quorvel::qt
