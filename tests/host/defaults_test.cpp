#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

constexpr const char* kLoaded = "The default setting has been loaded for model UNIT 1";

std::vector<Byte> Reply(const TestHost& host, int number, std::size_t length = 17) {
  std::vector<Byte> reply{static_cast<Byte>(number)};
  const auto block = host.device.Block(number);
  reply.insert(reply.end(), block.begin(), block.end());
  reply.resize(length);
  return reply;
}

TEST(Defaults, AreBuiltForTheConnectedDevice) {
  for (const bool sync : {false, true}) {
    TestHost host(301);
    host.Identify(4, 0x80 | 3, '2');
    host.sync = sync;
    host.Download();
    std::vector<Byte> grid(33, 1);
    grid[0] = 2;
    host.control->UpdateActGrid(grid);
    host.log.clear();
    host.control->Custom(16, 0, 0);
    host.platform.RunUntilIdle();
    EXPECT_EQ(host.log,
              (std::vector<std::string>{"RequestBlk 183", "RequestBlk 185", "UploadSucceeded"}));
    const auto messages = host.platform.TakeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].text, kLoaded);
    EXPECT_EQ(messages[0].title, "Message");
    EXPECT_TRUE(host.Modified().empty());
    const BlockImage image(host.control->Image());
    EXPECT_EQ(image.Size(), 2960U);
    EXPECT_EQ(image.Block(183)[7], '2');
    EXPECT_EQ(image.Block(185)[0], 4);
    EXPECT_EQ(image.Block(185)[1], 3);
    EXPECT_EQ(image.Block(38)[0], 3);
    EXPECT_EQ(host.control->Settings("CamInfo(0).title").at(0).value, "\"Camera 01   \\x00\"");
  }
}

TEST(Defaults, OtherRepliesAreNotTaken) {
  TestHost host;
  host.Download();
  const auto before = host.control->Image();
  host.silent_from = 183;
  host.control->Custom(16, 0, 0);
  host.platform.RunUntilIdle();
  for (const int stray : {1, 185}) host.control->FillDataBlk(Reply(host, stray));
  host.control->FillDataBlk(Reply(host, 183, 8));  // too short for the variant
  EXPECT_EQ(host.OnlyMessage(), "Error found in FillDataBlk");
  EXPECT_EQ(host.control->Image(), before);
  host.silent_from = 185;
  host.control->FillDataBlk(Reply(host, 183));  // it is still expected
  EXPECT_EQ(host.log.back(), "RequestBlk 185");
  host.control->FillDataBlk(Reply(host, 185, 16));
  EXPECT_EQ(host.OnlyMessage(), "Error found in FillDataBlk");
  host.control->FillDataBlk(Reply(host, 185));  // the sequence is over
  EXPECT_EQ(host.control->Image(), before);
  EXPECT_EQ(host.Count("UploadSucceeded"), 1);
}

TEST(Defaults, AnImpossibleDeviceIsRefused) {
  TestHost host;
  host.Download();
  const auto before = host.control->Settings();
  host.device.Block(185)[0] = 17;
  host.control->Custom(16, 0, 0);
  host.platform.RunUntilIdle();
  EXPECT_EQ(host.OnlyMessage(), "Error found in LoadDefaultData");
  EXPECT_EQ(host.control->Settings().size(), before.size());
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

/// In the combined exchange the image of the defaults travels in an array that is made for it.
TEST(Defaults, AreSentInOnePieceBeforeAnyDownload) {
  TestHost host;
  host.device.ResizeBlocks(224);
  host.control->FillComboInfo(std::vector<Byte>{0, 4, 2, 0, 224, 5, 6});
  host.control->Custom(16, 0, 0);
  host.platform.RunUntilIdle();
  host.platform.at_modal = [](Dialog& dialog) {
    if (dialog.Find<Button>("cmdOK").Click() == Answer::kDone) return true;
    return dialog.CloseWindow() == Answer::kDone;
  };
  host.control->Custom(11, 0, 0);
  ASSERT_EQ(host.sent_combo.size(), 13U + 3584U);
  const std::vector<Byte> header(host.sent_combo.begin(), host.sent_combo.begin() + 13);
  EXPECT_EQ(header, (std::vector<Byte>{0, 13, 0x0E, 0, 0, 0, 0, 4, 2, 0, 224, 5, 6}));
  const std::string title(host.sent_combo.begin() + 13, host.sent_combo.begin() + 25);
  EXPECT_EQ(title, "Camera 01   ");
}

}  // namespace
}  // namespace quorvel
