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
    if (option->widget == nullptr || option->widget->hasFocus()) return;
    option->state &= ~QStyle::State_Active;
    // Not every palette has a colour of its own for this.
    QPalette& colours = option->palette;
    const QColor text = colours.color(QPalette::Inactive, QPalette::Text);
    const QColor base = colours.color(QPalette::Inactive, QPalette::Base);
    colours.setColor(QPalette::Inactive, QPalette::Highlight, Between(base, text));
    colours.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
  }

 private:
  /// A colour not far from the first, towards the other.
  static QColor Between(const QColor& from, const QColor& to) {
    constexpr float kShare = 0.2F;
    const auto mixed = [](float a, float b) { return a + (b - a) * kShare; };
    return QColor::fromRgbF(mixed(from.redF(), to.redF()), mixed(from.greenF(), to.greenF()),
                            mixed(from.blueF(), to.blueF()));
  }
};

/// A list or table that shows whether it has the focus: by the colour of its selection, and by its
/// border.
template <class View>
class FocusShown : public View {
 public:
  explicit FocusShown(QWidget* parent) : View(parent) {
    View::setItemDelegate(new FocusDelegate(this));
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
