#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// Writes down what it hears, among the events of the host, and acts in one call of it.
struct Watcher : TransferObserver {
  explicit Watcher(TestHost& its_host) : host(its_host) {}
  void Progress(TransferKind which, int done, int total) override {
    Note(Name(which) + std::to_string(done) + " of " + std::to_string(total));
  }
  void Ended(TransferKind which, TransferEnd end, std::string_view cause) override {
    constexpr const char* kEnds[] = {"finished", "stopped", "refused", "failed"};
    const std::string line = Name(which) + kEnds[static_cast<int>(end)];
    ends.push_back(cause.empty() ? line : line + ": " + std::string(cause));
    Note(line);
  }
  static std::string Name(TransferKind which) {
    return which == TransferKind::kSend ? "send " : "receive ";
  }
  void Note(const std::string& line) {
    host.log.push_back(line);
    if (act && line == act_in) std::exchange(act, nullptr)();
  }

  TestHost& host;
  std::vector<std::string> ends;
  std::string act_in;
  std::function<void()> act;
};

constexpr SendChoice kListed{false, true, false, false};
constexpr SendChoice kMacros{true, true, true, false};

class WithoutDialogs : public ::testing::Test {
 protected:
  void SetUp() override {
    host_.Identify(16, 6);
    NewControl();
  }
  void NewControl() {
    host_.NewControl();
    host_.control->SaveConnectedInfo(std::vector<Byte>{0, 16, 6, 'U', 'N', 'I', 'T', ' ', '1'});
    host_.control->Observe(&watcher_);
    host_.log.clear();
    host_.sent.clear();
    watcher_.ends.clear();
  }
  void BeCombined() {
    host_.StateSizes();
    host_.combo = ArrayOf(host_.device);
  }
  bool Receive() {
    const bool begun = host_.control->StartReceive();
    host_.platform.RunUntilIdle();
    return begun;
  }
  bool Send(const SendChoice& choice) {
    const bool begun = host_.control->StartSend(choice);
    host_.platform.RunUntilIdle();
    return begun;
  }
  void HaveImage() {
    ASSERT_TRUE(host_.control->LoadSettings(BytesOf(host_.device)));
    host_.log.clear();
  }
  /// As "send 3 of 5 combined image".
  [[nodiscard]] std::string State() const {
    const ControlState state = host_.control->State();
    std::string text = state.under_way == TransferKind::kNone ? "" : Watcher::Name(state.under_way);
    text += std::to_string(state.done) + " of " + std::to_string(state.total);
    return text + (state.combined ? " combined" : "") + (state.has_image ? " image" : "");
  }
  /// What was heard since, from `first` on.
  [[nodiscard]] std::vector<std::string> Heard(std::string_view first) const {
    return {std::ranges::find(host_.log, first), host_.log.end()};
  }
  void ExpectQuiet() {
    EXPECT_TRUE(host_.platform.Windows().empty());
    EXPECT_EQ(host_.OnlyMessage(), "");
  }

  using Lines = std::vector<std::string>;
  TestHost host_;
  Watcher watcher_{host_};
};

TEST_F(WithoutDialogs, ReceiveInEveryExchange) {
  for (const bool sync : {false, true}) {
    SCOPED_TRACE(sync);
    host_.sync = sync;
    NewControl();
    host_.act_in = "RequestBlk 5";
    host_.act = [this] { EXPECT_EQ(State(), "receive 4 of 200"); };
    EXPECT_EQ(State(), "0 of 0");
    EXPECT_TRUE(Receive());
    EXPECT_EQ(Heard("receive 199 of 200"),
              (Lines{"receive 199 of 200", "RequestBlk 200", "receive 200 of 200",
                     "receive finished", "UploadSucceeded"}));
    EXPECT_EQ(State(), "0 of 0 image");

    NewControl();
    BeCombined();
    host_.act_in = "RequestComboBlocks";
    host_.act = [this] { EXPECT_EQ(State(), "receive 0 of 1 combined"); };
    EXPECT_TRUE(Receive());
    EXPECT_EQ(host_.log, (Lines{"RequestComboBlocks", "receive 1 of 1", "receive finished",
                                "UploadSucceeded"}));
    EXPECT_EQ(State(), "0 of 0 combined image");

    NewControl();
    host_.silent_from = 1;
    host_.control->HostCommId(1);
    EXPECT_TRUE(Receive());
    EXPECT_EQ(State(), "receive 0 of 1");  // and stays there until it is answered
    host_.GiveWholeImage();
    EXPECT_EQ(host_.log, (Lines{"RequestBlk 1", "receive 1 of 1", "receive finished",
                                "ULSucceededWithStr UNIT 1 6 16"}));
    host_.silent_from = 0;
    ExpectQuiet();
  }
}

TEST_F(WithoutDialogs, SendInEveryExchange) {
  HaveImage();
  host_.EditTitle(3, "Gate");
  host_.EditTitle(1, "Door");
  host_.act_in = "DownLoadData 2";
  host_.act = [this] { EXPECT_EQ(State(), "send 1 of 2 image"); };
  EXPECT_TRUE(Send(kListed));
  EXPECT_EQ(host_.log, (Lines{"DownLoadData 4", "send 1 of 2", "DownLoadData 2", "send 2 of 2",
                              "DownLoadData 255", "send finished"}));
  EXPECT_EQ(host_.device.Block(2)[0], 'D');
  EXPECT_EQ(State(), "0 of 0 image");
  EXPECT_TRUE(Send({}));
  EXPECT_EQ(host_.Count("send 167 of 167"), 1);  // 200 but 32 of macros and 194

  BeCombined();
  for (const bool macros : {false, true}) {
    host_.log.clear();
    host_.sent.clear();
    EXPECT_TRUE(Send({macros, true, true, false}));
    EXPECT_EQ(host_.log, (Lines{"SendComboBlocks 3213", "send 1 of 1", "send finished"}));
  }
  EXPECT_TRUE(Send(kListed));
  EXPECT_EQ(host_.sent, (std::vector<int>{4, 2, 255}));
  ExpectQuiet();
}

TEST_F(WithoutDialogs, StopAnywhere) {
  const auto cancel = [this] { host_.control->CancelTransfer(); };
  for (const char* const point :
       {"RequestBlk 1", "RequestBlk 50", "RequestBlk 200", "RequestComboBlocks"}) {
    SCOPED_TRACE(point);
    NewControl();
    if (std::string(point) == "RequestComboBlocks") host_.StateSizes();
    host_.act_in = point;
    host_.act = cancel;
    EXPECT_TRUE(Receive());
    EXPECT_EQ(watcher_.ends, Lines{"receive stopped: The host has cancelled it."});
    EXPECT_EQ(host_.log.back(), "receive stopped");  // the answer that came after it is not taken
    EXPECT_FALSE(host_.control->State().has_image);
  }
  const struct {
    const char* point;
    Lines ends;
    std::size_t packets;
  } sends[] = {{"DownLoadData 1", {"send stopped: The host has cancelled it."}, 1},
               {"send 2 of 167", {"send stopped: The host has cancelled it."}, 2},
               {"DownLoadData 255", {"send finished"}, 168}};
  for (const auto& it : sends) {
    SCOPED_TRACE(it.point);
    NewControl();
    HaveImage();
    host_.act_in = watcher_.act_in = it.point;
    host_.act = watcher_.act = cancel;
    EXPECT_TRUE(Send({}));
    EXPECT_EQ(watcher_.ends, it.ends);
    EXPECT_EQ(host_.sent.size(), it.packets);
    host_.act = watcher_.act = nullptr;
  }
  cancel();
  EXPECT_EQ(watcher_.ends.size(), 1U);
  ExpectQuiet();
}

/// A packet that is on its way is waited for, as after STOP.
TEST_F(WithoutDialogs, OnePacketIsOutstanding) {
  HaveImage();
  host_.acknowledge = false;
  EXPECT_TRUE(host_.control->StartSend({}));
  host_.platform.Advance(60);
  EXPECT_TRUE(host_.control->StartSend({}));
  EXPECT_EQ(watcher_.ends, Lines{"send stopped: Another send has begun."});
  host_.platform.Advance(500);
  EXPECT_EQ(host_.sent, std::vector<int>{1});
  host_.control->TriggerUploadTimer();
  EXPECT_EQ(State(), "send 0 of 167 image");  // it was the packet of the first
  host_.platform.Advance(60);
  EXPECT_EQ(host_.sent, (std::vector<int>{1, 1}));
  host_.platform.Advance(60'000);
  EXPECT_EQ(State(), "send 0 of 167 image") << "there is no hidden timeout";
  EXPECT_FALSE(host_.control->StartReceive());
  EXPECT_EQ(watcher_.ends.back(), "receive refused: A send is under way.");
  host_.control->CancelTransfer();
  host_.silent_from = 1;
  EXPECT_TRUE(Receive());
  EXPECT_TRUE(Receive());
  EXPECT_EQ(watcher_.ends.back(), "receive stopped: Another receive has begun.");
  EXPECT_FALSE(host_.control->StartSend({}));
  EXPECT_EQ(watcher_.ends.back(), "send refused: A receive is under way.");
  EXPECT_EQ(State(), "receive 0 of 0 image");
  ExpectQuiet();
}

TEST_F(WithoutDialogs, WhatDoesNotFitIsNotSent) {
  constexpr std::string_view kNoMatch =
      "The current data does not match the data of the remote device";
  static constexpr Byte kOther[] = {0, 4, 9, 'O'};
  const struct {
    std::function<void()> prepare;
    SendChoice choice;
    std::string cause;
  } cases[] = {
      {[this] { NewControl(); }, {}, "There is no configuration to send."},
      {[this] { host_.control->Custom(18, 16, 0); },
       {},
       std::string(kNoMatch) + ": model code 6 is none of device family 16."},
      {[this] { host_.control->SaveConnectedInfo(kOther); },
       {},
       std::string(kNoMatch) + ": it is of UNIT 1 (16 ch, Triplex NTSC), the device is O (4 ch, "
                               "Triplex PAL, Lite/EZ)."},
      {[] {}, kListed, "There is no modified block to send."},
      {[] {},
       {true, false, true, false},
       "In the exchange of single blocks the data cannot be left out."},
      {[this] { BeCombined(); },
       {false, false, true, false},
       "Neither data nor macros are chosen."},
      {[this] {
         BeCombined();
         Receive();
         host_.control->FillComboInfo(std::vector<Byte>{0, 5, 2, 0, 200, 5, 6});
       },
       kMacros, "Macro records have 5 bytes in the device and 4 in the data."},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.cause);
    NewControl();
    HaveImage();
    it.prepare();
    watcher_.ends.clear();
    EXPECT_FALSE(Send(it.choice));
    EXPECT_EQ(watcher_.ends, Lines{"send refused: " + it.cause});
    EXPECT_TRUE(host_.sent.empty() && host_.sent_combo.empty());
  }
  EXPECT_TRUE(Send({true, true, true, true}));
  EXPECT_EQ(host_.sent_combo.size(), 3221U);
  ExpectQuiet();
}

/// What changes during a send is compared before each packet.
TEST_F(WithoutDialogs, AnotherImageEndsASend) {
  HaveImage();
  host_.act_in = "DownLoadData 3";
  host_.act = [this] { EXPECT_TRUE(host_.control->LoadDefaults(16, 6, "UNIT 1", '4')); };
  EXPECT_TRUE(Send({}));
  EXPECT_EQ(watcher_.ends.back(),
            "send refused: The current data does not match the data of the remote device.");
  EXPECT_EQ(host_.sent, (std::vector<int>{1, 2, 3}));
  ExpectQuiet();
}

TEST_F(WithoutDialogs, WhatCannotBeUsedFails) {
  const auto combined = [this](auto spoil) {
    BeCombined();
    spoil(host_.combo);
  };
  const struct {
    std::function<void()> prepare;
    std::string cause;
  } cases[] = {
      {[this] { host_.device.Block(185)[0] = 17; },
       "The configuration names 17 cameras; 16 are the most."},
      {[&] {
         host_.device.Block(185)[0] = 17;
         combined([](auto&) {});
       },
       "The configuration names 17 cameras; 16 are the most."},
      {[&] {
         HaveImage();
         combined([](auto& array) { array[10] = 100; });
       },
       "What has arrived contradicts itself and could not be used. The settings are those of "
       "before."},
      {[this] {
         host_.silent_from = 200;
         host_.act_in = "RequestBlk 200";
         host_.act = [this] { host_.platform.Post([this] { host_.Give(200, 9); }); };
       },
       "The device has sent 3192 bytes of blocks that take 3200."},
      {[this] {
         host_.act_in = "RequestBlk 9";
         host_.act = [] { throw std::runtime_error("the link is down"); };
       },
       "The link is down."},
  };
  const BlockImage good = host_.device;
  for (const auto& it : cases) {
    SCOPED_TRACE(it.cause);
    host_.device = good;
    NewControl();
    host_.combo.clear();
    it.prepare();
    EXPECT_TRUE(Receive());
    EXPECT_EQ(watcher_.ends, Lines{"receive failed: " + it.cause});
    EXPECT_EQ(host_.log.back(), "receive failed") << "the host hears of no arrival";
    EXPECT_EQ(host_.control->State().under_way, TransferKind::kNone);
    host_.silent_from = 0;
  }
  host_.device = good;
  NewControl();
  HaveImage();
  host_.act_in = "DownLoadData 255";
  host_.act = [] { throw 7; };
  EXPECT_TRUE(Send({}));
  EXPECT_EQ(watcher_.ends.back(), "send failed: The cause is not known.");
  ExpectQuiet();
}

TEST_F(WithoutDialogs, TheControlMayEndInEveryCall) {
  for (const char* const call :
       {"receive 1 of 200", "receive 200 of 200", "receive finished", "receive stopped",
        "receive failed", "receive refused", "send 1 of 167", "send 167 of 167", "send finished",
        "send refused", "send stopped", "receive 1 of 1", "send 1 of 1"}) {
    for (const bool throws : {false, true}) {
      SCOPED_TRACE(call);
      NewControl();
      host_.device.Block(185)[0] = std::string(call) == "receive failed" ? 17 : 16;
      if (std::string(call).ends_with("1 of 1")) BeCombined();
      watcher_.act_in = call;
      watcher_.act = [this, throws] {
        host_.control.reset();
        if (throws) throw std::runtime_error("and the observer fails");
      };
      const std::function<void()> steps[] = {[this] { Receive(); },
                                             [this] { Send({}); },
                                             [this] {
                                               host_.acknowledge = false;
                                               Send({});
                                               host_.acknowledge = true;
                                             },
                                             [this] { Receive(); },
                                             [this] { Send({}); },
                                             [this] {
                                               host_.silent_from = 1;
                                               host_.control->CancelTransfer();
                                             },
                                             [this] { Receive(); },
                                             [this] { Send({}); },
                                             [this] { Receive(); }};
      for (const auto& step : steps) {
        if (host_.control != nullptr) step();
      }
      EXPECT_EQ(host_.control, nullptr);
      host_.silent_from = 0;
      ExpectQuiet();
    }
  }
}

TEST_F(WithoutDialogs, TheObserverHearsOfThoseWithADialog) {
  host_.silent_from = 3;
  host_.control->Custom(10, 0, 0);  // closed when no more happens
  EXPECT_EQ(host_.log, (Lines{"RequestBlk 1", "receive 1 of 200", "RequestBlk 2",
                              "receive 2 of 200", "RequestBlk 3", "receive stopped"}));
  host_.silent_from = 0;
  host_.Download();
  EXPECT_EQ(Heard("receive finished"), (Lines{"receive finished", "UploadSucceeded"}));
  host_.CommandWithOk(11);
  EXPECT_EQ(Heard("send 167 of 167"),
            (Lines{"send 167 of 167", "DownLoadData 255", "send finished"}));
  // What a host begins by itself takes the dialog's place.
  host_.act_in = "DownLoadData 7";
  host_.act = [this] { EXPECT_TRUE(host_.control->StartSend({})); };
  host_.CommandWithOk(11);
  EXPECT_TRUE(host_.platform.Windows().empty());
  host_.platform.RunUntilIdle();
  host_.act_in = "RequestBlk 7";
  host_.act = [this] { host_.control->CancelTransfer(); };
  host_.Download();
  EXPECT_EQ(watcher_.ends,
            (Lines{"receive stopped: The user has closed its dialog.", "receive finished",
                   "send finished", "send stopped: Another send has begun.", "send finished",
                   "receive stopped: The host has cancelled it."}));
  ExpectQuiet();
}

TEST_F(WithoutDialogs, TheLogTellsWhatHappensAndBoxesWhatKindTheyAre) {
  const auto log = [this] {
    std::string lines;
    for (const LogLine& line : host_.platform.TakeLog()) {
      lines += std::to_string(static_cast<int>(line.level)) + " " + line.text + "\n";
    }
    return lines;
  };
  log();
  host_.act_in = "RequestBlk 9";
  host_.act = [this] {
    host_.Give(7);
    host_.Give(9, 20);
  };
  Receive();
  EXPECT_EQ(log(),
            "1 the receive has begun\n2 FillDataBlk: block 7 was ignored: block 9 is awaited\n"
            "2 a reply was refused: the block has more than 16 bytes\n"
            "1 a configuration of 200 blocks is here, from the device\n"
            "1 the receive has finished, 200 of 200\n");
  host_.control->Custom(18, 16, 0);
  host_.control->Custom(13, 0, 0);
  host_.control->Custom(11, 0, 0);
  Send({});
  host_.control->FillDataBlk({});
  host_.control->Custom(16, 0, 0);
  host_.platform.RunUntilIdle();
  EXPECT_EQ(log(),
            "2 there is no command 13\n"
            "2 the send was refused: The current data does not match the data of the remote "
            "device: model code 6 is none of device family 16.\n"
            "3 Error found in FillDataBlk: The reply is empty.\n"
            "1 a configuration of 200 blocks is here, from the factory\n");
  std::string kinds;
  for (const Message& message : host_.platform.TakeMessages()) {
    kinds +=
        std::to_string(static_cast<int>(message.kind)) + " " + message.text.substr(0, 14) + "\n";
  }
  EXPECT_EQ(kinds, "3 The current da\n3 Error found in\n0 The default se\n");
}

}  // namespace
}  // namespace quorvel
