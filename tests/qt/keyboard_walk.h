#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <set>
#include <string>

#include "quorvel/widgets.h"

namespace quorvel {

/// A user who goes through a window with Tab, and with the arrow keys through options.
class KeyboardWalk {
 public:
  KeyboardWalk(const Dialog& dialog, QWidget& window) : dialog_(dialog), window_(window) {}

  /// The controls in sight that take input and that no key leads to, by name.
  std::string Unreached() {
    std::set<QWidget*> been;
    do {
      QTest::keyClick(&Focus(), Qt::Key_Tab);
      EXPECT_FALSE(Focus().visibleRegion().isEmpty()) << Focus().objectName().toStdString();
      Note();
      const auto* const option = dynamic_cast<const OptionButton*>(AtFocus());
      for (std::size_t i = 1; option != nullptr && i < option->GetGroup()->size(); ++i) {
        QTest::keyClick(&Focus(), Qt::Key_Down);
        Note();
      }
    } while (been.insert(&Focus()).second);
    std::string names;
    for (Widget* const widget : dialog_.Widgets()) {
      if (TakesInput(*widget) && !reached_.contains(widget)) names += widget->Name() + " ";
    }
    return names;
  }

 private:
  [[nodiscard]] QWidget& Focus() const {
    QWidget* const focus = window_.focusWidget();
    return focus == nullptr ? window_ : *focus;
  }
  /// The control that has the focus, be it in a part of its view.
  [[nodiscard]] const Widget* AtFocus() const {
    for (const QWidget* it = &Focus(); it != nullptr; it = it->parentWidget()) {
      const Widget* const found = dialog_.FindWidget(it->objectName().toStdString());
      if (found != nullptr) return found;
    }
    return nullptr;
  }
  void Note() { reached_.insert(AtFocus()); }
  static bool TakesInput(Widget& widget) {
    switch (widget.Kind()) {
      case WidgetKind::kLabel:
      case WidgetKind::kFrame:
      case WidgetKind::kProgressBar:
      case WidgetKind::kStatusBar: return false;
      default: return widget.Focus() == Answer::kDone;
    }
  }

  const Dialog& dialog_;
  QWidget& window_;
  std::set<const Widget*> reached_;
};

}  // namespace quorvel
