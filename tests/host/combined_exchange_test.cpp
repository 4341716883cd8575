#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// A device of the combined exchange with two macro records of 4 bytes.
class Combined : public ::testing::Test {
 protected:
  void SetUp() override {
    host_.StateSizes();
    host_.combo = ArrayOf(host_.device);
  }
  /// Command 11, these choices, START, the end, CLOSE. Returns the status bar at the end.
  std::string Send(bool modified, bool macros) {
    std::string status;
    bool started = false;
    host_.sent.clear();
    host_.sent_combo.clear();
    host_.platform.at_modal = [&](Dialog& dialog) {
      if (!std::exchange(started, true)) {
        dialog.Find<OptionButton>(modified ? "optBlk(1)" : "optBlk(0)").Click();
        if (macros) dialog.Find<CheckBox>("chkMacro(0)").Click();
        EXPECT_EQ(dialog.Find<Button>("cmdOK").Click(), Answer::kDone);
        return true;
      }
      status = dialog.Find<StatusBar>("StatusBar1").ValueText();
      if (dialog.Find<Button>("cmdStop").Visible()) return false;
      return dialog.CloseWindow() == Answer::kDone;
    };
    host_.control->Custom(11, 0, 0);
    host_.platform.at_modal = nullptr;
    return status;
  }

  TestHost host_;
};

/// Which exchange was asked for does not matter: what comes says what it is.
TEST_F(Combined, AHostMayMixTheExchanges) {
  std::vector<Byte> image(host_.device.Bytes().begin(), host_.device.Bytes().end());
  const struct {
    const char* asked;
    bool combined, interactive;
    std::function<void()> answer;
    const char* arrival;
  } cases[] = {
      {"RequestComboBlocks", true, false, [&] { host_.GiveWholeImage(); },
       "ULSucceededWithStr TX16 6 16"},
      {"RequestBlk 1", false, true, [&] { host_.control->FillComboBlk(host_.combo); },
       "UploadSucceeded"},
      {"RequestBlk 1", false, false, [&] { host_.control->FillComboBlk(host_.combo); },
       "ULSucceededWithStr TX16 6 16"},
      {"RequestComboBlocks", true, true,
       [&] {
         host_.silent_from = 0;
         host_.Give(1);
       },
       "UploadSucceeded"},
  };
  const auto combo = host_.combo;
  for (const auto& it : cases) {
    SCOPED_TRACE(it.asked);
    host_.NewControl();
    host_.combo = combo;
    host_.Download();
    host_.EditTitle(0, "Typed");  // so that nothing is taken that was not asked for
    host_.log.clear();
    if (it.combined) host_.StateSizes();
    host_.control->HostCommId(it.interactive ? 0 : 1);
    host_.silent_from = 1;
    host_.act_in = it.asked;
    host_.act = [&] {
      host_.combo.clear();
      host_.platform.Post([&] {
        host_.combo = combo;
        it.answer();
      });
    };
    host_.Download();
    host_.platform.RunUntilIdle();
    EXPECT_EQ(host_.log.at(0), it.asked);
    EXPECT_EQ(host_.Count(it.arrival), 1);
    EXPECT_EQ(host_.control->Image(), image);
    EXPECT_TRUE(host_.Modified().empty());
    host_.silent_from = 0;
  }
}

TEST_F(Combined, ALateOrSecondArrayUndoesNothing) {
  host_.Download();
  host_.EditTitle(0, "Typed");
  host_.control->FillComboBlk(host_.combo);  // a second time
  EXPECT_EQ(host_.Count("UploadSucceeded"), 1);
  EXPECT_EQ(host_.control->Settings("CamInfo(0).title").at(0).value, "\"Typed\"");
  const auto answer = std::exchange(host_.combo, {});
  host_.control->Custom(10, 0, 0);  // the dialog is closed when nothing more happens
  host_.control->FillComboBlk(answer);
  EXPECT_EQ(host_.Modified(), std::vector<int>{1});
  EXPECT_EQ(Send(true, false), "\"Upload block number :\" | \"1\" | \"Finished\"");
  EXPECT_EQ(host_.sent, (std::vector<int>{1, 255}));
  EXPECT_EQ(host_.device.Block(1)[0], 'T');
}

/// The blocks that are not listed travel as well: they must be this unit's.
TEST_F(Combined, AnArrayOfAnotherUnitIsNotSent) {
  host_.Download();
  host_.device.Block(5)[0] = 'B';
  host_.control->SaveConnectedInfo(std::vector<Byte>{0, 16, 6, 'T'});
  host_.Download();
  host_.StateSizes();
  host_.EditTitle(0, "Lobby");
  Send(true, true);
  EXPECT_EQ(host_.sent_combo.at(13 + 4 * 16), 'B');
  EXPECT_EQ(host_.sent_combo.size(), 3213U);  // the other unit's macros stay away, too
}

TEST_F(Combined, MacrosOfAnotherSizeAreSentWhenTheUserAgrees) {
  host_.Download();
  host_.control->FillComboInfo(std::vector<Byte>{0, 5, 2, 0, 200, 5, 6});
  for (const bool agreed : {false, true}) {
    host_.platform.AnswerNext(agreed);
    Send(false, true);
    const auto messages = host_.platform.TakeMessages();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(
        messages[0].text,
        "Detected a difference in Macro structure size.\rSome variables will not be updated.");
    EXPECT_EQ(messages[0].title, "Message");
    EXPECT_EQ(messages[0].buttons, Message::Buttons::kOkCancel);
    EXPECT_EQ(host_.sent_combo.size(), agreed ? 3221U : 0U);
  }
}

}  // namespace
}  // namespace quorvel
