#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "quorvel/qt_platform.h"
#include "tests/qt/sample_dialog.h"

namespace quorvel {

using Notes = std::vector<std::string>;

/// A sample dialog on screen, and the toolkit's widgets in it by what they tell screen readers or
/// by their names in the code.
class OnScreen : public testing::Test {
 protected:
  OnScreen() { Settle(); }
  ~OnScreen() override {
    dialog_.reset();
    Settle();
  }

  static void Settle() {
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Show() {
    dialog_->Show();
    Settle();
  }

  [[nodiscard]] QWidget& Window() const { return *platform_.WindowOf(*dialog_); }

  template <class QtWidget>
  [[nodiscard]] QtWidget& Body(const char* name) const {
    const QLatin1String wanted(name);
    for (QtWidget* const body : Window().findChildren<QtWidget*>()) {
      if (body->accessibleName() == wanted || body->objectName() == wanted) return *body;
    }
    throw std::invalid_argument(name);
  }

  QtPlatform platform_;
  std::shared_ptr<SampleDialog> dialog_ = std::make_shared<SampleDialog>(platform_);
};

}  // namespace quorvel
