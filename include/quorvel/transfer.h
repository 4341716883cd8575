#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "quorvel/clock_time.h"
#include "quorvel/export.h"

namespace quorvel {

/// What moves between device and control.
enum class TransferKind {
  kNone,
  kReceive,  ///< the device's image, into the control
  kSend,     ///< the control's image, or parts of it, to the device
};

/// How a transfer has ended.
enum class TransferEnd {
  kFinished,  ///< everything has arrived and is the control's image, or has been written
  kStopped,   ///< by the user, by the host, or because something else has begun
  kRefused,   ///< it may not begin or go on: the data does not fit the device, or another is under
              ///< way
  kFailed,    ///< what has arrived cannot be used, or an event of the host has failed
};

/// Where a configuration has come from.
enum class ImageOrigin {
  kDevice,
  kSettingsFile,
  kFactory,  ///< the factory defaults of a model
};

/// What a control is doing.
struct ControlState {
  bool has_image = false;                        ///< there is a configuration to edit
  ImageOrigin origin = ImageOrigin::kDevice;     ///< of the configuration, before it was edited
  TransferKind under_way = TransferKind::kNone;  ///< a send before a receive, if dialogs run both
  bool combined = false;                         ///< the combined exchange is selected
  /// Of the transfer that is under way: blocks that have been received, or acknowledged; 1 and 1
  /// where all travels in one piece. `total` is 0 until block 1 has told how many there are.
  int done = 0;
  int total = 0;
};

/// What a send consists of.
struct SendChoice {
  bool IncludeMacros = false;
  bool IncludeData = true;  ///< may be false in the combined exchange only
  bool all_blocks = true;   ///< of the data; else the blocks that are listed as modified
  /// Macros are sent although the device states another size of a macro record. A send with a
  /// dialog asks its user instead.
  bool accept_macro_size = false;
};

/// Hears how transfers go on, those that a dialog shows included. It may call the control, or
/// destroy it, from inside both calls; what it throws is logged and goes no further.
class QUORVEL_API TransferObserver {
 public:
  virtual ~TransferObserver() = default;
  /// `done` of `total` blocks have been received, or written and acknowledged; 1 of 1 where all
  /// travels in one piece.
  virtual void Progress(TransferKind /*which*/, int /*done*/, int /*total*/) {}
  /// A transfer has ended, or could not begin. `cause` says why, in words, UTF-8; it is empty when
  /// it has finished. Its text is valid during the call only.
  virtual void Ended(TransferKind /*which*/, TransferEnd /*end*/, std::string_view /*cause*/) {}
};

/// Whether a configuration was loaded. When it was not, nothing at all has changed.
struct LoadAnswer {
  bool loaded = false;
  /// In words, UTF-8: why it was not loaded, or what is missing from what was; else empty.
  std::string cause;
  explicit operator bool() const { return loaded; }
};

/// How long a transfer will take, for those who show it. The link is taken to go on as fast as it
/// has been.
class QUORVEL_API TransferPace {
 public:
  /// A transfer begins.
  void Begin(const LocalTime& now) { begun_ = now; }
  /// Nothing in its first two seconds, before its first block, and when it is over.
  [[nodiscard]] std::optional<int> SecondsLeft(const LocalTime& now, int done, int total) const;

 private:
  LocalTime begun_;
};

}  // namespace quorvel
