#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvel/byte.h"

namespace quorvel::muxhost {

/// What a link can do wrong with one reply of the device, or one packet or array to it. An array to
/// the device is not acknowledged; whatever makes no sense of it is not taken by the device.
enum class FaultKind {
  kSilent,     ///< a reply does not come; a packet is written and not acknowledged
  kShort,      ///< a reply has 8 bytes of its block, an array ends half-way; a packet changes the
               ///< first 8 bytes of its block only
  kLong,       ///< 8 bytes too many, which the device does not read
  kGarbage,    ///< noise instead of the bytes: the same each time, of the right length
  kWrong,      ///< a reply has another block number, an array or image another block count; a
               ///< packet is written to the block after its own, or else before it
  kDuplicate,  ///< it comes twice; a packet is acknowledged once
  kLate,       ///< the reply, or a packet's acknowledgement, takes longer
  kDrop,       ///< a packet is acknowledged and not written, an array is not written
  kStop,       ///< meanwhile the user presses STOP, or closes the receive dialog
  kClose,      ///< meanwhile the user closes the transfer's dialog by its window
};

/// The kind of that name ("silent", "short", ...), or nothing.
[[nodiscard]] std::optional<FaultKind> FaultKindOf(std::string_view name);
[[nodiscard]] std::string_view NameOf(FaultKind kind);

/// What crosses a link.
enum class Traffic {
  kBlockReply,  ///< a block's number and bytes, from the device
  kImageReply,  ///< a whole image
  kArrayReply,  ///< a combined array
  kPacket,      ///< a block packet, to the device
  kArray,       ///< a combined array
};

struct Fault {
  static constexpr int kUsualDelay = 300;

  FaultKind kind = FaultKind::kSilent;
  int at = 1;                  ///< it strikes the reply or packet of this number, from 1
  int delay_ms = kUsualDelay;  ///< kLate: how much longer it takes
};

/// "silent at 3"; "late at 3 by 300 ms".
[[nodiscard]] std::string Describe(const Fault& fault);

/// The fault that is set on a link. It strikes once and is used up: in the transfer under way or
/// the first one after it that gets as far, and in which it has a meaning. An end packet counts.
class LinkFault {
 public:
  void Set(const std::optional<Fault>& fault) { pending_ = fault; }
  [[nodiscard]] const std::optional<Fault>& Pending() const { return pending_; }

  /// Counts from 1 again.
  void BeginTransfer() { count_ = 0; }
  /// Counts what crosses the link now; the fault when it strikes this.
  [[nodiscard]] std::optional<Fault> Strike(Traffic traffic);

 private:
  std::optional<Fault> pending_;
  int count_ = 0;
};

/// Makes of `bytes` what arrives after a fault of the kinds kShort to kWrong. Not for packets of
/// the kinds kShort and kWrong: what becomes of those is up to the device.
void Spoil(FaultKind kind, Traffic traffic, std::vector<Byte>& bytes);

}  // namespace quorvel::muxhost
