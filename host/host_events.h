#pragma once

#include "quorvel/events.h"
#include "quorvel/transfer.h"

namespace quorvel {

/// The control's way to its host and to whom the host has named as observer. Events of a control
/// that the host has destroyed are dropped.
class HostEvents {
 public:
  explicit HostEvents(MainMenuEvents& host) : host_(&host) {}
  HostEvents(const HostEvents&) = delete;
  HostEvents& operator=(const HostEvents&) = delete;

  void Detach() {
    host_ = &nobody_;
    Observe(nullptr);
  }
  MainMenuEvents* operator->() { return host_; }

  /// A null pointer: nobody observes.
  void Observe(TransferObserver* observer) {
    observer_ = observer != nullptr ? observer : &no_observer_;
  }
  [[nodiscard]] TransferObserver& Observer() { return *observer_; }

 private:
  MainMenuEvents nobody_;
  MainMenuEvents* host_;
  TransferObserver no_observer_;
  TransferObserver* observer_ = &no_observer_;
};

}  // namespace quorvel
