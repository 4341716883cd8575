#pragma once

#include <memory>

#include "bindings/c/calls.h"
#include "bindings/c/host_events.h"
#include "bindings/c/watcher.h"
#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::c {

/// The headless platform, which tells its C host what it shows.
class Platform final : public HeadlessPlatform {
 public:
  explicit Platform(const quorvel_platform_events& events);

  /// The host's handle, as long as it has one.
  quorvel_platform* handle = nullptr;

  bool Ask(const Message& message) override;
  std::optional<std::string> AskFile(const FileRequest& request) override;
  void Log(LogLevel level, std::string_view text) override;

 private:
  quorvel_platform_events events_;
};

[[nodiscard]] quorvel_message Shown(const Message& message, const std::string& lines);
[[nodiscard]] quorvel_file_request Shown(const FileRequest& request);
/// The text of a message with '\n' between its lines.
[[nodiscard]] std::string Lines(const Message& message);

}  // namespace quorvel::c

struct quorvel_platform {
  std::shared_ptr<quorvel::c::Platform> shared;
};

struct quorvel_control {
  quorvel_control(std::shared_ptr<quorvel::c::Platform> on, const quorvel_events& raised)
      : platform(std::move(on)),
        events(this, raised, *platform),
        watcher(this),
        control(*platform, events) {
    control.Observe(&watcher);
  }

  std::shared_ptr<quorvel::c::Platform> platform;
  quorvel::c::HostEvents events;
  quorvel::c::Watcher watcher;
  quorvel::MainMenuCtrl control;
};

namespace quorvel::c {

/// Refuses with what the user was answered.
void Require(const VerbAnswer& done);

/// The parts behind a handle. A callback may free the handle: the platform lives on until the call
/// that has brought the callback about is over.
[[nodiscard]] inline std::shared_ptr<Platform> Of(const quorvel_platform* platform) {
  return Given(platform, "the platform")->shared;
}

struct HeldControl {
  std::shared_ptr<Platform> platform;
  MainMenuCtrl* control;
  MainMenuCtrl* operator->() const { return control; }
};

[[nodiscard]] inline HeldControl Of(quorvel_control* control) {
  static_cast<void>(Given(control, "the control"));
  return {control->platform, &control->control};
}

}  // namespace quorvel::c
