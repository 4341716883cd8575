#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <iostream>
#include <memory>
#include <string_view>
#include <vector>

#include "quorvel/qt_platform.h"
#include "tests/qt/drawn_as_told.h"
#include "tests/qt/on_screen.h"
#include "tests/qt/random_changes.h"
#include "ui/widget_page/widget_page.h"

namespace quorvel::muxhost {
namespace {

/// A platform on which a failure that the component tells about is found, and not asked about.
class FaultFinder : public QtPlatform {
 public:
  bool Ask(const Message& message) override {
    fault = message.text;
    return true;
  }
  std::string fault;
};

/// Somebody who clicks, types and turns the wheel at random, on a window of every kind of control
/// whose handlers change it, close it, destroy it, and open others over it.
class RandomUser {
 public:
  explicit RandomUser(unsigned seed) : random_(seed) {}

  /// Acts so many times, then takes all fingers off. The window is on screen afterwards.
  void Act(int times) {
    left_ = times;
    Reopen();
    QEventLoop loop;
    end_ = [&loop] { loop.quit(); };
    ActWhile([&loop] { loop.exec(); });
    while (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
    Reopen();
    for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
      QTest::mouseRelease(Window().windowHandle(), button, {}, QPoint(1, 1));
    }
    Window().activateWindow();
    QApplication::processEvents();
    if (QWidget* const focus = Window().focusWidget()) focus->clearFocus();
    Reopen();
    QApplication::processEvents();
  }

  /// What has failed, or is drawn otherwise than its model tells; empty when nothing is.
  [[nodiscard]] std::string FirstFault() {
    if (!platform_.fault.empty()) return platform_.fault;
    return DrawnAsTold::FirstDifference(Window(), *page_);
  }

  /// User verbs that were not refused.
  [[nodiscard]] int Verbs() const { return verbs_; }

 private:
  [[nodiscard]] QWidget& Window() { return *platform_.WindowOf(*page_); }

  void Reopen() {
    if (page_ == nullptr) {
      page_ = std::make_shared<WidgetPage>(platform_);
      for (Widget* const widget : page_->Widgets()) {
        for (Handler* const handler : HandlersOf(*widget)) {
          *handler = [this, usual = *handler] {
            ++verbs_;
            if (usual) usual();
            if (left_ > 0) Disturb();
          };
        }
      }
    }
    page_->Show();
  }

  /// Acts at every turn of a loop, until it returns. Each loop has a timer of its own: one that has
  /// not returned does not tick again.
  void ActWhile(const std::function<void()>& runs_a_loop) {
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, &turns, [this] { Turn(); });
    turns.start(0);
    ++loops_;
    runs_a_loop();
    --loops_;
  }

  void Turn() {
    QWidget* const window = Target();
    if (left_ <= 0) {
      if (loops_ == 1) return end_();
      if (window != nullptr) window->close();
      return;
    }
    --left_;
    if (window == nullptr || page_ == nullptr) return Reopen();
    if (QApplication::activePopupWidget() == nullptr) window->activateWindow();
    if (random_.OneIn(20)) {  // hidden or disabled pages leave a person nothing to do
      page_->pages.SetVisible(true);
      page_->pages.SetEnabled(true);
    }
    switch (random_.Any(12)) {
      case 0: return window->resize(100 + random_.Any(900), 80 + random_.Any(600));
      case 1: return random_.Change(*random_.AnyOf(page_->Widgets()));
      case 2: return page_->pages.SetCurrent(random_.Any(page_->pages.Pages().size()));
      case 3: return UseWheel(*window);
      case 4:
      case 5:
      case 6: return UseKeys(*window->windowHandle());
      // A right click may open a menu that runs a loop.
      case 7: return ActWhile([this, window] { UseMouse(*window, Qt::RightButton); });
      default: return UseMouse(*window, Qt::LeftButton);
    }
  }

  /// Where a person can act at the moment.
  [[nodiscard]] QWidget* Target() const {
    if (QWidget* const popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
    return page_ == nullptr ? nullptr : platform_.WindowOf(*page_);
  }

  /// Mostly on a control: the space between them does nothing.
  [[nodiscard]] QPoint AnyPlace(QWidget& window) {
    const auto children = window.findChildren<QWidget*>();
    QWidget* on = &window;
    if (!children.isEmpty() && !random_.OneIn(4)) on = children.at(random_.Any(children.size()));
    if (!on->isVisible()) on = &window;
    const auto along = [this](int length) { return random_.Any(std::max(length, 1)); };
    return on->mapTo(&window, QPoint(along(on->width()), along(on->height())));
  }

  void UseMouse(QWidget& window, Qt::MouseButton button) {
    QWindow* const handle = window.windowHandle();
    const auto modifiers = random_.OneIn(6) ? Qt::ShiftModifier : Qt::NoModifier;
    const QPoint place = AnyPlace(window);
    switch (random_.Any(6)) {
      case 0: return QTest::mousePress(handle, button, modifiers, place);
      case 1: return QTest::mouseMove(handle, place);
      case 2: return QTest::mouseRelease(handle, button, modifiers, place);
      case 3: return QTest::mouseDClick(handle, button, modifiers, place);
      default: return QTest::mouseClick(handle, button, modifiers, place);
    }
  }

  void UseWheel(QWidget& window) {
    const QPoint place = AnyPlace(window);
    QWidget* const child = window.childAt(place);
    QWidget& on = child == nullptr ? window : *child;
    TurnWheel(on, on.mapFrom(&window, place), {0, random_.OneIn(2) ? 120 : -120});
  }

  void UseKeys(QWindow& window) {
    static constexpr std::string_view kTyped = "0123456789:- aMx";
    static constexpr Qt::Key kPlain[] = {
        Qt::Key_Tab,    Qt::Key_Tab,       Qt::Key_Tab,   Qt::Key_Up,     Qt::Key_Down,
        Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,  Qt::Key_F4,     Qt::Key_PageDown,
        Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_Return, Qt::Key_Delete};
    static constexpr Qt::Key kShift[] = {Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Down, Qt::Key_Shift};
    static constexpr Qt::Key kControl[] = {Qt::Key_Tab, Qt::Key_End, Qt::Key_Return, Qt::Key_C,
                                           Qt::Key_V,   Qt::Key_A,   Qt::Key_Z};
    switch (random_.Any(6)) {
      case 0:
      case 1: return QTest::keyClick(&window, random_.AnyOf(kTyped));
      case 2: return QTest::keyClick(&window, random_.AnyOf(kShift), Qt::ShiftModifier);
      case 3: return QTest::keyClick(&window, random_.AnyOf(kControl), Qt::ControlModifier);
      default: return QTest::keyClick(&window, random_.AnyOf(kPlain));
    }
  }

  /// What handlers do besides.
  void Disturb() {
    if (page_ == nullptr) return;
    switch (random_.Any(200)) {
      case 0:
      case 1: return page_->Close();
      case 2: return page_.reset();
      case 3: return page_->SetLayout(Layout(page_->Contents()));
      case 4:
        if (loops_ > 2) return;
        return ActWhile([this] {
          (void)platform_.QtPlatform::Ask(
              {"R&D <b>question</b>", "Widgets", Message::Buttons::kOkCancel});
        });
      case 5:
        if (over_ != nullptr) return;
        over_ = std::make_shared<WidgetPage>(platform_);
        ActWhile([this] { over_->ShowModal(); });
        return over_.reset();
      default:
        if (random_.OneIn(4)) random_.Change(*random_.AnyOf(page_->Widgets()));
    }
  }

  RandomChanges random_;
  FaultFinder platform_;
  std::shared_ptr<WidgetPage> page_;
  std::shared_ptr<WidgetPage> over_;  ///< modal, over the page
  std::function<void()> end_;
  int verbs_ = 0;
  int left_ = 0;
  int loops_ = 0;
};

/// Another seed than the usual one is taken from QUORVEL_SEED.
TEST(QtRandomUser, TenThousandActionsLeaveEveryViewAsItsModelTells) {
  constexpr unsigned kUsualSeed = 20240229;
  constexpr int kActions = 10000;
  constexpr int kBetweenLooks = 1000;
  bool stated = false;
  const auto seed = static_cast<unsigned>(qEnvironmentVariableIntValue("QUORVEL_SEED", &stated));
  std::cout << "seed " << (stated ? seed : kUsualSeed) << std::endl;
  RandomUser user(stated ? seed : kUsualSeed);
  for (int done = 0; done < kActions; done += kBetweenLooks) {
    user.Act(kBetweenLooks);
    ASSERT_EQ(user.FirstFault(), "") << "after " << done + kBetweenLooks << " actions";
  }
  std::cout << user.Verbs() << " verbs" << std::endl;
  EXPECT_GT(user.Verbs(), kActions / 20) << "little of it reached a control";
}

}  // namespace
}  // namespace quorvel::muxhost
