#include "fuzz/device_host.h"

#include <algorithm>
#include <bitset>

#include "fuzz/check.h"
#include "fuzz/material.h"
#include "fuzz/random_user.h"

namespace quorvel::fuzz {

DeviceHost::DeviceHost() : control(std::make_unique<MainMenuCtrl>(desk, *this)) {
  control->InitProperties();
}

void DeviceHost::Download(bool save) {
  desk.at_modal = [save](Dialog& dialog) mutable {
    if (save && PressButton(dialog, "cmdSaveFile")) save = false;
    return PressButton(dialog, "cmdOK") || dialog.CloseWindow() == Answer::kDone;
  };
  Check(control->Custom(10, 0, 0) == 0, "Custom returns 0");
  desk.at_modal = nullptr;
}

void DeviceHost::Upload(ByteSource& in) {
  int clicks = 6;
  // Once nothing is left to happen, the platform closes the dialog.
  desk.at_modal = [&](Dialog& dialog) {
    if (clicks-- > 0) {
      UseOneOf(dialog, {"chkMacro(0)", "chkMacro(1)", "optBlk(0)", "optBlk(1)", "cmdOK", "cmdStop"},
               in);
      return true;
    }
    return clicks == -1 && PressButton(dialog, "cmdOK");
  };
  Check(control->Custom(11, 0, 0) == 0, "Custom returns 0");
  desk.at_modal = nullptr;
}

void DeviceHost::GiveWholeImage() {
  std::vector<Byte> bytes(device.Bytes().begin(), device.Bytes().end());
  bytes.push_back(0xEE);  // the byte that is not read
  Check(control->FillDataBlk(bytes) == 0, "FillDataBlk returns 0");
}

void DeviceHost::ChangeGrid(Byte camera, Byte cell) {
  std::vector<Byte> grid(33, cell);
  grid[0] = camera;
  Check(control->UpdateActGrid(grid) == 0, "UpdateActGrid returns 0");
}

void DeviceHost::RequestComboBlocks() {
  Check(control->FillComboBlk(array) == 0, "FillComboBlk returns 0");
}

void DeviceHost::SendComboBlocks(std::span<std::uint8_t> cb_data) {
  arrays_sent.emplace_back(cb_data.begin(), cb_data.end());
}

void DeviceHost::ULSucceededWithStr(std::string_view /*mname*/, std::uint8_t /*param1*/,
                                    std::uint8_t param2) {
  Check(param2 <= kMostCameras, "a device has 16 cameras at most");
  ++arrivals;
}

void DeviceHost::RequestBlk(std::uint8_t blknum) {
  Check(blknum != 0, "a block that exists is asked for");
  std::vector<Byte> reply{blknum};
  const auto bytes = device.Bytes();
  const auto start = std::min(bytes.size(), static_cast<std::size_t>(blknum - 1) * kBlockSize);
  const auto block = bytes.subspan(start).first(std::min<std::size_t>(16, bytes.size() - start));
  reply.insert(reply.end(), block.begin(), block.end());
  Check(control->FillDataBlk(reply) == 0, "FillDataBlk returns 0");
}

void DeviceHost::DownLoadData(std::span<std::uint8_t> bdata) {
  CheckPacket(bdata, *control);
  Check(bdata[0] != 0 && bdata[0] != 194 && bdata[0] != 218, "only blocks that may be are sent");
  ++packets;
  Check(control->TriggerUploadTimer() == 0, "TriggerUploadTimer returns 0");
}

void CheckPacket(std::span<const Byte> packet, const MainMenuCtrl& control) {
  Check(packet.size() == 18 && packet[17] == 0, "a packet has 18 bytes, the last 0");
  if (packet[0] == 255) return;
  const BlockImage image(control.Image());
  Check(image.Holds(packet[0]) && std::ranges::equal(image.Block(packet[0]), packet.subspan(1, 16)),
        "a packet carries its block");
}

void CheckModifiedBlocks(const MainMenuCtrl& control) {
  std::bitset<256> seen;
  for (const Byte number : control.ModifiedBlocks()) {
    Check(number != 0 && !seen[number], "modified blocks are distinct and not 0");
    seen.set(number);
  }
}

}  // namespace quorvel::fuzz
