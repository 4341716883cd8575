#include "host/settings_file.h"

#include <gtest/gtest.h>

#include "host/combined_exchange.h"
#include "tests/host/test_host.h"

namespace quorvel {
namespace {

std::vector<Byte> BytesOf(const BlockImage& image) {
  return {image.Bytes().begin(), image.Bytes().end()};
}

/// A file of `length` bytes whose byte 15 is `count`.
std::vector<Byte> FileOf(std::size_t length, Byte count) {
  std::vector<Byte> bytes(length);
  if (length > 15) bytes[15] = count;
  return bytes;
}

/// The same, that begins with the header of a combined array without macros.
std::vector<Byte> CombinedFileOf(int blocks, std::size_t length) {
  auto bytes = FileOf(length, 0);
  const auto data = static_cast<std::size_t>(blocks) * 16;
  bytes[1] = 13;
  bytes[2] = static_cast<Byte>(data / 256);
  bytes[3] = static_cast<Byte>(data % 256);
  bytes[10] = static_cast<Byte>(blocks);
  bytes[13 + 15] = static_cast<Byte>(blocks);
  return bytes;
}

TEST(SettingsFile, LengthTellsTheLayout) {
  enum Layout { kPlain, kCombined, kRefused };
  const struct {
    const char* name;
    bool combined_exchange;
    int blocks;  ///< as the host has stated
    int macros;
    std::vector<Byte> bytes;
    Layout layout;
  } cases[] = {
      {"185 blocks", false, 0, 0, FileOf(2960, 185), kPlain},
      {"the longest that counts as plain", false, 0, 0, FileOf(3488, 7), kPlain},
      {"longer", false, 0, 0, CombinedFileOf(217, 3489), kCombined},
      {"longer and no array", false, 0, 0, FileOf(3489, 7), kRefused},
      {"225 blocks by their own count", false, 0, 0, FileOf(3600, 225), kPlain},
      {"a short combined array", false, 0, 0, CombinedFileOf(185, 2973), kRefused},
      {"as many blocks as stated", true, 185, 0, FileOf(2960, 185), kPlain},
      {"the same, macros stated", true, 185, 32, FileOf(2960, 185), kPlain},
      {"with a header", true, 185, 0, CombinedFileOf(185, 2973), kCombined},
      {"fewer blocks", true, 225, 0, FileOf(2960, 185), kPlain},
      {"an array of fewer blocks", true, 225, 0, CombinedFileOf(185, 2973), kRefused},
      {"plain where no blocks were stated", true, 0, 0, FileOf(2960, 185), kPlain},
      {"nothing", true, 0, 0, {}, kRefused},
      {"no block by its own count", false, 0, 0, FileOf(2960, 0), kRefused},
      {"a combined array that is cut", true, 185, 0, CombinedFileOf(185, 2972), kRefused},
      {"the longest array", true, 185, 0, CombinedFileOf(185, 32767), kCombined},
      {"longer than any", true, 185, 0, CombinedFileOf(185, 32768), kRefused},
      {"the same, plain", false, 0, 0, FileOf(32768, 185), kRefused},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.name);
    HeadlessPlatform platform;
    Context context(platform);
    context.ComboMode = it.combined_exchange;
    context.combo_sizes.ComboBlockCount = static_cast<std::uint16_t>(it.blocks);
    context.combo_sizes.ComboMacroCount = static_cast<Byte>(it.macros);
    context.combo_sizes.ComboMacroSize = 10;
    if (it.layout == kRefused) {
      EXPECT_THROW(static_cast<void>(ReadSettingsFile(context, it.bytes)), ImageError);
      continue;
    }
    const SettingsFile file = ReadSettingsFile(context, it.bytes);
    EXPECT_EQ(file.combined, it.layout == kCombined);
    EXPECT_EQ(file.array.Bytes().empty(), !it.combined_exchange && !file.combined);
    EXPECT_EQ(file.image.Size(), file.combined ? it.bytes[10] * 16U : it.bytes.size());
  }
}

TEST(SettingsFile, APlainFileGetsAHeader) {
  HeadlessPlatform platform;
  Context context(platform);
  context.ComboMode = true;
  context.combo_sizes = {.ComboMacroSize = 0x0102,
                         .ComboMacroCount = 0,
                         .ComboBlockCount = 200,
                         .ComboExtraA = 5,
                         .ComboExtraB = 6};
  const auto header_of = [&context](const SettingsFile& file) {
    const auto bytes = file.array.Bytes();
    EXPECT_EQ(bytes.size(), 13U + file.array.Header().DataLen);
    return std::vector<Byte>(bytes.begin(), bytes.begin() + 13);
  };
  // Without macro records the stated number of blocks replaces that of the file.
  const auto plain = FileOf(2960, 185);
  EXPECT_EQ(header_of(ReadSettingsFile(context, plain)),
            (std::vector<Byte>{0, 13, 0x0C, 0x80, 0, 0, 1, 2, 0, 0, 200, 5, 6}));
  // An image is not cut to it.
  context.combo_sizes.ComboBlockCount = 180;
  EXPECT_EQ(header_of(ReadSettingsFile(context, FileOf(2880, 180)))[10], 180);
  EXPECT_EQ(BuildComboArray(context.combo_sizes, BlockImage(plain)).Header().BlockCount, 185);
  context.combo_sizes.ComboBlockCount = 200;
  context.combo_sizes.ComboMacroCount = 3;
  EXPECT_EQ(header_of(ReadSettingsFile(context, plain)),
            (std::vector<Byte>{0, 13, 0x0B, 0x90, 0, 0, 1, 2, 3, 0, 185, 5, 6}));
}

class Files : public ::testing::Test {
 protected:
  void SetUp() override {
    StateIdentity(16, 6, "UNIT 1");
    host_.Identify(16, 6);
    host_.Download();
  }
  void StateIdentity(Byte cameras, Byte code, const std::string& name) {
    std::vector<Byte> info{0, cameras, code};
    info.insert(info.end(), name.begin(), name.end());
    host_.control->SaveConnectedInfo(info);
  }
  void EditTitle(const char* title) {
    auto& editor = host_.OpenCameraSetup();
    editor.Find<TextBox>("m_CameraTitle(0)").Type(title);
    editor.Find<Button>("cmd_OK").Click();
  }
  std::string Title() {
    const auto lines = host_.control->Settings("CamInfo(0).title");
    return lines.empty() ? "" : lines[0].value;
  }
  void Save() {
    host_.platform.AnswerNextFile("settings.bin");
    host_.control->Custom(14, 0, 0);
  }
  /// Command 12 with that file, and OK; returns what the dialog says.
  std::string Restore(const std::string& name = "settings.bin") {
    std::string said;
    host_.platform.AnswerNextFile(name);
    host_.platform.at_modal = [&said](Dialog& dialog) {
      said = dialog.Caption() + ": " + dialog.Find<Label>("Label3").Caption() + " " +
             dialog.Find<Label>("Label4").Caption();
      EXPECT_FALSE(dialog.Find<Button>("cmdSaveFile").Visible());
      return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
    };
    host_.control->Custom(12, 0, 0);
    host_.platform.at_modal = nullptr;
    return said;
  }
  /// True when command 11 opens its dialog.
  bool SendOpens() {
    bool opened = false;
    host_.platform.at_modal = [&opened](Dialog& dialog) {
      opened = true;
      return dialog.CloseWindow() == Answer::kDone;
    };
    host_.control->Custom(11, 0, 0);
    host_.platform.at_modal = nullptr;
    return opened;
  }
  std::vector<Byte>& File() { return host_.platform.files["settings.bin"]; }

  TestHost host_;
};

TEST_F(Files, SaveChangeRestore) {
  EditTitle("Lobby");
  File().resize(5000);  // a longer file of that name
  Save();
  const auto requests = host_.platform.TakeFileRequests();
  ASSERT_EQ(requests.size(), 1U);
  EXPECT_EQ(requests[0].default_name, "MuxMenuSave.bin");
  EXPECT_EQ(requests[0].default_extension, "bin");
  EXPECT_TRUE(requests[0].ask_before_overwriting);
  ASSERT_EQ(File().size(), 3200U);
  EXPECT_EQ(std::string(File().begin(), File().begin() + 13), "Lobby        ");
  EXPECT_EQ(host_.Modified(), std::vector<int>{1});

  EditTitle("Garage");
  host_.log.clear();
  EXPECT_EQ(Restore(), "Restore Block Data: 3200 Finished");
  EXPECT_EQ(Title(), "\"Lobby\"");
  EXPECT_TRUE(host_.Modified().empty());
  EXPECT_EQ(host_.log, std::vector<std::string>{"UploadSucceeded"});
  const auto request = host_.platform.TakeFileRequests().at(0);
  EXPECT_TRUE(request.must_exist && request.read_only_box);
  host_.control->HostCommId(2);
  Restore();
  EXPECT_EQ(host_.log.back().substr(0, 25), "ULSucceededWithStr UNIT 1");
}

TEST_F(Files, WhatCannotBeReadOrWrittenChangesNothing) {
  EditTitle("Typed");
  Save();
  const auto good = File();
  const auto unchanged = [this] {
    return Title() == "\"Typed\"" && host_.Modified() == std::vector<int>{1};
  };
  host_.platform.disk_is_full = true;
  Save();
  EXPECT_EQ(host_.OnlyMessage(), "Error found in SaveImageToFile");
  EXPECT_EQ(File(), good);

  EXPECT_EQ(Restore("no such file"), "");
  EXPECT_EQ(host_.OnlyMessage(), "Error found in RestoreImageFromFile");
  const struct {
    std::size_t length;
    std::size_t at;
    Byte value;
  } cases[] = {{0, 0, 0}, {100, 0, 0}, {3199, 0, 0}, {3200, 2944, 17}, {40000, 0, 0}};
  for (const auto& it : cases) {
    File() = good;
    File()[it.at] = it.length == 0 ? File()[it.at] : it.value;
    File().resize(it.length);
    EXPECT_EQ(Restore(), "") << it.length;
    EXPECT_EQ(host_.OnlyMessage(), "Error found in RestoreImageFromFile") << it.length;
    EXPECT_TRUE(unchanged()) << it.length;
  }
  host_.control->Custom(12, 0, 0);  // cancelled
  EXPECT_EQ(host_.OnlyMessage(), "");
  EXPECT_TRUE(unchanged());
}

TEST_F(Files, RestoredDataMustBeOfTheConnectedModel) {
  const struct {
    Byte cameras;
    Byte code;
    const char* name;  ///< in the file
    const char* connected;
    bool fits;
  } cases[] = {
      {16, 6, "UNIT 1", "UNIT 1", true},
      {16, 7, "UNIT 1", "UNIT 1", true},
      {16, 8, "UNIT 1", "UNIT 1", false},
      {10, 6, "UNIT 1", "UNIT 1", false},
      {16, 6, "UNIT 2", "UNIT 1", false},
      {16, 6, "unit 1", "UNIT 1", false},
      {16, 6, "Vaultline Pro", "Vaultline Adv", true},
      {16, 6, "Vaultline Adv", " Vaultline Pro ", true},
      {16, 6, "Vaultline", "Vaultline Adv", false},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.name);
    File() = BytesOf(host_.device);
    BlockImage image(File());
    WriteIdentityBlock(image, it.cameras, it.code, it.name);
    File() = BytesOf(image);
    StateIdentity(16, 6, it.connected);
    Restore();
    EXPECT_EQ(SendOpens(), it.fits);
    EXPECT_EQ(host_.platform.TakeMessages().size(), it.fits ? 0U : 1U);
  }
  // The device's own data is not compared.
  StateIdentity(4, 9, "OTHER");
  EXPECT_FALSE(SendOpens());
  EXPECT_EQ(host_.OnlyMessage(),
            "The current data does not match the data of the remote device\r"
            "You are connected to model:  OTHER (4 ch, Triplex PAL, Lite/EZ)\r"
            "You are loading data from model:  Vaultline (16 ch, Triplex NTSC)");
  host_.Download();
  EXPECT_TRUE(SendOpens());
}

TEST_F(Files, DataOfMultiplexersAndDuplexRecordersComesLocked) {
  const struct {
    Byte code;
    Byte comm_id;
    Byte lock;
  } cases[] = {{3, 0, 1}, {3, 1, 0}, {6, 0, 0}, {0x83, 0, 0}};
  for (const auto& it : cases) {
    File() = BytesOf(LoadDefaultImage(301));
    File()[2945] = it.code;
    File()[949] = 0;
    host_.control->HostCommId(it.comm_id);
    Restore();
    EXPECT_EQ(host_.control->Image().at(949), it.lock) << int{it.code};
  }
}

TEST_F(Files, ACombinedFileIsTheArray) {
  host_.control->FillComboInfo(std::vector<Byte>{0, 4, 2, 0, 200, 5, 6});
  host_.combo = {0, 13, 0x0C, 0x80, 0, 8, 0, 4, 2, 0, 200, 5, 6};
  host_.combo.insert(host_.combo.end(), host_.device.Bytes().begin(), host_.device.Bytes().end());
  for (const Byte macro : {1, 2, 3, 4, 5, 6, 7, 8}) host_.combo.push_back(macro);
  host_.Download();
  EditTitle("Lobby");
  Save();
  auto expected = host_.combo;
  std::ranges::copy(std::string("Lobby        "), expected.begin() + 13);
  EXPECT_EQ(File(), expected);
  EditTitle("Garage");
  EXPECT_EQ(Restore(), "Restore Block Data: 3221 Finished");
  EXPECT_EQ(Title(), "\"Lobby\"");
  EXPECT_TRUE(SendOpens());
}

TEST_F(Files, DataWithoutAnIdentityFitsNoDevice) {
  File() = FileOf(16 * 100, 100);
  Restore();
  EXPECT_FALSE(SendOpens());
  const std::string message = host_.OnlyMessage();
  EXPECT_NE(message.find("You are loading data from model:"), std::string::npos) << message;
  EXPECT_NE(message.find("(0 ch, Mux model)"), std::string::npos) << message;
}

TEST_F(Files, ARestoreEndsADownload) {
  Save();
  host_.log.clear();
  host_.act_in = "RequestBlk 50";
  host_.act = [this] { Restore(); };
  host_.sync = true;
  host_.control->Custom(10, 0, 0);
  host_.platform.RunUntilIdle();
  EXPECT_EQ(host_.Count("RequestBlk 51"), 0);
  EXPECT_EQ(host_.Count("UploadSucceeded"), 1);
  EXPECT_EQ(host_.control->Image(), BytesOf(host_.device));
}

}  // namespace
}  // namespace quorvel
