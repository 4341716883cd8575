#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "quorvel/export.h"

namespace quorvel {

/// What the control asks of its host and tells it. Events are numbered as hosts know them. A host
/// overrides those that it handles. It may call back into the control, give any command, or destroy
/// the control from inside any of them. Data is valid during the call only.
class QUORVEL_API MainMenuEvents {
 public:
  virtual ~MainMenuEvents() = default;

  /// 1: read the whole configuration and hand it to FillComboBlk.
  virtual void RequestComboBlocks() {}
  /// 2: write this combined array (header, blocks, macro data) to the device.
  virtual void SendComboBlocks(std::span<std::uint8_t> /*cb_data*/) {}
  /// 3: a whole image has arrived from a host with non-zero HostCommId: model name, model code and
  /// number of cameras of the device it belongs to.
  virtual void ULSucceededWithStr(std::string_view /*mname*/, std::uint8_t /*param1*/,
                                  std::uint8_t /*param2*/) {}
  /// 4: read block `blknum` (from 1) and hand it to FillDataBlk.
  virtual void RequestBlk(std::uint8_t /*blknum*/) {}
  /// 5: the device's data has arrived in the control.
  virtual void UploadSucceeded() {}
  /// 6: write a block to the device, then call TriggerUploadTimer. 18 bytes: the block number, its
  /// 16 bytes, 0. Block number 255 with zero bytes ends the send.
  virtual void DownLoadData(std::span<std::uint8_t> /*bdata*/) {}
  /// 7: the user wants to edit activity grids; the device has `maxcam` cameras.
  virtual void ActGridPop(std::uint8_t /*maxcam*/) {}
  /// 8: the 32 grid bytes of the camera that command 17 named.
  virtual void ActGridData(std::span<const std::uint8_t> /*barray*/) {}
  /// 9 and 10: the control's surface was clicked or double-clicked.
  virtual void Click() {}
  virtual void DblClick() {}
};

}  // namespace quorvel
