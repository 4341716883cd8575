#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// What the labels and buttons of the receive dialog show.
struct Shown {
  std::string status, bytes;
  int value = 0, maximum = 0;
  bool ok = false, save = false;
};

Shown Look(Dialog& dialog) {
  const auto& bar = dialog.Find<ProgressBar>("prgBar1");
  return {dialog.Find<Label>("Label4").Caption(),
          dialog.Find<Label>("Label3").Caption(),
          bar.Value(),
          bar.Maximum(),
          dialog.Find<Button>("cmdOK").Enabled(),
          dialog.Find<Button>("cmdSaveFile").Enabled()};
}

TEST(Download, WholeSequenceLaterAndInsideTheEvent) {
  for (const bool sync : {false, true}) {
    SCOPED_TRACE(sync);
    TestHost host;
    host.sync = sync;
    host.control->Custom(18, 48, 1);
    Shown at_end;
    std::string caption;
    host.platform.at_modal = [&](Dialog& dialog) {
      caption = dialog.Caption();
      at_end = Look(dialog);
      return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
    };
    host.control->Custom(10, 0, 0);
    EXPECT_EQ(caption, "Downloading Data from DVR");
    EXPECT_EQ(at_end.status, "Finished");
    EXPECT_EQ(at_end.bytes, "3200");
    EXPECT_EQ(at_end.value, 200);
    EXPECT_EQ(at_end.maximum, 200);
    EXPECT_TRUE(at_end.ok && at_end.save);
    EXPECT_EQ(host.log.size(), 201U);
    EXPECT_EQ(host.log.back(), "UploadSucceeded");
    const auto image = host.control->Image();
    EXPECT_TRUE(std::equal(image.begin(), image.end(), host.device.Bytes().begin(),
                           host.device.Bytes().end()));
    EXPECT_TRUE(host.platform.TakeStalled().empty());
    EXPECT_TRUE(host.platform.TakeMessages().empty());
  }
}

TEST(Download, ShortImagesByTheirOwnCount) {
  for (const int count : {0, 1, 3, 184}) {
    SCOPED_TRACE(count);
    TestHost host;
    host.device.Block(1)[15] = static_cast<Byte>(count);
    host.Download();
    EXPECT_EQ(host.Count("UploadSucceeded"), 1);
    EXPECT_EQ(host.log.size(), static_cast<std::size_t>(std::max(count, 1) + 1));
    EXPECT_EQ(host.control->Image().size(), static_cast<std::size_t>(std::max(count, 1) * 16));
    host.OpenMenu();  // no identity: a multiplexer
    EXPECT_TRUE(host.platform.Menu().Item("mnuVCR").visible);
  }
}

TEST(Download, ClosingTheDialogStopsAndANewCommandStartsAnew) {
  TestHost host;
  host.platform.at_modal = [&host](Dialog& dialog) {
    if (host.log.back() != "RequestBlk 5") return false;
    EXPECT_EQ(Look(dialog).status, "Downloading block 4");
    EXPECT_EQ(Look(dialog).bytes, "64");
    EXPECT_FALSE(Look(dialog).ok);
    return dialog.CloseWindow() == Answer::kDone;
  };
  // The answers come one at a time, so that there is a moment to close at.
  host.control->Custom(18, 16, 0);
  host.silent_from = 5;
  host.control->Custom(10, 0, 0);
  std::vector<Byte> fifth{5};
  fifth.resize(17);
  host.control->FillDataBlk(fifth);
  host.platform.RunUntilIdle();
  EXPECT_EQ(host.Count("RequestBlk 6"), 0);
  EXPECT_EQ(host.Count("UploadSucceeded"), 0);

  host.silent_from = 0;
  host.Download();
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  EXPECT_EQ(host.Count("RequestBlk 200"), 1);
}

TEST(Download, EightByteRepliesStopSilently) {
  TestHost host;
  host.reply_bytes = 8;
  host.control->Custom(10, 0, 0);
  EXPECT_EQ(host.Count("RequestBlk 200"), 1);
  EXPECT_EQ(host.Count("UploadSucceeded"), 0);
  EXPECT_TRUE(host.control->Image().empty());
  EXPECT_EQ(host.platform.TakeStalled(), std::vector<std::string>{"frm_ULFrMux"});
  EXPECT_TRUE(host.platform.TakeMessages().empty());
}

TEST(Download, UnusableImagesAreRefusedAndTheOldRecordStays) {
  TestHost host;
  host.device.Block(3)[0] = 'X';
  host.Download();
  host.device.Block(185)[0] = 17;
  host.device.Block(3)[0] = 'Y';
  host.control->Custom(10, 0, 0);
  auto messages = host.platform.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].text, "Error found in FillDataBlk");
  EXPECT_EQ(messages[0].title, "Quorvel");
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  auto& editor = host.OpenCameraSetup();
  EXPECT_EQ(editor.Find<TextBox>("m_CameraTitle(2)").Text(), "Xamera 03");

  host.control->FillDataBlk({});
  messages = host.platform.TakeMessages();
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].text, "Error found in FillDataBlk");
}

TEST(Download, WholeImageForANonInteractiveHost) {
  TestHost host;
  host.control->HostCommId(3);
  host.control->Custom(10, 0, 0);
  EXPECT_TRUE(host.platform.Windows().empty());
  std::vector<Byte> image(host.device.Bytes().begin(), host.device.Bytes().end());
  image.push_back(0xAB);
  host.control->FillDataBlk(image);
  EXPECT_EQ(host.log.back(), "ULSucceededWithStr TX16 6 16");
  EXPECT_EQ(host.control->Image().size(), 3200U);
}

TEST(Download, SavesWhatWasReceived) {
  TestHost host;
  host.platform.AnswerNextFile("received.bin");
  int clicks = 0;
  host.platform.at_modal = [&clicks](Dialog& dialog) {
    if (!dialog.Find<Button>("cmdOK").Enabled()) return false;
    const char* button = clicks++ == 0 ? "cmdSaveFile" : "cmdOK";
    return dialog.Find<Button>(button).Click() == Answer::kDone;
  };
  host.control->Custom(10, 0, 0);
  const auto& saved = host.platform.files["received.bin"];
  EXPECT_TRUE(std::equal(saved.begin(), saved.end(), host.device.Bytes().begin(),
                         host.device.Bytes().end()));
  const auto requests = host.platform.TakeFileRequests();
  ASSERT_EQ(requests.size(), 1U);
  EXPECT_EQ(requests[0].default_name, "*.bin");
  EXPECT_TRUE(requests[0].ask_before_overwriting);
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
  EXPECT_EQ(host.OnlyMessage(), "Error found in FillDataBlk");
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
  const auto stray = [&host](Byte number) {
    std::vector<Byte> reply{number};
    reply.resize(17);
    host.control->FillDataBlk(reply);
  };
  host.platform.Post([stray] { stray(5); });
  host.act_in = "RequestBlk 100";
  host.act = [stray] {
    stray(99);
    stray(101);
  };
  host.Download();
  stray(200);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  const auto image = host.control->Image();
  EXPECT_TRUE(std::equal(image.begin(), image.end(), host.device.Bytes().begin(),
                         host.device.Bytes().end()));
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
