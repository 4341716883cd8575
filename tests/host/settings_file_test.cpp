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
    StateIdentity(16, 6, "UNIT 1");
    host_.Identify(16, 6);
    host_.Download();
  }
  void StateIdentity(Byte cameras, Byte code, const std::string& name) {
    std::vector<Byte> info{0, cameras, code};
    info.insert(info.end(), name.begin(), name.end());
    host_.control->SaveConnectedInfo(info);
  }
  void EditTitle(const char* title) { host_.EditTitle(0, title); }
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

  EXPECT_EQ(Restore(), "Restore Block Data: 3200 Finished");
  const auto request = host_.platform.TakeFileRequests().at(0);
  EXPECT_TRUE(request.must_exist && request.read_only_box);
  host_.control->HostCommId(2);
  Restore();
  EXPECT_EQ(host_.log.back().substr(0, 25), "ULSucceededWithStr UNIT 1");
}

/// Files that cannot be restored are among the transcripts.
TEST_F(Files, WhatCannotBeWrittenOrIsCancelledChangesNothing) {
  Save();
  const auto good = File();
  EditTitle("Typed");
  host_.platform.disk_is_full = true;
  Save();
  EXPECT_EQ(host_.OnlyMessage(), "Error found in SaveImageToFile\rThe disk is full.");
  EXPECT_EQ(File(), good);
  host_.control->Custom(12, 0, 0);  // cancelled
  EXPECT_EQ(host_.OnlyMessage(), "");
  EXPECT_EQ(Title(), "\"Typed\"");
  EXPECT_EQ(host_.Modified(), std::vector<int>{1});
}

TEST_F(Files, ACancelledDialogOrOneThatTheControlDoesNotOutliveDoesNothing) {
  for (const std::int16_t command : {12, 14}) {
    SCOPED_TRACE(command);
    const auto image = host_.control->Image();
    EditTitle("Typed");
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

TEST_F(Files, TheReceiveDialogSavesWhatItHasReceived) {
  host_.StateSizes();
  host_.combo = {0, 13, 0x0C, 0x80, 0, 0, 0, 4, 0, 0, 200, 5, 6};
  host_.combo.insert(host_.combo.end(), host_.device.Bytes().begin(), host_.device.Bytes().end());
  const auto saved = [this] {
    host_.platform.AnswerNextFile("settings.bin");
    host_.platform.at_modal = [](Dialog& dialog) {
      if (dialog.Find<Button>("cmdSaveFile").Click() != Answer::kDone) return false;
      return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
    };
    host_.control->Custom(10, 0, 0);
    host_.platform.at_modal = nullptr;
    return File();
  };
  EXPECT_EQ(saved(), host_.combo);
  StateIdentity(16, 6, "UNIT 1");  // back to single blocks
  EXPECT_EQ(saved(), BytesOf(host_.device));
}

/// Which fits which is checked with the identities.
TEST_F(Files, OnlyRestoredDataMustBeOfTheConnectedModel) {
  File() = BytesOf(host_.device);
  Restore();
  EXPECT_TRUE(host_.SendOpens());
  StateIdentity(4, 9, "OTHER");
  EXPECT_FALSE(host_.SendOpens());
  host_.Download();
  EXPECT_TRUE(host_.SendOpens());
}

TEST_F(Files, ACombinedFileIsTheArray) {
  host_.StateSizes();
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
  EXPECT_TRUE(host_.SendOpens());
}

TEST_F(Files, ALongArrayIsSavedButNotRestored) {
  host_.StateSizes();
  host_.combo = {0, 13, 0x0C, 0x80, 0x73, 0x73, 0, 4, 2, 0, 200, 5, 6};
  host_.combo.insert(host_.combo.end(), host_.device.Bytes().begin(), host_.device.Bytes().end());
  host_.combo.resize(32768, 7);
  host_.Download();
  Save();
  EXPECT_EQ(host_.OnlyMessage(),
            "The file is saved. With 32768 bytes or more it cannot be restored.");
  EXPECT_EQ(File(), host_.combo);
  EXPECT_EQ(Restore(), "");
  EXPECT_EQ(
      host_.OnlyMessage(),
      "Error found in RestoreImageFromFile\rThe file has 32768 bytes; files of 32768 bytes or "
      "more cannot be restored.");
}

TEST_F(Files, DataWithoutAnIdentityIsThatOfAMultiplexer) {
  File() = FileOf(16 * 100, 100);
  Restore();
  EXPECT_FALSE(host_.SendOpens());
  EXPECT_TRUE(host_.OnlyMessage().ends_with("from model:   (16 ch, Mux model)"));
  for (const auto& name : {std::string("UNIT 1"), std::string(1, '\0')}) {
    StateIdentity(16, 0, name);
    EXPECT_TRUE(host_.SendOpens());
  }
  StateIdentity(4, 0, "UNIT 1");
  EXPECT_FALSE(host_.SendOpens());
}

/// Who the device is stands in block 185, whatever the count says.
TEST_F(Files, ADamagedCountMakesNoOtherDevice) {
  host_.Identify(4, 9);
  File() = BytesOf(host_.device);
  File()[15] = 100;
  Restore();
  EXPECT_FALSE(host_.SendOpens());
  EXPECT_TRUE(host_.OnlyMessage().ends_with("UNIT 1 (4 ch, Triplex PAL, Lite/EZ)"));
  StateIdentity(4, 9, "UNIT 1");
  EXPECT_TRUE(host_.SendOpens());
  host_.OpenMenu();
  EXPECT_FALSE(host_.platform.Menu().Item("mnu_Sequence").visible);
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
