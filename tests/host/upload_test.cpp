#include <gtest/gtest.h>

#include "host/send_plan.h"
#include "tests/host/test_host.h"

namespace quorvel {
namespace {

std::vector<int> Ints(const std::vector<Byte>& bytes) { return {bytes.begin(), bytes.end()}; }

BlockImage ImageOf(int blocks, int counted) {
  BlockImage image;
  image.ResizeBlocks(blocks);
  image.Block(1)[15] = static_cast<Byte>(counted);
  return image;
}

TEST(SendPlan, HoldsBlocksThatThereAreInListOrder) {
  EXPECT_EQ(Ints(PlanAllBlocks(ImageOf(5, 185), false)), (std::vector<int>{1, 2, 3, 4, 5}));
  EXPECT_TRUE(PlanAllBlocks(BlockImage(), false).empty());
  clsBlkSave list;
  for (const Byte blk : {40, 5, 194, 150, 12, 217, 218, 1}) list.AddBlk(blk);
  EXPECT_EQ(Ints(PlanListedBlocks(list, ImageOf(200, 200), false)),
            (std::vector<int>{40, 5, 12, 1}));
  EXPECT_EQ(Ints(PlanListedBlocks(list, ImageOf(225, 225), true)),
            (std::vector<int>{40, 5, 150, 12, 217, 1}));
}

/// What command 11 has compared must still hold at START and at every packet.
TEST(Send, AnotherDeviceIsGivenNoBlock) {
  static constexpr Byte kOther[] = {0, 4, 9, 'O'};
  static constexpr Byte kSizes[] = {0, 4, 2, 0, 200, 5, 6};
  const struct {
    const char* name;
    std::function<void(MainMenuCtrl&)> change;
    bool ends;
  } cases[] = {
      {"another identity", [](auto& it) { it.SaveConnectedInfo(kOther); }, true},
      {"another exchange", [](auto& it) { it.FillComboInfo(kSizes); }, true},
      {"another family", [](auto& it) { it.Custom(18, 16, 0); }, true},
      {"the defaults", [](auto& it) { it.Custom(16, 0, 0); }, true},
      {"a file that was not chosen", [](auto& it) { it.Custom(12, 0, 0); }, false},
      {"another caption", [](auto& it) { it.Custom(18, 0, 1); }, false},
      {"a grid", [](auto& it) { it.UpdateActGrid(std::vector<Byte>(33, 1)); }, false},
  };
  for (const auto& it : cases) {
    for (const std::size_t after : {0, 3}) {
      SCOPED_TRACE(it.name);
      TestHost host;
      host.Download();
      host.sync = true;
      host.act_in = "DownLoadData 3";
      if (after != 0) host.act = [&] { it.change(*host.control); };
      bool started = false;
      host.platform.at_modal = [&](Dialog& dialog) {
        if (std::exchange(started, true)) return false;
        if (after == 0) it.change(*host.control);
        dialog.Find<Button>("cmdOK").Click();
        EXPECT_EQ(dialog.Shown(), !it.ends || after != 0);
        return true;
      };
      host.control->Custom(11, 0, 0);
      EXPECT_EQ(host.sent.size(), it.ends ? after : 168);
      auto messages = host.platform.TakeMessages();
      std::erase_if(messages, [](const Message& message) { return message.title == "Message"; });
      ASSERT_EQ(messages.size(), it.ends ? 1U : 0U);
      if (!it.ends) continue;
      EXPECT_EQ(messages[0].text, "The current data does not match the data of the remote device");
    }
  }
}

}  // namespace
}  // namespace quorvel
