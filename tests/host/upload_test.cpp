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

TEST(SendPlan, HoldsOnlyBlocksThatThereAre) {
  EXPECT_EQ(Ints(PlanAllBlocks(ImageOf(5, 185), false)), (std::vector<int>{1, 2, 3, 4, 5}));
  EXPECT_TRUE(PlanAllBlocks(BlockImage(), false).empty());
}

TEST(SendPlan, ListedBlocksInListOrder) {
  clsBlkSave list;
  for (const Byte blk : {40, 5, 194, 150, 12, 217, 218, 1}) list.AddBlk(blk);
  EXPECT_EQ(Ints(PlanListedBlocks(list, ImageOf(200, 200), false)),
            (std::vector<int>{40, 5, 12, 1}));
  EXPECT_EQ(Ints(PlanListedBlocks(list, ImageOf(225, 225), true)),
            (std::vector<int>{40, 5, 150, 12, 217, 1}));
}

class Send : public ::testing::Test {
 protected:
  void SetUp() override { host_.Download(); }

  /// Command 11; `act` is called whenever nothing is due, with the number of the call from 0.
  void Command11(std::function<bool(Dialog&, int)> act) {
    int call = 0;
    host_.platform.at_modal = [&call, act](Dialog& dialog) { return act(dialog, call++); };
    host_.control->Custom(11, 0, 0);
    host_.platform.at_modal = nullptr;
  }
  static Answer Click(Dialog& dialog, const char* button) {
    return dialog.Find<Button>(button).Click();
  }
  static std::string Status(Dialog& dialog) {
    return dialog.Find<StatusBar>("StatusBar1").ValueText();
  }

  TestHost host_;
};

TEST_F(Send, StopEndsTheSendAndStartBeginsAnew) {
  host_.acknowledge = false;
  bool stopped = false;
  Command11([&](Dialog& dialog, int call) {
    if (call == 0) return Click(dialog, "cmdOK") == Answer::kDone;
    if (host_.sent.empty()) return false;
    if (stopped) return dialog.CloseWindow() == Answer::kDone;
    stopped = true;
    Click(dialog, "cmdStop");
    EXPECT_EQ(Status(dialog), "\"Upload block number :\" | \"Abort\" | \"\"");
    // One packet is on its way: START waits for its acknowledgement.
    Click(dialog, "cmdOK");
    host_.platform.Advance(1000);
    EXPECT_EQ(host_.sent, std::vector<int>{1});
    host_.control->TriggerUploadTimer();
    host_.platform.Advance(1000);
    EXPECT_EQ(host_.sent, (std::vector<int>{1, 1}));
    // It was lost: START gives it up.
    Click(dialog, "cmdStop");
    Click(dialog, "cmdOK");
    host_.acknowledge = true;
    host_.platform.RunUntilIdle();
    return true;
  });
  host_.control->TriggerUploadTimer();  // nothing is left to be acknowledged
  host_.platform.RunUntilIdle();
  EXPECT_EQ(host_.sent.size(), 170U);
  EXPECT_EQ(host_.sent[2], 1);
  EXPECT_EQ(host_.sent.back(), 255);
}

TEST_F(Send, StartWaitsWhileASendRunsAndGridsEditedMeanwhileAreSent) {
  host_.EditTitle(0, "One");
  std::vector<Byte> grid(33, 0x5A);
  grid[0] = 0;
  host_.acknowledge = false;
  Command11([&](Dialog& dialog, int call) {
    if (call == 0) {
      host_.control->UpdateActGrid(grid);
      dialog.Find<OptionButton>("optBlk(1)").Click();
      EXPECT_EQ(dialog.Find<ListBox>("lstBlkSav").Items(),
                (std::vector<std::string>{"001", "085", "086"}));
      return Click(dialog, "cmdOK") == Answer::kDone;
    }
    if (host_.sent.empty()) return false;
    dialog.Find<CheckBox>("chkMacro(0)").Click();
    EXPECT_FALSE(dialog.Find<Button>("cmdOK").Enabled());
    for (int packet = 0; packet < 3; ++packet) {
      host_.control->TriggerUploadTimer();
      host_.platform.RunUntilIdle();
    }
    return dialog.CloseWindow() == Answer::kDone;
  });
  EXPECT_EQ(host_.sent, (std::vector<int>{1, 85, 86, 255}));
  EXPECT_EQ(host_.device.Block(86)[15], 0x5A);
}

TEST_F(Send, APacketEvery50MillisecondsAndALostOneIsGivenUpAfterTwoSeconds) {
  std::int64_t first = 0;
  std::int64_t second = 0;
  host_.act_in = "DownLoadData 1";
  host_.act = [&] {
    first = host_.platform.Elapsed();
    host_.act_in = "DownLoadData 2";
    host_.act = [&] {
      second = host_.platform.Elapsed();
      host_.acknowledge = false;
    };
  };
  Command11([&](Dialog& dialog, int call) {
    if (call == 0) return Click(dialog, "cmdOK") == Answer::kDone;
    if (host_.sent.size() < 2) return false;
    EXPECT_EQ(second - first, 50);
    Click(dialog, "cmdStop");
    Click(dialog, "cmdOK");
    host_.platform.Advance(2049);  // the next one follows 50 ms later
    EXPECT_EQ(host_.sent.size(), 2U);
    host_.platform.Advance(1);
    EXPECT_EQ(host_.sent.size(), 3U);
    return dialog.CloseWindow() == Answer::kDone;
  });
}

/// What command 11 has compared must still hold at START and at every packet.
TEST_F(Send, AnotherDeviceIsGivenNoBlock) {
  const struct {
    const char* name;
    std::function<void(MainMenuCtrl&)> change;
    bool ends;
  } cases[] = {
      {"another identity",
       [](auto& it) {
         it.SaveConnectedInfo(std::vector<Byte>{0, 4, 9, 'O'});
       },
       true},
      {"another exchange",
       [](auto& it) {
         it.FillComboInfo(std::vector<Byte>{0, 4, 2, 0, 200, 5, 6});
       },
       true},
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
