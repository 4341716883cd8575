#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/block_image.h"
#include "core/identity.h"
#include "quorvel/headless_platform.h"
#include "quorvel/main_menu_ctrl.h"
#include "resources/default_images.h"

namespace quorvel {

/// The platform's files are kept in memory.
class TestPlatform : public HeadlessPlatform {
 public:
  std::vector<std::uint8_t> ReadFile(const std::string& path) override {
    if (!files.contains(path)) throw PlatformError("no such file");
    return files[path];
  }
  void ReplaceFile(const std::string& path, std::span<const std::uint8_t> bytes) override {
    if (disk_is_full) throw PlatformError("the disk is full");
    files[path].assign(bytes.begin(), bytes.end());
  }

  std::map<std::string, std::vector<Byte>> files;
  bool disk_is_full = false;
};

/// A host with a device in memory. It answers on the next turn of the loop, or inside the event.
class TestHost : public MainMenuEvents {
 public:
  explicit TestHost(int resource = 401) : device(LoadDefaultImage(resource)) { NewControl(); }

  void NewControl() {
    control = std::make_unique<MainMenuCtrl>(platform, *this);
    control->InitProperties();
  }
  /// Command 10, as somebody does who waits for the end and presses OK.
  void Download() {
    platform.at_modal = [](Dialog& dialog) {
      return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
    };
    control->Custom(10, 0, 0);
    platform.at_modal = nullptr;
  }
  /// Command 15 and the popup.
  void OpenMenu(std::int32_t link = 1) {
    control->Custom(15, link, 0);
    platform.RunUntilIdle();
  }
  Dialog& OpenCameraSetup() {
    OpenMenu();
    platform.ChooseMenu("mnu_CSetup");
    return platform.Window("frm_CameraSetup");
  }
  void Identify(Byte cameras, Byte model_code, Byte variant = '4') {
    WriteIdentityBlock(device, cameras, model_code, "UNIT 1");
    device.Block(183)[7] = variant;
  }

  void RequestBlk(std::uint8_t blknum) override {
    Log("RequestBlk " + std::to_string(blknum));
    if (control == nullptr) return;
    if (blknum == silent_from) return;
    if (sync) {
      Reply(blknum);
    } else {
      platform.Post([this, blknum] { Reply(blknum); });
    }
  }
  void UploadSucceeded() override { Log("UploadSucceeded"); }
  void ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                          std::uint8_t param2) override {
    Log("ULSucceededWithStr " + std::string(mname) + " " + std::to_string(param1) + " " +
        std::to_string(param2));
  }
  void DownLoadData(std::span<std::uint8_t> bdata) override {
    EXPECT_EQ(bdata.size(), 18U);
    EXPECT_EQ(bdata[17], 0);
    sent.push_back(bdata[0]);
    if (bdata[0] != 255 && device.Holds(bdata[0])) {
      std::copy(bdata.begin() + 1, bdata.begin() + 17, device.Block(bdata[0]).begin());
    }
    Log("DownLoadData " + std::to_string(bdata[0]));
    if (acknowledge && control != nullptr) control->TriggerUploadTimer();
  }
  void RequestComboBlocks() override {
    Log("RequestComboBlocks");
    if (combo.empty() || control == nullptr) return;
    const auto answer = [this] {
      if (control != nullptr) control->FillComboBlk(combo);
    };
    if (sync) {
      answer();
    } else {
      platform.Post(answer);
    }
  }
  void SendComboBlocks(std::span<std::uint8_t> cb_data) override {
    sent_combo.assign(cb_data.begin(), cb_data.end());
    std::fill(cb_data.begin(), cb_data.end(), Byte{0xEE});  // hosts may
    Log("SendComboBlocks " + std::to_string(cb_data.size()));
  }
  void ActGridPop(std::uint8_t maxcam) override { Log("ActGridPop " + std::to_string(maxcam)); }
  void ActGridData(std::span<const std::uint8_t> barray) override {
    grid.assign(barray.begin(), barray.end());
    Log("ActGridData");
  }
  void Click() override { Log("Click"); }
  void DblClick() override { Log("DblClick"); }

  [[nodiscard]] int Count(std::string_view event) const {
    return static_cast<int>(std::count(log.begin(), log.end(), event));
  }
  [[nodiscard]] std::vector<int> Modified() const {
    const auto numbers = control->ModifiedBlocks();
    return {numbers.begin(), numbers.end()};
  }

  /// Text of the only message box since last asked; empty when there was none.
  [[nodiscard]] std::string OnlyMessage() {
    const auto messages = platform.TakeMessages();
    EXPECT_LE(messages.size(), 1U);
    return messages.empty() ? "" : messages[0].text;
  }
  TestPlatform platform;
  BlockImage device;
  std::unique_ptr<MainMenuCtrl> control;
  bool sync = false;
  bool acknowledge = true;
  int silent_from = 0;  ///< the request that gets no answer
  std::size_t reply_bytes = kBlockSize;
  /// Called inside the event whose log entry this is.
  std::string act_in;
  std::function<void()> act;
  std::vector<std::string> log;
  std::vector<int> sent;  ///< block numbers of the packets
  std::vector<Byte> grid;
  std::vector<Byte> combo;       ///< the answer to RequestComboBlocks; none while it is empty
  std::vector<Byte> sent_combo;  ///< what SendComboBlocks brought last

 private:
  void Log(const std::string& entry) {
    log.push_back(entry);
    if (act && entry == act_in) std::exchange(act, nullptr)();
  }
  void Reply(Byte number) {
    if (control == nullptr || !device.Holds(number)) return;
    std::vector<Byte> reply{number};
    const auto block = device.Block(number);
    // Block 1 is whole, so that the count is known.
    const auto bytes = number == 1 ? std::size_t{kBlockSize} : reply_bytes;
    reply.insert(reply.end(), block.begin(), block.begin() + static_cast<std::ptrdiff_t>(bytes));
    control->FillDataBlk(reply);
  }
};

}  // namespace quorvel
