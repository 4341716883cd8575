#include <gtest/gtest.h>

#include <numeric>

#include "host/send_plan.h"
#include "tests/host/test_host.h"

namespace quorvel {
namespace {

std::vector<int> Range(int first, int last) {
  std::vector<int> numbers(static_cast<std::size_t>(last - first + 1));
  std::iota(numbers.begin(), numbers.end(), first);
  return numbers;
}

std::vector<int> operator+(std::vector<int> a, const std::vector<int>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

std::vector<int> Ints(const std::vector<Byte>& bytes) { return {bytes.begin(), bytes.end()}; }

BlockImage ImageOf(int blocks, int counted) {
  BlockImage image;
  image.ResizeBlocks(blocks);
  if (blocks > 0) image.Block(1)[15] = static_cast<Byte>(counted);
  return image;
}

TEST(SendPlan, AllBlocks) {
  const struct {
    int blocks;
    bool macros;
    std::vector<int> plan;
  } cases[] = {
      {185, false, Range(1, 149) + Range(182, 185)},
      {185, true, Range(1, 185)},
      {149, false, Range(1, 149)},
      {160, false, Range(1, 149) + Range(160, 160)},
      {194, false, Range(1, 149) + Range(182, 193)},
      {200, true, Range(1, 193) + Range(195, 200)},
      {218, true, Range(1, 193) + Range(195, 217)},
      {225, true, Range(1, 193) + Range(195, 217) + Range(219, 225)},
      {0, false, {}},
  };
  for (const auto& it : cases) {
    EXPECT_EQ(Ints(PlanAllBlocks(ImageOf(it.blocks, it.blocks), it.macros)), it.plan) << it.blocks;
  }
  EXPECT_EQ(Ints(PlanAllBlocks(ImageOf(5, 185), false)), Range(1, 5));
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
  void EditTitle(int camera, const char* title) {
    auto& editor = host_.OpenCameraSetup();
    editor.Find<TextBox>("m_CameraTitle(" + std::to_string(camera) + ")").Type(title);
    editor.Find<Button>("cmd_OK").Click();
  }

  TestHost host_;
};

TEST_F(Send, AllBlocksThenTheEndPacketThenNothing) {
  Command11([&](Dialog& dialog, int call) {
    if (call == 0) {
      EXPECT_EQ(dialog.Caption(), "Uploading Data to Plexar");
      EXPECT_EQ(Status(dialog), "\"Uploading Data to Plexar\" | \"\" | \"\"");
      EXPECT_FALSE(dialog.Find<Button>("cmdStop").Visible());
      return Click(dialog, "cmdOK") == Answer::kDone;
    }
    if (!dialog.Find<Button>("cmdClearBlk").Visible()) return false;
    EXPECT_EQ(Status(dialog), "\"Upload block number :\" | \"200\" | \"Finished\"");
    EXPECT_FALSE(dialog.Find<Button>("cmdOK").Enabled());
    EXPECT_FALSE(dialog.Find<Button>("cmdStop").Visible());
    return Click(dialog, "cmdCancel") == Answer::kDone;
  });
  EXPECT_EQ(host_.sent, Range(1, 149) + Range(182, 193) + Range(195, 200) + Range(255, 255));
  host_.control->TriggerUploadTimer();
  host_.platform.RunUntilIdle();
  EXPECT_EQ(host_.sent.back(), 255);
  EXPECT_EQ(host_.sent.size(), 168U);
}

TEST_F(Send, ModifiedBlocksInListOrderAndTheListSurvives) {
  EditTitle(11, "Twelve");
  EditTitle(4, "Five");
  EXPECT_EQ(host_.Modified(), (std::vector<int>{12, 5}));
  const auto before = host_.device;
  Command11([&](Dialog& dialog, int call) {
    if (call == 0) {
      dialog.Find<OptionButton>("optBlk(1)").Click();
      EXPECT_EQ(dialog.Find<ListBox>("lstBlkSav").Items(),
                (std::vector<std::string>{"012", "005"}));
      return Click(dialog, "cmdOK") == Answer::kDone;
    }
    if (!dialog.Find<Button>("cmdClearBlk").Visible()) return false;
    if (call < 100) {
      EXPECT_EQ(host_.Modified(), (std::vector<int>{12, 5}));
      Click(dialog, "cmdClearBlk");
      EXPECT_EQ(Status(dialog), "\"Delete all blocks being saved\" | \"\" | \"Finished\"");
      EXPECT_TRUE(dialog.Find<OptionButton>("optBlk(0)").Selected());
    }
    return dialog.CloseWindow() == Answer::kDone;
  });
  EXPECT_EQ(host_.sent, (std::vector<int>{12, 5, 255}));
  EXPECT_EQ(host_.Modified(), std::vector<int>{});
  for (int block = 1; block <= 200; ++block) {
    const bool edited = block == 12 || block == 5;
    const auto now = host_.device.Block(block);
    EXPECT_EQ(std::equal(now.begin(), now.end(), before.Block(block).begin()), !edited) << block;
  }
  EXPECT_EQ(host_.device.Block(5)[0], 'F');
}

TEST_F(Send, ChoosesAndBoxesFollowTheExchange) {
  Command11([&](Dialog& dialog, int) {
    dialog.Find<OptionButton>("optBlk(1)").Click();  // nothing is modified
    EXPECT_TRUE(dialog.Find<OptionButton>("optBlk(0)").Selected());
    EXPECT_FALSE(dialog.Find<ListBox>("lstBlkSav").Visible());
    auto& data = dialog.Find<CheckBox>("chkMacro(1)");
    data.Click();
    EXPECT_TRUE(data.Checked());
    EXPECT_FALSE(dialog.Find<CheckBox>("chkMacro(0)").Checked());
    return dialog.CloseWindow() == Answer::kDone;
  });
}

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
  EXPECT_EQ(host_.sent.size(), 170U);
  EXPECT_EQ(host_.sent[2], 1);
  EXPECT_EQ(host_.sent.back(), 255);
}

TEST_F(Send, AnImageThatIsReplacedMeanwhileIsNotSent) {
  for (const bool started : {false, true}) {
    host_.sent.clear();
    bool replaced = false;
    Command11([&](Dialog& dialog, int call) {
      if (started && call == 0) return Click(dialog, "cmdOK") == Answer::kDone;
      if (!replaced && (!started || host_.sent.size() == 3)) {
        replaced = true;
        host_.control->Custom(16, 0, 0);
        host_.platform.RunUntilIdle();
        if (!started) Click(dialog, "cmdOK");
        EXPECT_FALSE(dialog.Shown());
        return true;
      }
      return false;
    });
    EXPECT_EQ(host_.sent.size(), started ? 3U : 0U);
    const auto messages = host_.platform.TakeMessages();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[1].text, "The current data does not match the data of the remote device");
  }
}

TEST_F(Send, TheFamilyMustFit) {
  const struct {
    Byte code;
    std::int32_t family;
    bool fits;
  } cases[] = {{2, 48, false}, {2, 112, false}, {2, 16, true},   {6, 16, false},
               {6, 48, true},  {6, 112, true},  {5, 112, false}, {20, 0, true}};
  for (const auto& it : cases) {
    host_.Identify(16, it.code);
    host_.Download();
    for (const Byte comm_id : {0, 1}) {
      host_.control->HostCommId(comm_id);
      host_.control->Custom(18, it.family, 1);
      bool opened = false;
      Command11([&opened](Dialog& dialog, int) {
        opened = true;
        return dialog.CloseWindow() == Answer::kDone;
      });
      const auto messages = host_.platform.TakeMessages();
      EXPECT_EQ(opened, it.fits || comm_id != 0) << int{it.code} << " " << it.family;
      EXPECT_EQ(messages.size(), opened ? 0U : 1U);
      if (opened) continue;
      EXPECT_EQ(messages[0].text, "The current data does not match the data of the remote device");
      EXPECT_EQ(messages[0].title, "Error Message");
    }
    host_.control->HostCommId(0);
  }
}

TEST_F(Send, ADownloadThatDoesNotArriveLeavesWhatWasEdited) {
  EditTitle(4, "Five");
  host_.reply_bytes = 8;
  host_.control->Custom(10, 0, 0);
  EXPECT_EQ(host_.Count("UploadSucceeded"), 1);
  EXPECT_EQ(host_.Modified(), std::vector<int>{5});
  Command11([&](Dialog& dialog, int call) {
    if (call == 0) {
      dialog.Find<OptionButton>("optBlk(1)").Click();
      return Click(dialog, "cmdOK") == Answer::kDone;
    }
    return dialog.Find<Button>("cmdClearBlk").Visible() && dialog.CloseWindow() == Answer::kDone;
  });
  EXPECT_EQ(host_.sent, (std::vector<int>{5, 255}));
  EXPECT_EQ(host_.device.Block(5)[0], 'F');
}

TEST_F(Send, StartWaitsWhileASendRunsAndGridsEditedMeanwhileAreSent) {
  EditTitle(0, "One");
  std::vector<Byte> grid(33, 0x5A);
  grid[0] = 0;
  host_.acknowledge = false;
  Command11([&](Dialog& dialog, int call) {
    if (call == 0) {
      host_.control->UpdateActGrid(grid);
      dialog.Find<OptionButton>("optBlk(1)").Click();
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

TEST_F(Send, WithoutAnImageNothing) {
  TestHost empty;
  empty.control->Custom(11, 0, 0);
  EXPECT_EQ(empty.OnlyMessage(), "The current data does not match the data of the remote device");
  EXPECT_TRUE(empty.platform.TakeStalled().empty());
}

/// What command 11 has compared must still hold at START and at every packet.
TEST_F(Send, AnotherDeviceIsGivenNoBlock) {
  const std::vector<Byte> other{0, 4, 9, 'O'};
  const std::vector<Byte> sizes{0, 4, 2, 0, 200, 5, 6};
  const struct {
    const char* name;
    std::function<void(MainMenuCtrl&)> change;
    bool ends;
  } cases[] = {
      {"another identity", [&](auto& it) { it.SaveConnectedInfo(other); }, true},
      {"another exchange", [&](auto& it) { it.FillComboInfo(sizes); }, true},
      {"another family", [](auto& it) { it.Custom(18, 16, 0); }, true},
      {"a file that was not chosen", [](auto& it) { it.Custom(12, 0, 0); }, true},
      {"another caption", [](auto& it) { it.Custom(18, 0, 1); }, false},
      {"a grid", [](auto& it) { it.UpdateActGrid(std::vector<Byte>(33, 1)); }, false},
  };
  for (const auto& it : cases) {
    for (const std::size_t after : {0, 3}) {
      SCOPED_TRACE(it.name);
      TestHost host;
      host.Download();
      bool changed = false;
      host.platform.at_modal = [&](Dialog& dialog) {
        if (after == host.sent.size() && !std::exchange(changed, true)) {
          if (after == 0) it.change(*host.control);
          dialog.Find<Button>("cmdOK").Click();
          return true;
        }
        if (after == 0 && !changed) return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
        return false;
      };
      if (after != 0) {
        host.act_in = "DownLoadData 3";
        host.act = [&] { it.change(*host.control); };
        host.platform.at_modal = [started = false](Dialog& dialog) mutable {
          return !std::exchange(started, true) &&
                 dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
        };
      }
      host.control->Custom(11, 0, 0);
      EXPECT_EQ(host.sent.size(), it.ends ? after : 168);
      EXPECT_EQ(host.platform.TakeMessages().size(), it.ends ? 1U : 0U);
    }
  }
}

}  // namespace
}  // namespace quorvel
