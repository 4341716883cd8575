// A host in its smallest form: its device is an array of bytes. It reads the device into the
// control, edits by name and in a window, writes back what changed, and looks at the array.
#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"

constexpr std::size_t kBlock = 16, kBlocks = 225;

class Host : public quorvel::MainMenuEvents {
 public:
  explicit Host(quorvel::Platform& platform) : control(platform, *this) {
    const std::array<std::uint8_t, 4> identity{0, 4, 7, 'T'};  // cameras, model code, model name
    std::copy(identity.begin() + 1, identity.end(), Block(185));
    device.at(15) = kBlocks;  // block 1, byte 15: how many there are
    control.InitProperties();
    control.Custom(18, 48, 1);  // device family; captions speak of a DVR
    control.SaveConnectedInfo(identity);
  }
  void RequestBlk(std::uint8_t number) override {
    std::array<std::uint8_t, 1 + kBlock> reply{number};
    std::copy_n(Block(number), kBlock, reply.begin() + 1);
    control.FillDataBlk(reply);
  }
  void DownLoadData(std::span<std::uint8_t> packet) override {
    if (packet[0] <= kBlocks) std::copy_n(&packet[1], kBlock, Block(packet[0]));  // 255: the end
    control.TriggerUploadTimer();
  }
  std::uint8_t* Block(std::size_t number) { return &device.at((number - 1) * kBlock); }

  std::array<std::uint8_t, kBlocks * kBlock> device{};
  quorvel::MainMenuCtrl control;
};

int main() {
  quorvel::HeadlessPlatform platform;
  Host host(platform);
  host.control.StartReceive();
  host.control.SetSetting("CamInfo(1).title", "Yard");

  host.control.Custom(15, 1, 0);  // the menu, for a host with a network link
  platform.RunUntilIdle();
  platform.ChooseMenu("mnu_CSetup");
  platform.User().Type("m_CameraTitle(0)", "Front door");
  platform.User().Click("cmd_OK");

  host.control.StartSend({.all_blocks = false});
  platform.RunUntilIdle();
  const auto holds = [&host](std::size_t block, std::string_view title) {
    return std::equal(title.begin(), title.end(), host.Block(block));
  };
  const bool written = holds(1, "Front door") && holds(2, "Yard");
  const auto differences = host.control.DifferencesFrom(host.device);
  const bool same = differences && differences->empty();  // in every other setting, too
  std::cout << (written && same ? "The device has what was edited.\n" : "An edit is lost.\n");
  return written && same ? 0 : 1;
}
