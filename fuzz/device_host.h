#pragma once

#include <memory>
#include <vector>

#include "fuzz/byte_source.h"
#include "fuzz/desk.h"
#include "quorvel/block_image.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel::fuzz {

/// A host with a device in memory, which answers from inside the events and checks what it is
/// given.
class DeviceHost : public MainMenuEvents {
 public:
  DeviceHost();
  DeviceHost(const DeviceHost&) = delete;
  DeviceHost& operator=(const DeviceHost&) = delete;
  ~DeviceHost() override = default;

  /// Command 10. The person presses Save File if `save`, then OK, or closes the window.
  void Download(bool save);
  /// Command 11. The person clicks as the input says, then lets the send end and closes.
  void Upload(ByteSource& in);
  /// Hands the whole image over in one call, as a host with a HostCommId.
  void GiveWholeImage();
  /// Changes one activity grid, which lists a block.
  void ChangeGrid(Byte camera, Byte cell);

  void RequestComboBlocks() override;
  void SendComboBlocks(std::span<std::uint8_t> cb_data) override;
  void ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                          std::uint8_t param2) override;
  void RequestBlk(std::uint8_t blknum) override;
  void UploadSucceeded() override { ++arrivals; }
  void DownLoadData(std::span<std::uint8_t> bdata) override;

  Desk desk;
  BlockImage device;
  std::vector<Byte> array;  ///< the device's combined array
  int arrivals = 0;         ///< images that have arrived in the control
  std::vector<std::vector<Byte>> arrays_sent;
  int packets = 0;
  std::unique_ptr<MainMenuCtrl> control;  ///< last: its end still uses the desk
};

/// A packet is whole, and holds what the control's image has.
void CheckPacket(std::span<const Byte> packet, const MainMenuCtrl& control);

/// Numbers of the blocks that hold changes are blocks, and each is told once.
void CheckModifiedBlocks(const MainMenuCtrl& control);

}  // namespace quorvel::fuzz
