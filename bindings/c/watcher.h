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
  /// Why the last transfer has ended.
  struct LastCause {
    std::shared_ptr<const std::string> words = std::make_shared<const std::string>();
  };
  /// Outlives the control that it is of.
  [[nodiscard]] std::shared_ptr<const LastCause> Last() const { return last_; }

  void Progress(TransferKind which, int done, int total) override;
  void Ended(TransferKind which, TransferEnd end, std::string_view cause) override;

 private:
  quorvel_control* control_;
  quorvel_observer observer_{};
  std::shared_ptr<LastCause> last_ = std::make_shared<LastCause>();
};

}  // namespace quorvel::c
