#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/device_state.h"
#include "core/factory_defaults.h"
#include "host/frm_ul_fr_mux.h"
#include "host/host_events.h"

namespace quorvel {

/// Brings a configuration into the component: the device's, a settings file's or the factory's. It
/// asks for what is needed, decodes the image and tells the host that it has arrived.
///
/// One of these is under way at a time. Each begins anew and ends the one before; replies to what
/// is no longer asked for change nothing. Until a new image is complete and decoded, the present
/// one stays, with its record and what was edited in it.
class Download {
 public:
  Download(Context& context, HostEvents& host) : context_(context), host_(host) {}
  Download(const Download&) = delete;
  Download& operator=(const Download&) = delete;
  ~Download() = default;

  /// Command 10. Asks for the first block or the combined array, then shows the receive dialog to
  /// an interactive host and returns when it is closed.
  void Receive();
  /// Command 12. Asks the user for a settings file and shows the result; returns when that is
  /// closed. A file that cannot be read or decoded changes nothing.
  void RestoreImageFromFile();
  /// Command 16. Asks for the two blocks by which the device says what it is; the defaults for it
  /// are loaded when they are here.
  void BuildDefaults();

  /// The same without a user: nothing is asked, shown or raised. What they refuse they throw, and
  /// then nothing has changed, nor ended. LoadSettings returns what is missing from the file, in
  /// words.
  [[nodiscard]] std::string LoadSettings(std::span<const Byte> bytes);
  void LoadDefaults(const DefaultsDevice& device);

  /// FillDataBlk: the reply to what was asked for last, or the whole image of a host that moves it
  /// in one call.
  void TakeReply(std::span<const Byte> data);
  /// FillComboBlk: the combined array.
  void TakeComboArray(std::span<const Byte> data);

  /// Takes the dialog off the screen, without raising its events.
  void CloseDialog();

 private:
  enum class Expecting { kNothing, kBlock, kComboArray, kDefaultsProbe, kDefaultsIdentity };

  /// Ends the sequence that was under way; returns the number of the new one.
  int BeginAnew();
  /// False when a host has begun another sequence, or destroyed the control, from inside an event,
  /// a text or a message box of this one.
  [[nodiscard]] bool GoesOn(int round) const;
  void FetchTexts();
  void Request(Expecting expecting, int number);
  void TakeBlock(std::span<const Byte> reply);
  void TakeWholeImage(std::span<const Byte> data);
  void TakeProbe(std::span<const Byte> reply);
  void TakeIdentity(std::span<const Byte> reply);
  void LoadDefaultData();
  /// What a settings file has brought.
  struct Restored {
    std::int32_t bytes;
    bool lacks_macros;
  };
  [[nodiscard]] Restored AdoptFile(std::span<const Byte> bytes);
  void AdoptDefaults(const DefaultsDevice& device, ImageSource source);
  [[nodiscard]] bool ExpectsDevice() const;
  [[nodiscard]] bool MayTakeUnasked() const;
  void Adopt(BlockImage image, ImageSource source, CombinedArray array = {});
  void FinishReception(std::int32_t bytes);
  void TellArrival();
  void TellFlaw(const std::string& flaw);
  void OpenDialog(int round, bool restored);
  void ShowProgress();
  void SaveReceivedData();

  Context& context_;
  HostEvents& host_;
  std::shared_ptr<frm_ULFrMux> frmUL;
  ReceiveProgress progress_;
  std::string block_text_;
  std::string finished_text_;
  std::string not_used_text_, macros_missing_text_;
  std::string message_title_;
  Expecting expecting_ = Expecting::kNothing;
  int awaited_ = 0;                 ///< number of the block that is expected, if one comes
  int round_ = 0;                   ///< number of the sequence that is under way
  BlockImage arriving_;             ///< the blocks that have come so far
  bool received_combined_ = false;  ///< the present data came as a combined array
  std::optional<std::vector<Byte>> unusable_;  ///< what came last, when it contradicts itself
  DefaultsDevice defaults_;
};

}  // namespace quorvel
