#include "quorvel/headless_platform.h"

#include <algorithm>
#include <chrono>
#include <limits>

#include "quorvel/code_page.h"
#include "quorvel/whole_files.h"

namespace quorvel {

namespace {

constexpr int kTooManyTurns = 1'000'000;
constexpr std::size_t kMostLogLines = 1000;  // a host may run for years and never take them
constexpr std::int64_t kEndOfTime = std::numeric_limits<std::int64_t>::max();

}  // namespace

struct HeadlessPlatform::TimerState {
  HeadlessPlatform& platform;
  std::function<void()> tick;
  int interval = 0;
  std::optional<Turn> due = {};  ///< nothing while it stands

  void Schedule() {
    due.reset();
    if (interval > 0) due = platform.NewTurn(interval);
  }
};

class HeadlessPlatform::VirtualTimer : public Timer {
 public:
  explicit VirtualTimer(std::shared_ptr<TimerState> state) : state_(std::move(state)) {}
  ~VirtualTimer() override { Stop(); }
  VirtualTimer(const VirtualTimer&) = delete;
  VirtualTimer& operator=(const VirtualTimer&) = delete;

  void SetInterval(int milliseconds) override {
    state_->interval = milliseconds;
    if (running_) state_->Schedule();
  }
  [[nodiscard]] int Interval() const override { return state_->interval; }
  void Start() override {
    running_ = true;
    state_->Schedule();
  }
  void Stop() override {
    running_ = false;
    state_->due.reset();
  }

 private:
  std::shared_ptr<TimerState> state_;
  bool running_ = false;
};

HeadlessPlatform::HeadlessPlatform() = default;
HeadlessPlatform::~HeadlessPlatform() = default;

HeadlessPlatform::Turn HeadlessPlatform::NewTurn(int milliseconds) {
  return {now_ + std::max(milliseconds, 0), ++turns_};
}

void HeadlessPlatform::PostIn(int milliseconds, std::function<void()> task) {
  tasks_.emplace(NewTurn(milliseconds), std::move(task));
}

std::shared_ptr<HeadlessPlatform::TimerState> HeadlessPlatform::FirstTimer() const {
  std::shared_ptr<TimerState> timer;
  for (const auto& it : timers_) {
    if (it->due && (timer == nullptr || *it->due < *timer->due)) timer = it;
  }
  return timer;
}

std::optional<std::int64_t> HeadlessPlatform::NextDue() const {
  const auto timer = FirstTimer();
  if (timer == nullptr && tasks_.empty()) return std::nullopt;
  if (timer == nullptr) return tasks_.begin()->first.first;
  if (tasks_.empty()) return timer->due->first;
  return std::min(tasks_.begin()->first.first, timer->due->first);
}

bool HeadlessPlatform::RunNext(std::int64_t limit) {
  const std::shared_ptr<TimerState> timer = FirstTimer();
  const bool is_task = !tasks_.empty() && (timer == nullptr || tasks_.begin()->first < *timer->due);
  if (!is_task && timer == nullptr) return false;
  const std::int64_t due = is_task ? tasks_.begin()->first.first : timer->due->first;
  if (due > limit) return false;
  now_ = std::max(now_, due);
  if (is_task) {
    const auto task = tasks_.extract(tasks_.begin());
    task.mapped()();
  } else {
    timer->Schedule();
    timer->tick();
  }
  return true;
}

void HeadlessPlatform::RunUntilIdle() { RunUntil(kEndOfTime); }

void HeadlessPlatform::RunUntil(std::int64_t limit) {
  for (int turn = 0; RunNext(limit); ++turn) {
    if (turn == kTooManyTurns) throw std::runtime_error("the loop does not come to rest");
  }
}

void HeadlessPlatform::Advance(int milliseconds) {
  const std::int64_t until = now_ + milliseconds;
  RunUntil(until);
  now_ = std::max(now_, until);
}

Dialog& HeadlessPlatform::Window(std::string_view name) const {
  const auto found = std::find_if(windows_.rbegin(), windows_.rend(),
                                  [name](const Dialog* dialog) { return dialog->Name() == name; });
  if (found == windows_.rend()) {
    throw std::invalid_argument("no window " + std::string(name) + " is open");
  }
  return **found;
}

PopupMenu& HeadlessPlatform::Menu() const {
  if (menu_ == nullptr) throw std::logic_error("no menu is up");
  return *menu_;
}

Answer HeadlessPlatform::ChooseMenu(std::string_view name) {
  if (menu_ == nullptr) throw std::logic_error("no menu is up");
  if (!modal_.empty()) return Answer::kDisabled;
  const auto menu = menu_;
  // The menu goes down before the item acts, so that an action can pop it up again.
  menu_.reset();
  const Answer answer = menu->Choose(name);
  if (answer != Answer::kDone) menu_ = menu;
  return answer;
}

void HeadlessPlatform::Show(Dialog& dialog) {
  windows_.reserve(windows_.size() + 1);  // a window that cannot be raised stays where it is
  std::erase(windows_, &dialog);
  windows_.push_back(&dialog);
}

void HeadlessPlatform::ShowModal(Dialog& dialog) {
  const auto keep = dialog.shared_from_this();
  Show(dialog);
  modal_.push_back(&dialog);
  for (int turn = 0; dialog.Shown(); ++turn) {
    if (turn < kTooManyTurns) {
      if (RunNext(now_)) continue;
      const auto act = at_modal;  // it may replace itself
      if (act && act(dialog)) continue;
      if (RunNext(kEndOfTime)) continue;
    }
    stalled_.push_back(dialog.Name());
    dialog.Close();
  }
  std::erase(modal_, &dialog);
}

void HeadlessPlatform::Hide(Dialog& dialog) noexcept {
  std::erase(windows_, &dialog);
  std::erase(modal_, &dialog);
}

bool HeadlessPlatform::TakesInput(const Dialog& dialog) const {
  return modal_.empty() || modal_.back() == &dialog;
}

void HeadlessPlatform::PopUp(std::shared_ptr<PopupMenu> menu, int /*x*/, int /*y*/) {
  menu_ = std::move(menu);
}

void HeadlessPlatform::TakeDown(const PopupMenu& menu) noexcept {
  if (menu_.get() == &menu) menu_.reset();
}

bool HeadlessPlatform::Ask(const Message& message) {
  messages_.push_back(message);
  if (answers_.empty()) {
    return message.buttons == Message::Buttons::kOk || message.ok_without_user;
  }
  const bool ok = answers_.front();
  answers_.pop_front();
  return ok;
}

std::optional<std::string> HeadlessPlatform::AskFile(const FileRequest& request) {
  requests_.push_back(request);
  if (files_.empty()) return std::nullopt;
  auto path = std::move(files_.front());
  files_.pop_front();
  return path;
}

void HeadlessPlatform::Log(LogLevel level, std::string_view text) {
  if (log_.size() == kMostLogLines) log_.pop_front();
  log_.push_back({level, std::string(text)});
}

std::unique_ptr<Timer> HeadlessPlatform::NewTimer(std::function<void()> tick) {
  std::erase_if(timers_, [](const auto& state) { return state.use_count() == 1; });
  timers_.push_back(std::make_shared<TimerState>(TimerState{*this, std::move(tick)}));
  return std::make_unique<VirtualTimer>(timers_.back());
}

void HeadlessPlatform::SetNow(const LocalTime& now) {
  wall_clock_ = now;
  wall_clock_set_ = now_;
}

LocalTime HeadlessPlatform::Now() const {
  using std::chrono::days;
  using std::chrono::sys_days;
  const auto& [start_date, start_time] = wall_clock_;
  const std::chrono::year_month_day start{
      std::chrono::year(start_date.year),
      std::chrono::month(static_cast<unsigned>(start_date.month)),
      std::chrono::day(static_cast<unsigned>(start_date.day))};
  const auto moment = sys_days(start) + std::chrono::hours(start_time.hour) +
                      std::chrono::minutes(start_time.minute) +
                      std::chrono::seconds(start_time.second + (now_ - wall_clock_set_) / 1000);
  const auto midnight = std::chrono::floor<days>(moment);
  const std::chrono::year_month_day date(midnight);
  const std::chrono::hh_mm_ss time(moment - midnight);
  return {{static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
           static_cast<int>(static_cast<unsigned>(date.day()))},
          {static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
           static_cast<int>(time.seconds().count())}};
}

std::vector<std::uint8_t> HeadlessPlatform::ReadFile(const std::string& path) {
  return ReadWholeFile(path);
}

void HeadlessPlatform::StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  ReplaceWholeFile(path, bytes);
}

Size HeadlessPlatform::MeasureText(const quorvel::Font& /*font*/, std::string_view text) const {
  constexpr int kCharacterWidth = 7;
  constexpr int kLineHeight = 15;
  return {kCharacterWidth * static_cast<int>(text.size()), kLineHeight};
}

std::string HeadlessPlatform::ToUtf8(std::string_view bytes) const { return CodePageToUtf8(bytes); }
std::string HeadlessPlatform::FromUtf8(std::string_view text) const { return Utf8ToCodePage(text); }

}  // namespace quorvel
