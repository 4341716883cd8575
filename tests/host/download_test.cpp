#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

TEST(Download, UnusableImagesAreRefusedAndTheOldRecordStays) {
  TestHost host;
  host.device.Block(3)[0] = 'X';
  host.Download();
  host.device.Block(185)[0] = 17;
  host.device.Block(3)[0] = 'Y';
  host.control->Custom(10, 0, 0);
  auto messages = host.platform.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].text,
            "Error found in FillDataBlk\rThe configuration names 17 cameras; 16 are the most.");
  EXPECT_EQ(messages[0].title, "Quorvel");
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  auto& editor = host.OpenCameraSetup();
  EXPECT_EQ(editor.Find<TextBox>("m_CameraTitle(2)").Text(), "Xamera 03");

  host.control->FillDataBlk({});
  messages = host.platform.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].text, "Error found in FillDataBlk\rThe reply is empty.");
}

TEST(Download, SavesWhatWasReceived) {
  TestHost host;
  host.platform.AnswerNextFile("received.bin");
  bool saved = false;
  host.platform.at_modal = [&saved](Dialog& dialog) {
    if (!dialog.Find<Button>("cmdOK").Enabled()) return false;
    return dialog.Find<Button>(std::exchange(saved, true) ? "cmdOK" : "cmdSaveFile").Click() ==
           Answer::kDone;
  };
  host.control->Custom(10, 0, 0);
  EXPECT_TRUE(host.platform.TakeStalled().empty());
  EXPECT_TRUE(std::ranges::equal(host.platform.files["received.bin"], host.device.Bytes()));
  const auto request = host.platform.TakeFileRequests().at(0);
  EXPECT_EQ(request.default_name, "*.bin");
  EXPECT_TRUE(request.ask_before_overwriting);
}

/// A host that answers from inside the events is called once more for every block.
TEST(Download, NestedRepliesStayFarFromTheStacksEnd) {
  TestHost host;
  host.device.ResizeBlocks(255);
  host.device.Block(1)[15] = 255;
  host.sync = true;
  std::uintptr_t outermost = 0;
  std::uintptr_t innermost = 0;
  host.act_in = "RequestBlk 1";
  host.act = [&] {
    const char here = 0;
    outermost = reinterpret_cast<std::uintptr_t>(&here);
    host.act_in = "RequestBlk 255";
    host.act = [&innermost] {
      const char there = 0;
      innermost = reinterpret_cast<std::uintptr_t>(&there);
    };
  };
  host.Download();
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  constexpr std::uintptr_t kEighthOfAStack = 1 << 20;
  EXPECT_LT(std::max(outermost, innermost) - std::min(outermost, innermost), kEighthOfAStack);
}

TEST(Download, ALongBlockIsRefusedAndTheRightOneStillTaken) {
  TestHost host;
  host.act_in = "RequestBlk 7";
  host.act = [&host] {
    std::vector<Byte> reply(25, 7);
    host.control->FillDataBlk(reply);
  };
  host.Download();
  EXPECT_EQ(host.OnlyMessage(), "Error found in FillDataBlk\rThe block has more than 16 bytes.");
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  EXPECT_TRUE(std::ranges::equal(host.control->Image(), host.device.Bytes()));
}

TEST(Download, OnlyTheAwaitedBlockIsTaken) {
  TestHost host;
  host.silent_from = 5;
  host.platform.at_modal = [&host](Dialog& dialog) {
    return host.log.back() == "RequestBlk 5" && dialog.CloseWindow() == Answer::kDone;
  };
  host.control->Custom(10, 0, 0);
  host.silent_from = 0;
  // The answer to the stopped receive comes while the next one waits for block 1, and others twice.
  host.platform.Post([&host] { host.Give(5); });
  host.act_in = "RequestBlk 100";
  host.act = [&host] {
    host.Give(99);
    host.Give(101);
  };
  host.Download();
  host.Give(200);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  EXPECT_TRUE(std::ranges::equal(host.control->Image(), host.device.Bytes()));
  EXPECT_TRUE(host.platform.TakeMessages().empty());
}

TEST(Download, ACommandInsideTheDialogRestarts) {
  TestHost host;
  bool restarted = false;
  host.silent_from = 7;
  host.platform.at_modal = [&](Dialog& dialog) {
    if (!restarted && host.log.back() == "RequestBlk 7") {
      restarted = true;
      host.silent_from = 0;
      host.control->Custom(10, 0, 0);
      return true;
    }
    return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
  };
  host.control->Custom(10, 0, 0);
  EXPECT_EQ(host.Count("RequestBlk 1"), 2);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  EXPECT_TRUE(host.platform.Windows().empty());
}

}  // namespace
}  // namespace quorvel
