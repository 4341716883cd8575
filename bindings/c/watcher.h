#pragma once

#include <memory>
#include <string>

#include "quorvel.h"
#include "quorvel/transfer.h"

namespace quorvel::c {

/// Tells a C host how transfers go on. The host may free the control from inside both calls.
class Watcher final : public TransferObserver {
 public:
  explicit Watcher(quorvel_control* control) : control_(control) {}

  void Tell(const quorvel_observer& observer) { observer_ = observer; }
  /// Why the last transfer has ended; outlives the control that it is of.
  [[nodiscard]] std::shared_ptr<const std::string> Cause() const { return cause_; }

  void Progress(TransferKind which, int done, int total) override;
  void Ended(TransferKind which, TransferEnd end, std::string_view cause) override;

 private:
  quorvel_control* control_;
  quorvel_observer observer_{};
  std::shared_ptr<std::string> cause_ = std::make_shared<std::string>();
};

}  // namespace quorvel::c
