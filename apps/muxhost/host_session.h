#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "muxhost/device/link.h"
#include "muxhost/device_reader.h"
#include "muxhost/exchange.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::muxhost {

/// What the host states to the control, and how it answers.
struct HostSettings {
  std::optional<int> family = {};  ///< device family code; left out: 16 or 48, as fits the device
  bool dvr = true;                 ///< captions name a DVR
  int comm_id = 0;                 ///< HostCommId; when not 0 an image moves in one call
  int link = 1;                    ///< 1: there is a network link
  bool sync = false;               ///< answers from inside the event
  int latency_ms = 5;              ///< otherwise: what the link takes for a block
};

/// A host application without its window: it owns a link to a simulated device and the control that
/// edits it, and carries blocks between the two. The device decides the exchange: single blocks, or
/// one combined array.
///
/// A read that the device cannot serve is logged and not answered; a write that it refuses is
/// logged and not acknowledged. Answers still under way when the device is replaced or another
/// transfer begins are dropped. After an upload the session reads back what the control handed over
/// and logs how the device holds it.
class HostSession final : public MainMenuEvents, private TransferObserver {
 public:
  using Scheduler = Link::Scheduler;

  /// `platform` must outlive the session.
  HostSession(Platform& platform, Scheduler scheduler, SimulatedDevice device = SimulatedDevice());

  /// Replaces the device; a new control comes with it.
  void Connect(SimulatedDevice device);
  /// Takes a settings file, or the factory defaults of a device, without a device: the one that is
  /// connected is left, and a new control holds them. As long as no device is connected nothing
  /// crosses the link, and what the control held at first stands in for a device. When they are
  /// refused nothing changes. OpenDefaults throws std::invalid_argument, naming the value, for a
  /// setup that no device has; it has no use for the setup's exchange and number of blocks.
  [[nodiscard]] LoadAnswer Open(std::span<const Byte> file);
  [[nodiscard]] LoadAnswer OpenDefaults(const DeviceSetup& setup);
  /// Connects a device to what was opened without one: the control stays. When the two do not match
  /// the answer says why, and all is as before; else it is empty.
  [[nodiscard]] std::string ConnectToOpen(SimulatedDevice device);
  [[nodiscard]] bool HasDevice() const { return has_device_; }
  /// Replaces the settings and states them to the control.
  void Configure(const HostSettings& settings);
  /// The class of the platform that has the component's texts; none: they are English. A new
  /// control comes with it, as the component keeps texts that it has asked for.
  void UseTexts(std::string class_id);
  /// Sets what goes wrong on the link next, or nothing. See LinkFault.
  void SetFault(const std::optional<Fault>& fault);
  [[nodiscard]] const std::optional<Fault>& PendingFault() const { return link_.PendingFault(); }

  /// Switches the link to the device off or on. Off, nothing is answered and nothing is written.
  void SwitchLink(bool on);
  [[nodiscard]] bool LinkIsOn() const { return has_device_ && link_.IsOn(); }
  /// Reads the device without the control, as for a backup. Not while a transfer runs, which it
  /// would break off. The session must outlive the reader.
  [[nodiscard]] std::unique_ptr<DeviceReader> NewReader() {
    return std::make_unique<DeviceReader>(link_);
  }

  /// Commands 10 and 11. They return when their dialog has been closed.
  void Download();
  void Upload();
  /// Command 14, which asks for a file to save to; command 12, which asks for a file to restore
  /// from and returns when its dialog has been closed.
  void Save();
  void Restore();
  /// Command 16. Returns before the defaults are there, unless the host answers inside the event:
  /// LastExchange().arrived tells.
  void BuildDefaults();
  /// Command 15.
  void OpenMenu();
  /// Command 17: the 32 bytes of a camera's activity grid; nothing when there is no such camera.
  [[nodiscard]] std::optional<std::vector<Byte>> ReadZones(int camera);
  /// What the device calls a camera, from 0; UTF-8.
  [[nodiscard]] std::string TitleOf(int camera) const;
  /// Whether a camera detects motion, as the control holds it: otherwise its zones mean nothing. Of
  /// a camera that there is not, it does.
  [[nodiscard]] bool DetectsMotion(int camera) const;
  /// Hands an edited grid of 32 bytes to the control, which lists the blocks that change.
  void WriteZones(int camera, std::span<const Byte> zones);

  [[nodiscard]] MainMenuCtrl& Control() { return *control_; }
  /// The device, or what stands in for it.
  [[nodiscard]] const SimulatedDevice& Device() const { return link_.Device(); }
  /// Cameras of the control's configuration; of the device while there is none.
  [[nodiscard]] int Cameras() const;
  /// Blocks of the device that the control's configuration lacks, so that no upload brings anything
  /// for them: a file, or the factory, may have fewer. None before there is a configuration.
  [[nodiscard]] std::vector<Byte> LackingBlocks() const;
  [[nodiscard]] const HostSettings& Settings() const { return settings_; }
  [[nodiscard]] const Exchange& LastExchange() const { return *exchange_; }
  /// Another number than before: something has crossed the link, or the device, its control or the
  /// settings were replaced.
  [[nodiscard]] int Generation() const { return generation_; }
  /// Events raised and what the host could not do, in plain words, oldest first; since last taken.
  [[nodiscard]] std::vector<std::string> TakeLog() { return std::exchange(log_, {}); }

  /// Called after each entry of the log, and when the device, the settings or the fault were
  /// replaced. May take the log; must not replace the device or start a transfer.
  std::function<void()> on_change;
  /// Called when the control has reported a configuration's arrival: the device's, a file's that
  /// was restored, or the factory defaults.
  std::function<void()> on_arrival;
  /// Called before the control is replaced: what shows its surface has to let go.
  std::function<void()> on_control_leaves;
  /// A transfer has come so far; 0 of 0: none is under way any more.
  std::function<void(int done, int total)> on_progress;
  /// The fault of the link has the user press a button of the transfer's dialog or close it: does
  /// that, by the dialog's user verbs. False when there is no such dialog or it refuses.
  std::function<bool(const Interruption&)> interrupt;
  /// The user wants to edit the activity grids of that many cameras.
  std::function<void(int cameras)> on_zones_wanted;

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

 private:
  void Progress(TransferKind which, int done, int total) override;
  void Ended(TransferKind which, TransferEnd end, std::string_view cause) override;
  [[nodiscard]] std::unique_ptr<MainMenuCtrl> NewControl();
  /// Goes on with a control that holds a configuration of no device.
  void GoOnWithout(std::unique_ptr<MainMenuCtrl> control, std::vector<Byte> sizes);
  void PlaceControl(std::unique_ptr<MainMenuCtrl> control);
  void StateSettings();
  void StateIdentity();
  void BeginExchange();
  void NoteArrival();
  void Log(std::string entry);
  /// Logs that it is, too.
  [[nodiscard]] bool LinkIsOff();
  void LogInterruption(const Interruption& what);
  void ReadBackWritten(const std::shared_ptr<Exchange>& exchange);
  /// The whole image in one reply.
  void HandOverImage();

  Platform& platform_;
  Link link_;
  bool has_device_ = true;
  std::vector<Byte> open_sizes_;  ///< without a device: what the combined array that is open states
  HostSettings settings_;
  std::string text_class_;
  int generation_ = 0;
  std::vector<std::string> log_;
  std::shared_ptr<Exchange> exchange_ = std::make_shared<Exchange>();
  std::vector<Byte> zones_;  ///< what ActGridData brought last
  std::unique_ptr<MainMenuCtrl> control_;
};

}  // namespace quorvel::muxhost
