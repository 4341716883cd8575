#pragma once

#include <memory>
#include <string>
#include <vector>

#include "fuzz/byte_source.h"
#include "fuzz/desk.h"
#include "quorvel/block_image.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::fuzz {

/// What a byte of a call sequence makes a host, its user or its link do. Operands follow.
enum class Call : Byte {
  kCustom,       ///< command, two parameters
  kReply,        ///< to the last request; how it is mangled
  kUser,         ///< the window in front is used: a control and what is done to it
  kMenu,         ///< an item of the popup
  kWait,         ///< milliseconds pass, in tens
  kAcknowledge,  ///< the last packet
  kIdentify,     ///< SaveConnectedInfo with the device's identity, or with any bytes
  kSizes,        ///< FillComboInfo with the device's sizes, or with any bytes
  kArray,        ///< FillComboBlk; how it is mangled
  kWholeImage,   ///< FillDataBlk with a whole image
  kBytes,        ///< FillDataBlk with any bytes
  kGrid,         ///< UpdateActGrid
  kDevice,       ///< some bytes of the device change, or another device is connected
  kProperties,   ///< Enabled, Font, HostCommId, property bag, surface
  kTexts,        ///< a text source
  kDisk,         ///< the disk works or fails
  kDestroy,      ///< the control
  kCreate,       ///< a new control
  kStartReceive,
  kStartSend,  ///< what
  kCancel,     ///< the transfer that is under way
  kLoad,       ///< LoadSettings with the device's image or array, or with any bytes
  kDefaults,   ///< LoadDefaults: cameras, model code, variant
  kSave,       ///< SaveSettings, and back with them
  kCount,
};

/// What the first byte of a sequence says about the host.
struct HostManner {
  static constexpr Byte kAnswersInside = 1;     ///< each request is answered inside its event
  static constexpr Byte kAcknowledges = 2;      ///< each packet inside its event
  static constexpr Byte kActsInEvents = 4;      ///< each event goes on with the sequence
  static constexpr Byte kFails = 8;             ///< events may end with an exception
  static constexpr Byte kAcknowledgesAny = 16;  ///< also packets that were never sent
  static constexpr Byte kDuplex = 32;           ///< the first device is a duplex recorder
  static constexpr Byte kShortImage = 64;       ///< its image has few blocks, and no identity
};

/// Plays a sequence of calls and user actions against a control, in any order and at any depth:
/// inside events, modal dialogs, message boxes and texts. Ends the run when something does not hold
/// that a host may rely on.
class CallPlayer : public MainMenuEvents, public TransferObserver {
 public:
  /// `thorough`: compare the record with its image at the end, which takes long.
  CallPlayer(std::span<const Byte> input, bool thorough);
  CallPlayer(const CallPlayer&) = delete;
  CallPlayer& operator=(const CallPlayer&) = delete;
  ~CallPlayer() override;

  void Play();

  void RequestComboBlocks() override;
  void SendComboBlocks(std::span<std::uint8_t> cb_data) override;
  void ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                          std::uint8_t param2) override;
  void RequestBlk(std::uint8_t blknum) override;
  void UploadSucceeded() override;
  void DownLoadData(std::span<std::uint8_t> bdata) override;
  void ActGridPop(std::uint8_t maxcam) override;
  void ActGridData(std::span<const std::uint8_t> barray) override;
  void Click() override;
  void DblClick() override;
  void Progress(TransferKind which, int done, int total) override;
  void Ended(TransferKind which, TransferEnd end, std::string_view cause) override;

 private:
  /// False at the end of the sequence, and when calls are nested too deep already.
  [[nodiscard]] bool CanStep() const;
  /// The next call of the sequence. The control's calls throw nothing, so neither does it.
  void Step() noexcept;
  void Make(Call call);
  void Custom();
  void Reply(Byte number, Byte mangle);
  void UseFrontWindow();
  void Acknowledge();
  void Identify();
  void StateSizes();
  void HandOverArray(Byte mangle);
  void HandOverImage(Byte mangle);
  void ChangeGrid();
  void ChangeDevice();
  void ChangeProperties();
  void UseTexts();
  void OpenOrUseMenu();
  void StartSend();
  void Load();
  void LoadDefaults();
  void SaveAndLoad();
  LoadAnswer Loaded(const std::function<LoadAnswer()>& load);
  void Create();

  /// What the host does inside an event, and while the user reads a message box.
  void InEvent(bool may_fail = true);
  /// A modal dialog waits: true when somebody did something.
  bool AtModal(Dialog& dialog);
  bool AnswerBox(const Message& message);
  std::optional<std::string> AnswerFile();
  std::string AnswerText(std::int32_t id);

  [[nodiscard]] bool Is(Byte manner) const { return (manner_ & manner) != 0; }
  std::int32_t Parameter();
  void ImageHasArrived();
  void CheckAtRest();
  void CheckNothingIsLost();
  void End();

  ByteSource in_;
  bool thorough_;
  Byte manner_;
  int steps_ = 0;
  int depth_ = 0;

  Desk desk_;
  BlockImage device_;
  Byte requested_ = 1;
  int outstanding_ = 0;            ///< packets that were not acknowledged
  std::int64_t packet_time_ = 0;   ///< when the last one was sent
  bool list_was_emptied_ = false;  ///< by the user, since the image arrived
  bool arrival_was_told_ = false;  ///< to the observer, and not to the host yet
  std::unique_ptr<MainMenuCtrl> control_;
};

}  // namespace quorvel::fuzz
