#pragma once

#include <QHelpEvent>
#include <QObject>
#include <QToolTip>
#include <QWidget>
#include <functional>
#include <utility>

namespace quorvel::qt {

/// Shows what there is to know of a control when the mouse rests on it. The text is made only then.
class HelpTip : public QObject {
 public:
  /// It goes with `life`, whose text it shows; the control may live on for a while.
  HelpTip(QObject& life, QWidget& control, std::function<QString()> text)
      : QObject(&life), text_(std::move(text)) {
    control.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return QObject::eventFilter(watched, event);
    const QString text = text_();
    if (text.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text,
                       static_cast<QWidget*>(watched));
    return true;
  }

 private:
  std::function<QString()> text_;
};

}  // namespace quorvel::qt
