#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/muxhost/simulated_device.h"
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

/// What crossed the link since the last download or upload began.
struct Exchange {
  int blocks_read = 0;               ///< blocks handed to the control
  bool arrived = false;              ///< the control has reported the data's arrival
  std::vector<Byte> blocks_written;  ///< numbers, in the order of writing
  bool end_written = false;          ///< the packet that ends a send has come
};

/// A host application without its window: it owns a simulated device and the control that edits it,
/// and carries blocks between the two.
///
/// A read that the device cannot serve is logged and not answered; a write that it refuses is
/// logged and not acknowledged. Answers still under way when the device is replaced or another
/// transfer begins are dropped.
class HostSession final : public MainMenuEvents {
 public:
  /// Runs `task` on the user-interface thread, `milliseconds` later.
  using Scheduler = std::function<void(int milliseconds, std::function<void()> task)>;

  /// `platform` must outlive the session.
  HostSession(Platform& platform, Scheduler scheduler, SimulatedDevice device = SimulatedDevice());

  /// Replaces the device; a new control comes with it.
  void Connect(SimulatedDevice device);
  /// Replaces the settings and states them to the control.
  void Configure(const HostSettings& settings);

  /// Commands 10, 11 and 15. The first two return when their dialog has been closed.
  void Download();
  void Upload();
  void OpenMenu();

  [[nodiscard]] MainMenuCtrl& Control() { return *control_; }
  [[nodiscard]] const SimulatedDevice& Device() const { return device_; }
  [[nodiscard]] const HostSettings& Settings() const { return settings_; }
  [[nodiscard]] const Exchange& LastExchange() const { return *exchange_; }
  /// Events raised and what the host could not do, in plain words, oldest first; since last taken.
  [[nodiscard]] std::vector<std::string> TakeLog() { return std::exchange(log_, {}); }

  /// Called after each entry of the log, and when the device or the settings were replaced. May
  /// take the log; must not replace the device or start a transfer.
  std::function<void()> on_change;

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
  void PlaceControl();
  void StateSettings();
  void StateIdentity();
  void Log(std::string entry);
  /// Runs `answer` now or after the link's latency, unless the exchange is over by then.
  void Reply(std::function<void()> answer);
  void HandOver(int block);

  Platform& platform_;
  Scheduler scheduler_;
  HostSettings settings_;
  SimulatedDevice device_;
  std::vector<std::string> log_;
  /// Replaced by every new exchange, so that answers to an old one find it gone.
  std::shared_ptr<Exchange> exchange_ = std::make_shared<Exchange>();
  std::unique_ptr<MainMenuCtrl> control_;
};

}  // namespace quorvel::muxhost
