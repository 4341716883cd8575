#include <gtest/gtest.h>

#include "host/component.h"
#include "tests/host/test_host.h"

namespace quorvel {
namespace {

constexpr int kClock = 61;
constexpr int kServers = 213;
constexpr int kTimeServers = 217;

/// A control over a device of 225 blocks, whose servers and clock are edited in the record.
class ChangeMarks : public ::testing::Test, public MainMenuEvents {
 protected:
  void SetUp() override { Arrive(); }

  void Arrive() {
    BlockImage image = LoadDefaultImage(401);
    image.ResizeBlocks(225);
    image.Block(1)[15] = 225;
    WriteIdentityBlock(image, 16, 6, "UNIT 1");
    It().Adopt(std::move(image), ImageSource::kDevice);
    packets_.clear();
  }
  HostStatements& Host() { return component_->context.host; }
  DeviceState& It() { return component_->context.device; }
  void EditServer(Byte octet) {
    const CommitScope commit(It().env.commit, CommitAlarm);
    It().Record().AlmEmailNotify.SMTPServer(0, octet);
  }
  void EditAll() {
    EditServer(10);
    const CommitScope commit(It().env.commit, CommitTimeDate);
    It().Record().TDInfo.NTPBkupServer(3, 9);
    It().Record().TDInfo.CurrentHour(17);
    It().Record().PlayDwell(0);
  }
  /// The marks of blocks 61, 213 and 217: in the record, and where a send may come from.
  std::string Marks() {
    const MuxData& rec = It().Record();
    const auto text = [](int clock, int servers, int time_servers) {
      return std::to_string(clock) + " " + std::to_string(servers) + " " +
             std::to_string(time_servers);
    };
    const BlockImage& image = It().BlkImage;
    std::string marks =
        text(rec.PlayDwell(), rec.AlmEmailNotify.AlmServerChange(), rec.TDInfo.NTPchange()) +
        ", image " +
        text(image.Block(kClock)[15], image.Block(kServers)[0], image.Block(kTimeServers)[0]);
    const auto array = It().ComboArray.Bytes();
    return array.empty() ? marks : marks + ", array " + MarksOfArray(array);
  }
  static std::string MarksOfArray(std::span<const Byte> array) {
    const BlockImage image({array.begin() + 13, array.end()});
    return std::to_string(image.Block(kClock)[15]) + " " +
           std::to_string(image.Block(kServers)[0]) + " " +
           std::to_string(image.Block(kTimeServers)[0]);
  }
  /// Command 11 with the modified blocks or all; `act` is called whenever nothing is due.
  void Send(bool all, bool macros, const std::function<bool(Dialog&)>& act) {
    bool started = false;
    platform_.at_modal = [&](Dialog& dialog) {
      if (std::exchange(started, true)) return act(dialog);
      dialog.Find<OptionButton>(all ? "optBlk(0)" : "optBlk(1)").Click();
      if (macros) dialog.Find<CheckBox>("chkMacro(0)").Click();
      return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
    };
    component_->Custom(11, 0, 0);
    platform_.at_modal = nullptr;
  }
  void Send(bool all = false, bool macros = false) {
    Send(all, macros, [this](Dialog& dialog) {
      const bool ends =
          acknowledge_ ? !dialog.Find<Button>("cmdStop").Visible() : !packets_.empty();
      return ends && dialog.CloseWindow() == Answer::kDone;
    });
  }

  void DownLoadData(std::span<std::uint8_t> bdata) override {
    packets_[bdata[0]].assign(bdata.begin(), bdata.end());
    std::ranges::fill(bdata, Byte{0xEE});  // hosts may
    if (acknowledge_) component_->TriggerUploadTimer();
  }
  void SendComboBlocks(std::span<std::uint8_t> cb_data) override {
    sent_array_ = MarksOfArray(cb_data);
    if (fails_) throw std::runtime_error("the link is down");
  }

  TestPlatform platform_;
  std::shared_ptr<Component> component_ = Component::Create(platform_, *this);
  std::map<int, std::vector<Byte>> packets_;
  std::string sent_array_;
  bool acknowledge_ = true;
  bool fails_ = false;
};

TEST_F(ChangeMarks, FollowWhatHappensBeforeTheAcknowledgement) {
  const struct {
    const char* what;
    std::function<void(Dialog&)> meanwhile;
    int mark;
  } cases[] = {
      {"nothing", [](Dialog&) {}, 0},
      {"STOP", [](Dialog& dialog) { dialog.Find<Button>("cmdStop").Click(); }, 0},
      {"CLOSE", [](Dialog& dialog) { dialog.CloseWindow(); }, 0},
      {"a long wait", [this](Dialog&) { platform_.Advance(5000); }, 0},
      {"another server", [this](Dialog&) { EditServer(11); }, 1},
      {"another server and back",
       [this](Dialog&) {
         EditServer(11);
         EditServer(10);
       },
       0},
      {"another image, edited as well",
       [this](Dialog&) {
         Arrive();
         EditServer(10);
       },
       1},
      {"the control's end", [this](Dialog&) { component_->Terminate(); }, 1},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.what);
    component_ = Component::Create(platform_, *this);
    Arrive();
    EditServer(10);
    acknowledge_ = false;
    bool acknowledged = false;
    Send(false, false, [&](Dialog& dialog) {
      if (packets_.empty()) return false;
      if (std::exchange(acknowledged, true)) return dialog.CloseWindow() == Answer::kDone;
      it.meanwhile(dialog);
      component_->TriggerUploadTimer();
      return true;
    });
    EXPECT_EQ(It().Record().AlmEmailNotify.AlmServerChange(), it.mark);
    platform_.TakeMessages();
  }
}

TEST_F(ChangeMarks, AreClearedWithTheList) {
  EditAll();
  platform_.AnswerNextFile("saved.bin");
  Send(true, false, [this](Dialog& dialog) {
    if (dialog.Find<Button>("cmdStop").Visible()) return false;
    EditServer(11);
    component_->Custom(14, 0, 0);
    EXPECT_EQ(Marks(), "1 1 0, image 1 1 0");
    dialog.Find<Button>("cmdClearBlk").Click();
    return dialog.CloseWindow() == Answer::kDone;
  });
  EXPECT_EQ(Marks(), "1 0 0, image 1 0 0");
}

/// What the array of a combined exchange carries of the marks, and what is left of them.
TEST_F(ChangeMarks, AreTakenWithACombinedArray) {
  const struct {
    const char* what;
    bool all, macros, fails;
    const char* sent;
    const char* left;
  } cases[] = {
      {"all blocks", true, false, false, "0 7 3", "1 0 0, image 1 0 0, array 1 0 0"},
      {"listed blocks and macros", false, true, false, "0 1 2", "1 0 0, image 1 0 0, array 1 0 0"},
      {"listed blocks, one by one", false, false, false, "", "1 0 0, image 1 0 0, array 1 0 0"},
      {"a host that fails", true, false, true, "0 7 3", "0 1 2, image 0 7 3, array 0 7 3"},
  };
  Host().ComboMode = true;
  Host().combo_sizes = {4, 2, 225, 5, 6};
  for (const auto& it : cases) {
    SCOPED_TRACE(it.what);
    Arrive();
    EditAll();
    sent_array_.clear();
    fails_ = it.fails;
    Send(it.all, it.macros);
    EXPECT_EQ(sent_array_, it.sent);
    EXPECT_EQ(Marks(), it.left);
    platform_.TakeMessages();
  }
}

TEST_F(ChangeMarks, TheClockOfTheComputerIsThatOfTheMomentOfSending) {
  platform_.SetNow({{2024, 2, 28}, {23, 59, 58}});
  It().UsePcTime = true;
  It().env.blocks.AddBlk(kClock);
  platform_.Advance(3000);
  EXPECT_TRUE((platform_.Now() == LocalTime{{2024, 2, 29}, {0, 0, 1}}));
  Send();
  const auto& clock = packets_.at(kClock);
  EXPECT_EQ(std::vector<Byte>(clock.begin() + 1, clock.begin() + 4), (std::vector<Byte>{0, 0, 1}));
}

}  // namespace
}  // namespace quorvel
