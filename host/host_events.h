#pragma once

#include "quorvel/events.h"

namespace quorvel {

/// The control's way to its host. Events of a control that the host has destroyed are dropped.
class HostEvents {
 public:
  explicit HostEvents(MainMenuEvents& host) : host_(&host) {}
  HostEvents(const HostEvents&) = delete;
  HostEvents& operator=(const HostEvents&) = delete;

  void Detach() { host_ = &nobody_; }
  MainMenuEvents* operator->() { return host_; }

 private:
  MainMenuEvents nobody_;
  MainMenuEvents* host_;
};

}  // namespace quorvel
