#pragma once

#include <memory>
#include <string_view>

#include "ui/widgets/failure.h"

namespace quorvel {

/// The edges of one control: the calls, timer ticks and choices through which its code is entered.
/// No failure crosses them.
struct Edges {
  explicit Edges(Platform& the_platform) : platform(the_platform) {}
  Edges(const Edges&) = delete;
  Edges& operator=(const Edges&) = delete;
  ~Edges() = default;

  Platform& platform;
  /// The host has destroyed the control; what still runs must show nothing more.
  bool terminated = false;
  /// Alive as long as the control; handlers of dialogs hold on to it.
  std::weak_ptr<const void> life;

  /// Writes a line of the log, unless the control is gone.
  void Log(LogLevel level, std::string_view text) const noexcept {
    if (!terminated) WriteLog(platform, level, text);
  }

  /// Runs `body` as an edge of the component, which stays alive meanwhile: a host call, a timer
  /// tick, a menu choice. A failure is reported unless the host has destroyed the control.
  template <class Body>
  void Guard(std::string_view routine, Body&& body) {
    const auto keep = life.lock();
    try {
      body();
    } catch (...) {
      if (!terminated) ReportFailure(platform, routine);
    }
  }
};

}  // namespace quorvel
