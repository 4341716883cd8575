#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

TEST(Download, NothingIsNoReply) {
  TestHost host;
  host.control->FillDataBlk({});
  EXPECT_EQ(host.OnlyMessage(), "Error found in FillDataBlk\rThe reply is empty.");
  host.StateSizes();
  host.control->FillComboBlk({});
  EXPECT_EQ(
      host.OnlyMessage(),
      "Error found in FillComboBlk\rThis is no combined array: it has 0 bytes, and its header "
      "alone takes 13.");
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

constexpr const char* kLoaded = "The default setting has been loaded for model UNIT 1";

TEST(Defaults, OtherRepliesAreNotTaken) {
  TestHost host;
  host.Download();
  const auto before = host.control->Image();
  host.silent_from = 183;
  host.control->Custom(16, 0, 0);
  host.platform.RunUntilIdle();
  for (const int stray : {1, 185}) host.Give(stray);
  host.Give(183, 8);  // too short for the variant
  EXPECT_EQ(host.OnlyMessage(),
            "Error found in FillDataBlk\rBlock 183 has come without the variant.");
  EXPECT_EQ(host.control->Image(), before);
  host.silent_from = 185;
  host.Give(183);  // it is still expected
  EXPECT_EQ(host.log.back(), "RequestBlk 185");
  host.Give(185, 16);
  EXPECT_EQ(host.OnlyMessage(),
            "Error found in FillDataBlk\rBlock 185 has come without the identity.");
  host.Give(185);  // the sequence is over
  EXPECT_EQ(host.control->Image(), before);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
}

TEST(Defaults, ReplaceADownloadAndAreReplacedByOne) {
  TestHost host;
  host.Identify(16, 6);
  host.act_in = "RequestBlk 50";
  host.act = [&host] { host.control->Custom(16, 0, 0); };
  host.control->Custom(10, 0, 0);
  host.platform.RunUntilIdle();
  EXPECT_EQ(host.OnlyMessage(), kLoaded);
  EXPECT_EQ(host.Count("RequestBlk 51"), 0);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
  EXPECT_TRUE(host.platform.Windows().empty());

  host.log.clear();
  host.act_in = "RequestBlk 185";
  host.act = [&host] { host.Download(); };
  host.control->Custom(16, 0, 0);
  host.platform.RunUntilIdle();
  EXPECT_EQ(host.OnlyMessage(), "");
  EXPECT_EQ(host.Count("RequestBlk 200"), 1);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
}

}  // namespace
}  // namespace quorvel
