#pragma once

#include <map>
#include <set>
#include <span>
#include <vector>

#include "muxhost/exchange.h"

namespace quorvel::muxhost {

/// What has become of a block of the configuration.
enum class BlockState {
  kUntouched,  ///< as it came
  kChanged,    ///< the control holds a change of it that the device has not got
  kSent,       ///< handed over, and not read back yet
  kVerified,   ///< read back as sent, and not changed since
  kFailed,     ///< read back otherwise than sent, or the send broke off at it
};
inline constexpr int kBlockStates = 5;

/// "untouched", "changed", ...: in English, to be said in the user's language.
[[nodiscard]] const char* NameOf(BlockState state);

/// The state of every block, from what the control says of its changes and from what crosses the
/// link.
class BlockStates {
 public:
  /// Another device is connected: nothing has been sent to it.
  void Forget();
  /// The blocks that the control lists as modified, which outlive a send, and those in which it
  /// holds other settings than the device.
  void SetChanges(std::span<const Byte> listed, std::set<Byte> differing);
  /// What has crossed the link in the last exchange so far. Data that has arrived in the control
  /// ends what was known of earlier sends; an exchange that sends nothing leaves it.
  void Follow(const Exchange& exchange);

  [[nodiscard]] BlockState Of(Byte block) const;
  /// Blocks with changes that the device is not known to hold, in ascending order.
  [[nodiscard]] std::vector<Byte> Unwritten() const;
  /// Blocks in that state, in ascending order; not for untouched ones.
  [[nodiscard]] std::vector<Byte> In(BlockState state) const;

 private:
  std::set<Byte> listed_;
  std::set<Byte> differing_;
  std::map<Byte, BlockState> sent_;  ///< what came of the last send of each block
};

}  // namespace quorvel::muxhost
