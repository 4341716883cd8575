#pragma once

#include <string_view>

#include "host/host_events.h"
#include "quorvel/transfer.h"

namespace quorvel {

struct Context;

/// The transfers of one direction, one after another: whether one is under way, and how far it has
/// come. The observer and the log hear of it. Whatever begins ends once.
///
/// The observer may do anything, also destroy the control: whoever calls Advance, End or Refuse
/// looks at the state anew afterwards.
class TransferRun {
 public:
  TransferRun(TransferKind which, Context& context, HostEvents& host)
      : which_(which), context_(context), host_(host) {}
  TransferRun(const TransferRun&) = delete;
  TransferRun& operator=(const TransferRun&) = delete;
  ~TransferRun() = default;

  /// `quiet`: no dialog shows it, so no message box tells of it either.
  void Begin(bool quiet);
  /// How much there is to do, once it is known.
  void Expect(int total) { total_ = total; }
  void Advance(int done, int total);
  /// Nothing when none is under way.
  void End(TransferEnd end, std::string_view cause = {});
  /// One could not begin.
  void Refuse(std::string_view cause);

  [[nodiscard]] bool UnderWay() const { return under_way_; }
  [[nodiscard]] bool Quiet() const { return under_way_ && quiet_; }
  [[nodiscard]] int Done() const { return done_; }
  [[nodiscard]] int Total() const { return total_; }

 private:
  void TellEnd(TransferEnd end, std::string_view cause);

  const TransferKind which_;
  Context& context_;
  HostEvents& host_;
  bool under_way_ = false;
  bool quiet_ = false;
  int done_ = 0;
  int total_ = 0;
};

}  // namespace quorvel
