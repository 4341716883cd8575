#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <utility>

#include "quorvel/export.h"
#include "quorvel/platform.h"
#include "quorvel/user_verbs.h"
#include "quorvel/widgets.h"

namespace quorvel {

/// A line of the log.
struct LogLine {
  LogLevel level;
  std::string text;
  bool operator==(const LogLine&) const = default;
};

/// A platform without a screen, for tests and automation: a virtual clock, the dialogs that would
/// be on screen by name, and a user who answers as told.
class QUORVEL_HEADLESS_API HeadlessPlatform : public Platform {
 public:
  HeadlessPlatform();
  ~HeadlessPlatform() override;

  // The virtual loop. Its clock stands still while code runs and jumps to the next event.

  /// Runs `task` on the next turn of the loop, or `milliseconds` later.
  void Post(std::function<void()> task) { PostIn(0, std::move(task)); }
  void PostIn(int milliseconds, std::function<void()> task);
  /// Runs everything that is due, moving the clock on, until nothing is left to happen. Throws
  /// std::runtime_error when that takes more than a million turns.
  void RunUntilIdle();
  /// Moves the clock on by `milliseconds`, running what falls due.
  void Advance(int milliseconds);
  /// Milliseconds since the platform was made.
  [[nodiscard]] std::int64_t Elapsed() const { return now_; }
  /// When the next event is due, on the clock of Elapsed; nothing when none is to come.
  [[nodiscard]] std::optional<std::int64_t> NextDue() const;
  /// Sets the wall clock. A new platform's shows the first second of 2000.
  void SetNow(const LocalTime& now);

  // The screen.

  /// The dialog of that name that is on screen; throws std::invalid_argument when there is none.
  [[nodiscard]] Dialog& Window(std::string_view name) const;
  /// Dialogs on screen, the one in front last.
  [[nodiscard]] const std::vector<Dialog*>& Windows() const { return windows_; }
  /// The menu that is up; throws std::logic_error when none is.
  [[nodiscard]] PopupMenu& Menu() const;
  [[nodiscard]] bool MenuIsUp() const { return menu_ != nullptr; }
  /// Picks an item of the menu, which takes it down; a refused pick leaves it up.
  Answer ChooseMenu(std::string_view name);
  void DismissMenu() { menu_.reset(); }

  // The user.

  /// Works windows and controls by name.
  [[nodiscard]] NamedUser User() const { return NamedUser(windows_); }
  /// Called while a modal dialog waits and nothing is due at this moment: acts on the dialog and
  /// returns true, or returns false to let time pass. When it never acts and nothing is left to
  /// happen, or a million turns were not enough, the dialog is closed as by its window's close
  /// button and its name is noted (TakeStalled).
  std::function<bool(Dialog&)> at_modal;
  /// Answers the next message boxes and file dialogs, in order. Without an answer, a message box
  /// with one button gets OK, one with two Cancel, and a file dialog Cancel.
  void AnswerNext(bool ok) { answers_.push_back(ok); }
  void AnswerNextFile(std::optional<std::string> path) { files_.push_back(std::move(path)); }
  /// Message boxes shown since last asked.
  std::vector<Message> TakeMessages() { return std::exchange(messages_, {}); }
  /// File dialogs shown since last asked.
  std::vector<FileRequest> TakeFileRequests() { return std::exchange(requests_, {}); }
  /// Modal dialogs that were left open and closed by the platform, since last asked.
  std::vector<std::string> TakeStalled() { return std::exchange(stalled_, {}); }

  /// The log since last asked, its last thousand lines at most.
  std::deque<LogLine> TakeLog() { return std::exchange(log_, {}); }

  // Platform.

  void Show(Dialog& dialog) override;
  void ShowModal(Dialog& dialog) override;
  void Hide(Dialog& dialog) noexcept override;
  [[nodiscard]] bool TakesInput(const Dialog& dialog) const override;
  void PopUp(std::shared_ptr<PopupMenu> menu, int x, int y) override;
  void TakeDown(const PopupMenu& menu) noexcept override;
  bool Ask(const Message& message) override;
  std::optional<std::string> AskFile(const FileRequest& request) override;
  void Log(LogLevel level, std::string_view text) override;
  std::unique_ptr<Timer> NewTimer(std::function<void()> tick) override;
  [[nodiscard]] LocalTime Now() const override;
  std::vector<std::uint8_t> ReadFile(const std::string& path) override;
  void StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) override;
  [[nodiscard]] quorvel::Font AmbientFont() const override { return {"Sans", 9.0, false, false}; }
  [[nodiscard]] Size MeasureText(const quorvel::Font& font, std::string_view text) const override;
  [[nodiscard]] std::string ToUtf8(std::string_view bytes) const override;
  [[nodiscard]] std::string FromUtf8(std::string_view text) const override;
  ClassFactory& Classes() override { return classes_; }

 private:
  class VirtualTimer;
  /// When something is due; what is due at the same time happens in the order of its scheduling.
  using Turn = std::pair<std::int64_t, std::uint64_t>;
  [[nodiscard]] Turn NewTurn(int milliseconds);
  /// Does what is due first, at or before `limit`; false when there is nothing.
  bool RunNext(std::int64_t limit);
  void RunUntil(std::int64_t limit);

  std::int64_t now_ = 0;
  LocalTime wall_clock_;  ///< as it was set
  std::int64_t wall_clock_set_ = 0;
  std::uint64_t turns_ = 0;
  std::map<Turn, std::function<void()>> tasks_;
  /// Shared with the timers' owners; starting one needs no memory.
  struct TimerState;
  /// The timer that is due first, or a null pointer.
  [[nodiscard]] std::shared_ptr<TimerState> FirstTimer() const;
  std::vector<std::shared_ptr<TimerState>> timers_;
  std::vector<Dialog*> windows_;
  std::vector<Dialog*> modal_;
  std::shared_ptr<PopupMenu> menu_;
  std::deque<bool> answers_;
  std::deque<std::optional<std::string>> files_;
  std::vector<Message> messages_;
  std::vector<FileRequest> requests_;
  std::vector<std::string> stalled_;
  std::deque<LogLine> log_;
  ClassFactory classes_;
};

}  // namespace quorvel
