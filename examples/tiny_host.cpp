// A host in its smallest form: its device is an array of bytes. It reads the device into the
// control, has the titles of cameras edited, writes back what changed, and looks at the array.
#include <array>
#include <cstdint>
#include <iostream>
#include <string>

#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"
#include "quorvel/version.h"

namespace {

constexpr std::size_t kBlock = 16;

class Host : public quorvel::MainMenuEvents {
 public:
  explicit Host(quorvel::Platform& platform) : control(platform, *this) {
    device.at(15) = 225;                // block 1, byte 15: how many blocks there are
    device.at(184 * kBlock) = 4;        // block 185: cameras,
    device.at(184 * kBlock + 1) = 7;    // model code
    device.at(184 * kBlock + 2) = 'T';  // and model name
    control.InitProperties();
    control.Custom(18, 48, 1);  // device family, and a caption that tells of a DVR
    const std::array<std::uint8_t, 4> identity{0, 4, 7, 'T'};
    control.SaveConnectedInfo(identity);
  }
  void RequestBlk(std::uint8_t n) override {
    std::array<std::uint8_t, 1 + kBlock> reply{n};
    const auto block = device.begin() + (n - 1) * static_cast<std::ptrdiff_t>(kBlock);
    std::copy_n(block, kBlock, reply.begin() + 1);
    control.FillDataBlk(reply);
  }
  void DownLoadData(std::span<std::uint8_t> packet) override {
    const std::size_t at = (packet[0] - std::size_t{1}) * kBlock;
    if (at < device.size()) std::copy_n(packet.begin() + 1, kBlock, device.begin() + at);
    control.TriggerUploadTimer();
  }

  std::array<std::uint8_t, 225 * kBlock> device{};
  quorvel::MainMenuCtrl control;
};

}  // namespace

int main() {
  quorvel::HeadlessPlatform platform;
  Host host(platform);
  platform.at_modal = [](quorvel::Dialog& dialog) {  // the user at the dialogs of both transfers
    auto& start = dialog.Find<quorvel::Button>("cmdOK");
    if (dialog.Name() == "frm_ToMux" && !start.Enabled()) {  // sending, or at the end
      if (dialog.Find<quorvel::Button>("cmdStop").Visible()) return false;
      return dialog.Find<quorvel::Button>("cmdCancel").Click() == quorvel::Answer::kDone;
    }
    if (dialog.Name() == "frm_ToMux") dialog.Find<quorvel::OptionButton>("optBlk(1)").Click();
    return start.Click() == quorvel::Answer::kDone;
  };

  host.control.Custom(10, 0, 0);
  host.control.Custom(15, 1, 0);
  platform.RunUntilIdle();
  platform.ChooseMenu("mnu_CSetup");
  auto& cameras = platform.Window("frm_CameraSetup");
  cameras.Find<quorvel::TextBox>("m_CameraTitle(0)").Type("Front door");
  cameras.Find<quorvel::Button>("cmd_OK").Click();
  host.control.Custom(11, 0, 0);

  const std::string title(host.device.begin(), host.device.begin() + 10);
  std::cout << "quorvel " << quorvel::Version() << ": " << title << '\n';
  return title == "Front door" ? 0 : 1;
}
