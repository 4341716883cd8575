#include "platform/qt/qt_timer.h"

#include <QTimer>

namespace quorvel::qt {

namespace {

class QtTimer : public Timer {
 public:
  explicit QtTimer(std::function<void()> tick) : timer_(new QTimer) {
    timer_->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer_, &QTimer::timeout, timer_,
                     [tick = std::move(tick), ticking = ticking_] {
                       ++*ticking;
                       tick();
                       --*ticking;
                     });
  }
  /// When a tick is what destroys the timer, the tick's sender goes a turn later.
  ~QtTimer() override {
    timer_->stop();
    if (*ticking_ > 0) {
      timer_->deleteLater();
    } else {
      delete timer_;
    }
  }
  QtTimer(const QtTimer&) = delete;
  QtTimer& operator=(const QtTimer&) = delete;

  void SetInterval(int milliseconds) override {
    interval_ = milliseconds;
    if (running_) Start();
  }
  [[nodiscard]] int Interval() const override { return interval_; }
  void Start() override {
    running_ = true;
    if (interval_ > 0) {
      timer_->start(interval_);
    } else {
      timer_->stop();
    }
  }
  void Stop() override {
    running_ = false;
    timer_->stop();
  }

 private:
  QTimer* const timer_;
  std::shared_ptr<int> ticking_ = std::make_shared<int>(0);
  int interval_ = 0;
  bool running_ = false;
};

}  // namespace

std::unique_ptr<Timer> MakeTimer(std::function<void()> tick) {
  return std::make_unique<QtTimer>(std::move(tick));
}

}  // namespace quorvel::qt
