#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/device_state.h"
#include "core/factory_defaults.h"
#include "host/host_events.h"
#include "host/transfer_run.h"

namespace quorvel {

/// What is wrong with a combined array that has come.
enum class ArrayFlaw { kNotUsed, kMacrosMissing };

/// The dialog that shows what a Download does.
class DownloadListener {
 public:
  /// What was shown is over: something else begins.
  virtual void Over() = 0;
  /// A combined array has come and is looked at next.
  virtual void ArrayHasCome() = 0;
  virtual void BlockHasCome(int number, int count, std::int32_t bytes) = 0;
  virtual void AllHasCome(int count, std::int32_t bytes) = 0;
  virtual void Flawed(ArrayFlaw flaw) = 0;

 protected:
  ~DownloadListener() = default;
};

/// Brings a configuration into the component: the device's, a settings file's or the factory's. It
/// asks for what is needed, decodes the image and tells the host that it has arrived.
///
/// One of these is under way at a time. Each begins anew and ends the one before; replies to what
/// is no longer asked for change nothing. Until a new image is complete and decoded, the present
/// one stays, with its record and what was edited in it.
class Download {
 public:
  Download(Context& context, HostEvents& host, DownloadListener& dialog)
      : context_(context), host_(host), dialog_(dialog) {}
  Download(const Download&) = delete;
  Download& operator=(const Download&) = delete;
  ~Download() = default;

  /// A receive without a dialog; false when something else has begun before it could.
  bool Receive();
  /// Asks for the first block or the combined array. `quiet`: without a dialog.
  void RequestImage(bool quiet);
  /// The device is waited for no longer, and a reply that still comes must not undo what is edited
  /// from now on.
  void StopReceive(std::string_view why);
  /// Ends the receive that is under way, and its dialog.
  void Cancel();
  [[nodiscard]] const TransferRun& Run() const { return run_; }
  void Refuse(std::string_view why) { run_.Refuse(why); }

  /// FillDataBlk: the reply to what was asked for last, or the whole image of a host that moves it
  /// in one call.
  void TakeReply(std::span<const Byte> data);
  /// FillComboBlk: the combined array.
  void TakeComboArray(std::span<const Byte> data);

  /// Command 16. Asks for the two blocks by which the device says what it is; the defaults for it
  /// are loaded when they are here.
  void BuildDefaults();
  /// A settings file and the factory defaults of any device, without a user: nothing is asked,
  /// shown or raised. What they refuse they throw, and then nothing has changed, nor ended.
  /// LoadSettings returns what is missing from the file, in words.
  [[nodiscard]] std::string LoadSettings(std::span<const Byte> bytes);
  void LoadDefaults(const DefaultsDevice& device);

  // What a dialog needs.

  /// Ends what was under way, because of `why`; returns the number of what begins.
  int BeginAnew(std::string_view why);
  /// False when a host has begun something else, or destroyed the control, from inside an event, a
  /// text or a message box of this one.
  [[nodiscard]] bool GoesOn(int round) const;
  /// What a settings file has brought.
  struct Restored {
    std::int32_t bytes;
    bool lacks_macros;
  };
  /// Takes a settings file's configuration; throws ImageError, and then nothing has changed.
  [[nodiscard]] Restored AdoptFile(std::span<const Byte> bytes);
  /// What was waited for is here, so many bytes: the dialog, the observer and the host are told.
  void FinishReception(std::int32_t bytes, TransferEnd end = TransferEnd::kFinished,
                       std::string_view cause = {});
  /// What has come, as a settings file keeps it.
  [[nodiscard]] std::vector<Byte> ReceivedBytes() const;

 private:
  enum class Expecting { kNothing, kBlock, kComboArray, kDefaultsProbe, kDefaultsIdentity };

  /// Runs a step of a receive as part of a host's call. Without a dialog, a failure ends the
  /// receive and goes no further.
  template <class Body>
  void Step(Body&& body);
  /// The same for the end of a receive: what has come is the configuration, or the receive failed.
  template <class Body>
  void LastStep(Body&& body);
  void Request(Expecting expecting, int number);
  void TakeBlock(std::span<const Byte> reply);
  void TakeAllBlocks();
  void TakeWholeImage(std::span<const Byte> data);
  void TakeImageOf(CombinedArray array);
  void KeepUnusable(std::span<const Byte> data, const CombinedArray& array);
  void TellFlaw(ArrayFlaw flaw, bool quiet);
  void TakeProbe(std::span<const Byte> reply);
  void TakeIdentity(std::span<const Byte> reply);
  void LoadDefaultData();
  void AdoptDefaults(const DefaultsDevice& device, ImageSource source);
  [[nodiscard]] bool ExpectsDevice() const;
  [[nodiscard]] bool MayTakeUnasked() const;
  void NoteIgnored(std::string_view what) const;
  void Adopt(BlockImage image, ImageSource source, CombinedArray array = {});
  void TellArrival(TransferEnd end, std::string_view cause);

  Context& context_;
  HostEvents& host_;
  DownloadListener& dialog_;
  TransferRun run_{TransferKind::kReceive, context_, host_};
  Expecting expecting_ = Expecting::kNothing;
  int awaited_ = 0;                 ///< number of the block that is expected, if one comes
  int round_ = 0;                   ///< number of the sequence that is under way
  BlockImage arriving_;             ///< the blocks that have come so far
  bool received_combined_ = false;  ///< the present data came as a combined array
  std::optional<std::vector<Byte>> unusable_;  ///< what came last, when it contradicts itself
  DefaultsDevice defaults_;
};

}  // namespace quorvel
