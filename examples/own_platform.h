#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "quorvel/code_page.h"
#include "quorvel/platform.h"
#include "quorvel/whole_files.h"
#include "task_queue.h"

/// A platform for services: real time, no screen, nobody to ask. Messages and the log go to a
/// stream. One thread runs its loop, and is that of its controls.
class OwnPlatform : public quorvel::Platform {
 public:
  explicit OwnPlatform(std::ostream& out) : out_(out) {}

  /// Has a task done by the loop. Any thread may call it.
  void Post(TaskQueue::Task task) { tasks_.Put(std::move(task)); }
  /// The loop: does what was posted, and lets timers tick, until `done`.
  void RunUntil(const std::function<bool()>& done);

  // What would be shown cannot be: whoever wanted it is told so.
  void Show(quorvel::Dialog& dialog) override;
  void ShowModal(quorvel::Dialog& dialog) override { Show(dialog); }
  void Hide(quorvel::Dialog& /*dialog*/) noexcept override {}
  void PopUp(std::shared_ptr<quorvel::PopupMenu> menu, int x, int y) override;
  void TakeDown(const quorvel::PopupMenu& /*menu*/) noexcept override {}

  bool Ask(const quorvel::Message& message) override;
  std::optional<std::string> AskFile(const quorvel::FileRequest& /*request*/) override {
    return std::nullopt;
  }
  void Log(quorvel::LogLevel level, std::string_view text) override;

  [[nodiscard]] std::unique_ptr<quorvel::Timer> NewTimer(std::function<void()> tick) override;
  [[nodiscard]] quorvel::LocalTime Now() const override;

  [[nodiscard]] std::vector<std::uint8_t> ReadFile(const std::string& path) override {
    return quorvel::ReadWholeFile(path);
  }
  void StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) override {
    quorvel::ReplaceWholeFile(path, bytes);
  }
  [[nodiscard]] std::string ToUtf8(std::string_view bytes) const override {
    return quorvel::CodePageToUtf8(bytes);
  }
  [[nodiscard]] std::string FromUtf8(std::string_view text) const override {
    return quorvel::Utf8ToCodePage(text);
  }

  [[nodiscard]] quorvel::Font AmbientFont() const override { return {"Sans", 9.0, false, false}; }
  [[nodiscard]] quorvel::Size MeasureText(const quorvel::Font& /*font*/,
                                          std::string_view text) const override {
    return {7 * static_cast<int>(text.size()), 15};  // nobody sees it
  }
  [[nodiscard]] quorvel::ClassFactory& Classes() override { return classes_; }

 private:
  class RealTimer;
  struct Ticking;
  [[nodiscard]] std::shared_ptr<Ticking> NextTimer();
  void TickWhatIsDue();

  std::ostream& out_;
  TaskQueue tasks_;
  std::vector<std::weak_ptr<Ticking>> timers_;
  quorvel::ClassFactory classes_;
};
