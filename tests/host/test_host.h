#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "quorvel/block_image.h"
#include "quorvel/default_images.h"
#include "quorvel/headless_platform.h"
#include "quorvel/identity.h"
#include "quorvel/main_menu_ctrl.h"

namespace quorvel {

inline std::vector<Byte> BytesOf(const BlockImage& image) {
  return {image.Bytes().begin(), image.Bytes().end()};
}

/// The combined array around an image of 200 blocks: so many of the 8 bytes of two macro records.
inline std::vector<Byte> ArrayOf(const BlockImage& image, std::size_t macros = 8) {
  constexpr Byte kHead[] = {0, 13, 0x0C, 0x80, 0, 8, 0, 4, 2, 0, 200, 5, 6};
  const auto bytes = image.Bytes();
  std::vector<Byte> array(std::size(kHead) + bytes.size() + macros, 'M');
  std::ranges::copy(bytes, std::ranges::copy(kHead, array.begin()).out);
  return array;
}

/// The platform's files are kept in memory.
class TestPlatform : public HeadlessPlatform {
 public:
  std::vector<std::uint8_t> ReadFile(const std::string& path) override {
    if (!files.contains(path)) throw PlatformError("no such file");
    return files[path];
  }
  void StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) override {
    files[path].assign(bytes.begin(), bytes.end());
  }

  std::optional<std::string> AskFile(const FileRequest& request) override {
    if (in_file_dialog) in_file_dialog();
    return HeadlessPlatform::AskFile(request);
  }

  std::function<void()> in_file_dialog;  ///< called while one is open
  std::map<std::string, std::vector<Byte>> files;
};

/// A host with a device in memory. It answers on the next turn of the loop, or inside the event.
class TestHost : public MainMenuEvents {
 public:
  explicit TestHost(int resource = 401) : device(LoadDefaultImage(resource)) { NewControl(); }

  void NewControl() {
    control = std::make_unique<MainMenuCtrl>(platform, *this);
    control->InitProperties();
  }
  /// Gives a command that opens a modal dialog, in which the user presses OK as soon as it can be.
  void CommandWithOk(std::int16_t command) {
    platform.at_modal = [](Dialog& dialog) {
      return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
    };
    control->Custom(command, 0, 0);
    platform.at_modal = nullptr;
  }
  void Download() { CommandWithOk(10); }
  /// Command 15 and the popup.
  void OpenMenu() {
    control->Custom(15, 1, 0);
    platform.RunUntilIdle();
  }
  void EditTitle(int camera, const char* title) {
    OpenMenu();
    platform.ChooseMenu("mnu_CSetup");
    Dialog& editor = platform.Window("frm_CameraSetup");
    editor.Find<TextBox>("m_CameraTitle(" + std::to_string(camera) + ")").Type(title);
    editor.Find<Button>("cmd_OK").Click();
  }
  /// States the sizes of the combined exchange: 2 macro records of 4 bytes.
  void StateSizes(Byte blocks = 200) {
    control->FillComboInfo(std::vector<Byte>{0, 4, 2, 0, blocks, 5, 6});
  }
  void Identify(Byte cameras, Byte model_code, Byte variant = '4') {
    WriteIdentityBlock(device, cameras, model_code, "UNIT 1");
    device.Block(183)[7] = variant;
  }

  /// Hands over a block of the device, asked for or not.
  void Give(int number, std::size_t length = 1 + kBlockSize) {
    std::vector<Byte> reply(std::max<std::size_t>(length, 1 + kBlockSize));
    reply.front() = static_cast<Byte>(number);
    std::ranges::copy(device.Block(number), reply.begin() + 1);
    control->FillDataBlk(std::span<const Byte>(reply).first(length));
  }

  /// Hands over the device's image in one piece.
  void GiveWholeImage() {
    std::vector<Byte> image(device.Bytes().begin(), device.Bytes().end());
    image.push_back(0);
    control->FillDataBlk(image);
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
    if (control != nullptr && device.Holds(number)) Give(number);
  }
};

}  // namespace quorvel
