#include <algorithm>
#include <ctime>
#include <stdexcept>

#include "bindings/c/handles.h"

namespace quorvel::c {

namespace {

/// The date and time of the computer, in its own time zone.
LocalTime ComputerTime() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
#ifdef _WIN32
  localtime_s(&parts, &now);
#else
  localtime_r(&now, &parts);
#endif
  // A clock may show a leap second; this one does not.
  return {{parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday},
          {parts.tm_hour, parts.tm_min, std::min(parts.tm_sec, 59)}};
}

}  // namespace

Platform::Platform(const quorvel_platform_events& events) : events_(events) {
  SetNow(ComputerTime());
  if (events.at_modal == nullptr) return;
  at_modal = [this](Dialog& dialog) {
    if (handle == nullptr) return false;
    return events_.at_modal(events_.user, handle, dialog.Name().c_str()) != 0;
  };
}

std::string Lines(const Message& message) {
  std::string lines = message.text;
  std::replace(lines.begin(), lines.end(), '\r', '\n');
  return lines;
}

quorvel_message Shown(const Message& message, const std::string& lines) {
  quorvel_message shown{};
  shown.size = sizeof shown;
  shown.text = lines.c_str();
  shown.title = message.title.c_str();
  shown.kind = static_cast<std::int32_t>(message.kind);
  shown.can_cancel = message.buttons == Message::Buttons::kOkCancel ? 1 : 0;
  return shown;
}

quorvel_file_request Shown(const FileRequest& request) {
  quorvel_file_request shown{};
  shown.size = sizeof shown;
  shown.title = request.title.c_str();
  shown.default_name = request.default_name.c_str();
  shown.filter = request.filter.c_str();
  shown.default_extension = request.default_extension.c_str();
  shown.saves = request.purpose == FileRequest::Purpose::kSave ? 1 : 0;
  shown.asks_before_overwriting = request.ask_before_overwriting ? 1 : 0;
  shown.must_exist = request.must_exist ? 1 : 0;
  return shown;
}

bool Platform::Ask(const Message& message) {
  if (handle == nullptr || events_.message == nullptr) return HeadlessPlatform::Ask(message);
  const std::string lines = Lines(message);
  const quorvel_message shown = Shown(message, lines);
  events_.message(events_.user, handle, &shown);
  const bool ok = HeadlessPlatform::Ask(message);
  static_cast<void>(TakeMessages());  // it is told
  return ok;
}

std::optional<std::string> Platform::AskFile(const FileRequest& request) {
  if (handle == nullptr || events_.file == nullptr) return HeadlessPlatform::AskFile(request);
  const quorvel_file_request shown = Shown(request);
  events_.file(events_.user, handle, &shown);
  auto path = HeadlessPlatform::AskFile(request);
  static_cast<void>(TakeFileRequests());
  return path;
}

void Platform::Log(quorvel::LogLevel level, std::string_view text) {
  if (handle == nullptr || events_.log == nullptr) return;
  events_.log(events_.user, handle, static_cast<std::int32_t>(level), std::string(text).c_str());
}

namespace {

/// A text source of the host's, until the host frees the platform.
class Texts final : public AutomationObject {
 public:
  using Source = const char* (*)(void*, std::int32_t);
  Texts(std::weak_ptr<Platform> platform, Source source, void* user)
      : platform_(std::move(platform)), source_(source), user_(user) {}
  std::string Call(std::string_view method, std::int32_t id) override {
    if (method != "getresourcestring") throw std::invalid_argument("no such method");
    const auto platform = platform_.lock();
    const bool serves = platform != nullptr && platform->handle != nullptr;
    const char* const text = serves ? source_(user_, id) : nullptr;
    if (text == nullptr) throw std::runtime_error("the host has no such text");
    return text;
  }

 private:
  std::weak_ptr<Platform> platform_;
  Source source_;
  void* user_;
};

}  // namespace

}  // namespace quorvel::c

using namespace quorvel::c;

quorvel_result quorvel_platform_new(const quorvel_platform_events* events,
                                    quorvel_platform** platform) {
  return Run([&] {
    *Given(platform, "the place of the handle") = nullptr;
    const auto taken = events == nullptr ? quorvel_platform_events{} : Taken(events, "events");
    auto made = std::make_unique<quorvel_platform>();
    made->shared = std::make_shared<Platform>(taken);
    made->shared->handle = made.get();
    *platform = made.release();
  });
}

void quorvel_platform_free(quorvel_platform* platform) {
  if (platform == nullptr) return;
  platform->shared->handle = nullptr;
  delete platform;
}

quorvel_result quorvel_platform_run_until_idle(quorvel_platform* platform) {
  return Run([&] { Of(platform)->RunUntilIdle(); });
}

quorvel_result quorvel_platform_advance(quorvel_platform* platform, int32_t milliseconds) {
  return Run([&] {
    const auto held = Of(platform);
    if (milliseconds < 0) Refuse(QUORVEL_INVALID, "the clock does not go back");
    held->Advance(milliseconds);
  });
}

quorvel_result quorvel_platform_elapsed(quorvel_platform* platform, int64_t* milliseconds) {
  return Run([&] {
    const auto held = Of(platform);
    *Given(milliseconds, "milliseconds") = held->Elapsed();
  });
}

quorvel_result quorvel_platform_next_due(quorvel_platform* platform, int64_t* milliseconds) {
  return Run([&] {
    const auto held = Of(platform);
    const auto due = held->NextDue();
    *Given(milliseconds, "milliseconds") = due ? *due - held->Elapsed() : -1;
  });
}

quorvel_result quorvel_platform_post(quorvel_platform* platform, int32_t milliseconds,
                                     void (*task)(void* user), void* user) {
  return Run([&] {
    const auto held = Of(platform);
    static_cast<void>(Given(task, "the task"));
    held->PostIn(milliseconds, [task, user, platform = std::weak_ptr(held)] {
      const auto there = platform.lock();
      if (there != nullptr && there->handle != nullptr) task(user);
    });
  });
}

quorvel_result quorvel_platform_set_time(quorvel_platform* platform, const quorvel_time* time) {
  return Run([&] {
    const auto held = Of(platform);
    const auto taken = Taken(time, "the time");
    const quorvel::LocalTime now{{taken.year, taken.month, taken.day},
                                 {taken.hour, taken.minute, taken.second}};
    if (!IsDate(now.date) || !IsTime(now.time)) Refuse(QUORVEL_INVALID, "there is no such time");
    held->SetNow(now);
  });
}

quorvel_result quorvel_platform_answer_message(quorvel_platform* platform, int32_t ok) {
  return Run([&] { Of(platform)->AnswerNext(ok != 0); });
}

quorvel_result quorvel_platform_answer_file(quorvel_platform* platform, const char* path) {
  return Run([&] {
    Of(platform)->AnswerNextFile(path == nullptr ? std::nullopt : std::optional<std::string>(path));
  });
}

quorvel_result quorvel_platform_take_messages(quorvel_platform* platform,
                                              quorvel_visit_message visit, void* user) {
  return Run([&] {
    const auto held = Of(platform);
    static_cast<void>(Given(visit, "the visitor"));  // what it cannot see is not taken
    std::string lines;
    ShowEach(
        held->TakeMessages(),
        [&lines](const quorvel::Message& message) {
          lines = Lines(message);
          return Shown(message, lines);
        },
        visit, user);
  });
}

quorvel_result quorvel_platform_take_file_requests(quorvel_platform* platform,
                                                   quorvel_visit_file_request visit, void* user) {
  return Run([&] {
    const auto held = Of(platform);
    static_cast<void>(Given(visit, "the visitor"));
    ShowEach(
        held->TakeFileRequests(),
        [](const quorvel::FileRequest& request) { return Shown(request); }, visit, user);
  });
}

quorvel_result quorvel_platform_take_stalled(quorvel_platform* platform, quorvel_visit_text visit,
                                             void* user) {
  return Run([&] {
    const auto held = Of(platform);
    static_cast<void>(Given(visit, "the visitor"));
    for (const std::string& name : held->TakeStalled()) {
      if (visit(user, name.c_str()) != 0) return;
    }
  });
}

quorvel_result quorvel_platform_offer_texts(quorvel_platform* platform, const char* class_id,
                                            const char* (*text)(void* user, int32_t id),
                                            void* user) {
  return Run([&] {
    const auto held = Of(platform);
    static_cast<void>(Given(text, "text"));
    const std::string id = Given(class_id, "the class identifier");
    held->Classes().Register(id, [platform = std::weak_ptr(held), text, user] {
      return std::make_shared<Texts>(platform, text, user);
    });
  });
}
