#include "host/settings_file.h"

#include <gtest/gtest.h>

#include "host/combined_exchange.h"
#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// A file of `length` bytes whose byte 15 is `count`.
std::vector<Byte> FileOf(std::size_t length, Byte count) {
  std::vector<Byte> bytes(length);
  if (length > 15) bytes[15] = count;
  return bytes;
}

TEST(SettingsFile, APlainFileGetsAHeader) {
  HostStatements host;
  host.ComboMode = true;
  host.combo_sizes = {.ComboMacroSize = 0x0102,
                      .ComboMacroCount = 0,
                      .ComboBlockCount = 200,
                      .ComboExtraA = 5,
                      .ComboExtraB = 6};
  const auto header_of = [](const SettingsFile& file) {
    const auto bytes = file.array.Bytes();
    EXPECT_EQ(bytes.size(), 13U + file.array.Header().DataLen);
    return std::vector<Byte>(bytes.begin(), bytes.begin() + 13);
  };
  // Without macro records the stated number of blocks replaces that of the file.
  const auto plain = FileOf(2960, 185);
  EXPECT_EQ(header_of(ReadSettingsFile(host, plain)),
            (std::vector<Byte>{0, 13, 0x0C, 0x80, 0, 0, 1, 2, 0, 0, 200, 5, 6}));
  // An image is not cut to it.
  host.combo_sizes.ComboBlockCount = 180;
  EXPECT_EQ(header_of(ReadSettingsFile(host, FileOf(2880, 180)))[10], 180);
  EXPECT_EQ(BuildComboArray(host.combo_sizes, BlockImage(plain)).Header().BlockCount, 185);
  host.combo_sizes.ComboBlockCount = 200;
  host.combo_sizes.ComboMacroCount = 3;
  EXPECT_EQ(header_of(ReadSettingsFile(host, plain)),
            (std::vector<Byte>{0, 13, 0x0B, 0x90, 0, 0, 1, 2, 3, 0, 185, 5, 6}));
}

class Files : public ::testing::Test {
 protected:
  void SetUp() override {
    host_.Identify(16, 6);
    host_.Download();
  }
  std::vector<Byte>& File() { return host_.platform.files["settings.bin"]; }

  TestHost host_;
};

TEST_F(Files, DialogsAskForWhatSuits) {
  const auto press = [this](std::int16_t command, const char* button) {
    host_.platform.AnswerNextFile("settings.bin");
    host_.platform.at_modal = [button](Dialog& dialog) {
      if (dialog.Find<Button>(button).Click() != Answer::kDone) return false;
      return dialog.CloseWindow() == Answer::kDone;
    };
    host_.control->Custom(command, 0, 0);
    host_.platform.at_modal = nullptr;
    return host_.platform.TakeFileRequests().at(0);
  };
  const FileRequest save = press(14, "");
  EXPECT_EQ(save.default_name + " " + save.default_extension, "MuxMenuSave.bin bin");
  EXPECT_TRUE(save.ask_before_overwriting);
  const FileRequest receive = press(10, "cmdSaveFile");
  EXPECT_EQ(receive.default_name, "*.bin");
  EXPECT_TRUE(receive.ask_before_overwriting);
  const FileRequest restore = press(12, "cmdOK");
  EXPECT_TRUE(restore.must_exist && restore.read_only_box);
}

TEST_F(Files, ACancelledDialogOrOneThatTheControlDoesNotOutliveDoesNothing) {
  for (const std::int16_t command : {12, 14}) {
    SCOPED_TRACE(command);
    const auto image = host_.control->Image();
    host_.EditTitle(0, "Typed");
    host_.control->Custom(command, 0, 0);
    EXPECT_TRUE(host_.platform.files.empty());
    EXPECT_EQ(host_.control->Image(), image);  // nothing was encoded either
    host_.platform.in_file_dialog = [this] { host_.control.reset(); };
    File() = FileOf(3200, 200);
    host_.platform.AnswerNextFile("settings.bin");
    host_.control->Custom(command, 0, 0);
    EXPECT_EQ(File(), FileOf(3200, 200));
    EXPECT_TRUE(host_.platform.Windows().empty());
    EXPECT_EQ(host_.OnlyMessage(), "");
    host_.platform.in_file_dialog = nullptr;
    host_.platform.files.clear();
    host_.NewControl();
    host_.Download();
  }
}

TEST_F(Files, ARestoreEndsADownload) {
  File() = BytesOf(host_.device);
  host_.log.clear();
  host_.act_in = "RequestBlk 50";
  host_.platform.AnswerNextFile("settings.bin");
  host_.act = [this] { host_.CommandWithOk(12); };
  host_.sync = true;
  host_.control->Custom(10, 0, 0);
  host_.platform.RunUntilIdle();
  EXPECT_EQ(host_.Count("RequestBlk 51"), 0);
  EXPECT_EQ(host_.Count("UploadSucceeded"), 1);
  EXPECT_EQ(host_.control->Image(), BytesOf(host_.device));
}

}  // namespace
}  // namespace quorvel
