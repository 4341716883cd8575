#include "own_platform.h"

#include <algorithm>
#include <array>
#include <ctime>

/// The part of a timer that the loop knows. The loop holds it while it ticks: the tick may destroy
/// the timer.
struct OwnPlatform::Ticking {
  std::function<void()> tick;
  int interval = 0;
  bool runs = false;
  TaskQueue::Clock::time_point due = {};

  [[nodiscard]] bool Waits() const { return runs && interval > 0; }
  void Begin() { due = TaskQueue::Clock::now() + std::chrono::milliseconds(interval); }
};

class OwnPlatform::RealTimer : public quorvel::Timer {
 public:
  explicit RealTimer(std::shared_ptr<Ticking> ticking) : ticking_(std::move(ticking)) {}
  ~RealTimer() override { ticking_->runs = false; }
  RealTimer(const RealTimer&) = delete;
  RealTimer& operator=(const RealTimer&) = delete;

  void SetInterval(int milliseconds) override {
    ticking_->interval = milliseconds;
    ticking_->Begin();
  }
  [[nodiscard]] int Interval() const override { return ticking_->interval; }
  void Start() override {
    ticking_->runs = true;
    ticking_->Begin();
  }
  void Stop() override { ticking_->runs = false; }

 private:
  std::shared_ptr<Ticking> ticking_;
};

std::unique_ptr<quorvel::Timer> OwnPlatform::NewTimer(std::function<void()> tick) {
  const auto ticking = std::make_shared<Ticking>(Ticking{std::move(tick)});
  timers_.push_back(ticking);
  return std::make_unique<RealTimer>(ticking);
}

std::shared_ptr<OwnPlatform::Ticking> OwnPlatform::NextTimer() {
  std::erase_if(timers_, [](const auto& timer) { return timer.expired(); });
  std::shared_ptr<Ticking> next;
  for (const auto& it : timers_) {
    const auto timer = it.lock();
    if (timer->Waits() && (next == nullptr || timer->due < next->due)) next = timer;
  }
  return next;
}

void OwnPlatform::RunUntil(const std::function<bool()>& done) {
  while (!done()) {
    const auto timer = NextTimer();
    const auto task = tasks_.Take(timer ? std::optional(timer->due) : std::nullopt);
    if (task) task();
    TickWhatIsDue();
  }
}

void OwnPlatform::TickWhatIsDue() {
  const auto timer = NextTimer();  // the task may have stopped the one before
  if (timer == nullptr || timer->due > TaskQueue::Clock::now()) return;
  timer->Begin();
  timer->tick();
}

void OwnPlatform::Show(quorvel::Dialog& /*dialog*/) {
  throw quorvel::PlatformError("a service has no screen");
}

void OwnPlatform::PopUp(std::shared_ptr<quorvel::PopupMenu> /*menu*/, int /*x*/, int /*y*/) {
  throw quorvel::PlatformError("a service has no screen");
}

bool OwnPlatform::Ask(const quorvel::Message& message) {
  constexpr std::array kKinds{"information", "warning", "question", "error"};
  std::string text = message.text;
  std::ranges::replace(text, '\r', ' ');
  out_ << kKinds.at(static_cast<std::size_t>(message.kind)) << ": " << text << '\n';
  return message.buttons == quorvel::Message::Buttons::kOk;  // nobody agrees to anything
}

void OwnPlatform::Log(quorvel::LogLevel level, std::string_view text) {
  constexpr std::array kLevels{"debug", "information", "warning", "error"};
  out_ << "log, " << kLevels.at(static_cast<std::size_t>(level)) << ": " << text << '\n';
}

quorvel::LocalTime OwnPlatform::Now() const {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm parts{};
#ifdef _WIN32
  localtime_s(&parts, &now);
#else
  localtime_r(&now, &parts);
#endif
  return {{1900 + parts.tm_year, 1 + parts.tm_mon, parts.tm_mday},
          {parts.tm_hour, parts.tm_min, std::min(parts.tm_sec, 59)}};  // a leap second is none here
}
