#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

/// A device of the combined exchange with two macro records of 4 bytes.
class Combined : public ::testing::Test {
 protected:
  void SetUp() override {
    host_.StateSizes();
    host_.combo = ArrayOf(host_.device, {0, 13, 0x0C, 0x80, 0, 8, 0, 4, 2, 0, 200, 5, 6});
  }
  static std::vector<Byte> ArrayOf(const BlockImage& image, std::vector<Byte> header) {
    header.insert(header.end(), image.Bytes().begin(), image.Bytes().end());
    for (const Byte macro : {1, 2, 3, 4, 5, 6, 7, 8}) header.push_back(macro);
    return header;
  }
  struct Choice {
    bool modified = false;
    bool macros = false;
    bool data = true;
  };
  /// Command 11, these choices, START, the end, CLOSE. Returns the status bar at the end.
  std::string Send(const Choice& choice) {
    std::string status;
    bool started = false;
    host_.sent.clear();
    host_.sent_combo.clear();
    host_.platform.at_modal = [&](Dialog& dialog) {
      if (!started) {
        started = true;
        dialog.Find<OptionButton>(choice.modified ? "optBlk(1)" : "optBlk(0)").Click();
        if (choice.macros) dialog.Find<CheckBox>("chkMacro(0)").Click();
        if (!choice.data) dialog.Find<CheckBox>("chkMacro(1)").Click();
        EXPECT_EQ(dialog.Find<Button>("cmdOK").Click(), Answer::kDone);
        return true;
      }
      status = dialog.Find<StatusBar>("StatusBar1").ValueText();
      clear_was_offered_ = dialog.Find<Button>("cmdClearBlk").Visible();
      if (dialog.Find<Button>("cmdStop").Visible()) return false;
      return dialog.CloseWindow() == Answer::kDone;
    };
    host_.control->Custom(11, 0, 0);
    host_.platform.at_modal = nullptr;
    return status;
  }
  /// Bytes of a block of the array that was sent.
  [[nodiscard]] Byte SentByte(int block, int byte) const {
    return host_.sent_combo.at(static_cast<std::size_t>(13 + (block - 1) * 16 + byte));
  }

  /// A refusal of an array, which ends in the reason; none when there is no reason.
  static bool IsTold(const std::string& message, std::string_view reason) {
    if (reason.empty()) return message.empty();
    return message.starts_with("Error found in FillComboBlk\r") && message.ends_with(reason);
  }

  TestHost host_;
  bool clear_was_offered_ = false;
};

TEST_F(Combined, AnArrayThatContradictsItselfLeavesTheImage) {
  constexpr const char* kNotUsed =
      "What has arrived contradicts itself and could not be used. The settings are those of "
      "before.";
  const struct {
    const char* name;
    std::size_t at;
    Byte value;
    std::size_t length;
    const char* reason;
  } cases[] = {
      {"another block count", 10, 199, 3221,
       "contradicts itself: it states 199 blocks, but 3200 bytes of block data."},
      {"data longer than the array", 2, 0xFF, 3221,
       "contradicts itself: it states 200 blocks, but 65408 bytes of block data."},
      {"cut in the data", 0, 0, 3000, "is cut short: it has 3000 of 3221 bytes."},
      {"cut in the header", 0, 0, 7, "it has 7 bytes, and its header alone takes 13."},
      {"a header without room for itself", 1, 5, 3221, "its header states a length of 5 bytes."},
      {"a header longer than the array", 0, 0xFF, 3221,
       "is cut short: it has 3221 of 68501 bytes."},
      {"nothing", 0, 0, 0, "it has 0 bytes, and its header alone takes 13."}};
  for (const bool had_image : {false, true}) {
    for (const auto& it : cases) {
      SCOPED_TRACE(it.name);
      SetUp();
      if (had_image) {
        host_.Download();
        host_.EditTitle(3, "Typed");
      }
      const auto before = host_.control->Image();
      host_.log.clear();
      host_.combo[it.at] = it.value;
      host_.combo.resize(it.length);
      host_.control->FillComboBlk(host_.combo);  // not asked for: edits must not be lost
      EXPECT_EQ(host_.Modified().size(), had_image ? 1U : 0U);
      EXPECT_TRUE(IsTold(host_.OnlyMessage(), had_image ? "" : it.reason));
      host_.sync = true;
      host_.platform.files.clear();
      host_.platform.AnswerNextFile("received.bin");
      bool save = true;
      host_.platform.at_modal = [&save](Dialog& dialog) {
        if (std::exchange(save, false)) dialog.Find<Button>("cmdSaveFile").Click();
        return dialog.CloseWindow() == Answer::kDone;
      };
      if (it.length == 0) {
        host_.act_in = "RequestComboBlocks";
        host_.act = [this] { host_.control->FillComboBlk({}); };
      }
      host_.control->Custom(10, 0, 0);
      host_.sync = false;
      EXPECT_EQ(host_.Count("UploadSucceeded"), had_image ? 1 : 0);
      const std::string told = host_.OnlyMessage();
      EXPECT_TRUE(had_image ? told == kNotUsed : IsTold(told, it.reason)) << told;
      EXPECT_EQ(host_.platform.files.contains("received.bin"), had_image);
      EXPECT_EQ(host_.control->Image(), before);
      EXPECT_EQ(host_.Modified().size(), had_image ? 1U : 0U);
      if (had_image) {
        EXPECT_EQ(host_.platform.files["received.bin"], host_.combo);
        EXPECT_EQ(host_.control->Settings("CamInfo(3).title").at(0).value, "\"Typed\"");
      }
      host_.platform.TakeMessages();
    }
    host_.NewControl();
  }
}

TEST_F(Combined, AnArrayWithoutAllItsMacrosIsTaken) {
  constexpr const char* kMacrosMissing =
      "What has arrived lacks macro data: the settings are used, the macros cannot be sent.";
  host_.combo.resize(3218);
  host_.platform.AnswerNextFile("received.bin");
  bool saved = false;
  host_.platform.at_modal = [&saved](Dialog& dialog) {
    const bool save = !std::exchange(saved, dialog.Find<Button>("cmdSaveFile").Enabled());
    return dialog.Find<Button>(save ? "cmdSaveFile" : "cmdOK").Click() == Answer::kDone;
  };
  host_.control->Custom(10, 0, 0);
  EXPECT_EQ(host_.OnlyMessage(), kMacrosMissing);
  EXPECT_EQ(host_.control->Image().size(), 3200U);
  EXPECT_EQ(host_.platform.files["received.bin"], host_.combo);
  host_.EditTitle(0, "Lobby");
  Send({.modified = true, .macros = true});
  EXPECT_EQ(SentByte(1, 0), 'L');
  EXPECT_EQ(host_.sent_combo[5], 0);  // the length of the macro data
  EXPECT_EQ(host_.sent_combo.size(), 3218U);

  host_.platform.AnswerNextFile("received.bin");
  host_.CommandWithOk(12);
  EXPECT_EQ(host_.OnlyMessage(), kMacrosMissing);
  EXPECT_EQ(host_.Modified(), std::vector<int>{});
}

/// Which exchange was asked for does not matter: what comes says what it is.
TEST_F(Combined, AHostMayMixTheExchanges) {
  std::vector<Byte> image(host_.device.Bytes().begin(), host_.device.Bytes().end());
  auto whole = image;
  whole.push_back(0);
  const struct {
    const char* asked;
    bool combined, interactive;
    std::function<void()> answer;
    const char* arrival;
  } cases[] = {
      {"RequestComboBlocks", true, false, [&] { host_.control->FillDataBlk(whole); },
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
  EXPECT_EQ(Send({.modified = true}), "\"Upload block number :\" | \"1\" | \"Finished\"");
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
  Send({.modified = true, .macros = true});
  EXPECT_EQ(SentByte(5, 0), 'B');
  EXPECT_EQ(host_.sent_combo.size(), 3213U);  // the other unit's macros stay away, too
}

TEST_F(Combined, SendsWhatIsIncluded) {
  host_.Download();
  host_.EditTitle(0, "Lobby");
  auto expected = host_.combo;
  std::ranges::copy(std::string("Lobby        "), expected.begin() + 13);
  auto with_macros = expected;

  // The listed blocks alone, with the macros; then everything without them: the clock's mark is 1.
  EXPECT_EQ(Send({.modified = true, .macros = true}),
            "\"Upload block number :\" | \"\" | \"Finished\"");
  EXPECT_TRUE(clear_was_offered_);
  EXPECT_EQ(host_.sent_combo, with_macros);
  Send({});
  EXPECT_FALSE(clear_was_offered_);
  expected[13 + 975] = 1;
  auto without_macros = expected;
  without_macros[5] = 0;
  EXPECT_EQ(host_.sent_combo, without_macros);
  Send({.macros = true, .data = false});
  auto without_data = expected;
  without_data[2] = without_data[3] = 0;
  EXPECT_EQ(host_.sent_combo, without_data);
  Send({.macros = true});
  EXPECT_EQ(host_.sent_combo, expected);
  EXPECT_TRUE(host_.sent.empty());

  // The device keeps its macros: single packets.
  Send({.modified = true});
  EXPECT_TRUE(host_.sent_combo.empty());
  EXPECT_EQ(host_.sent, (std::vector<int>{1, 255}));
  EXPECT_EQ(host_.Modified(), std::vector<int>{1});
}

TEST_F(Combined, MacrosOfAnotherSizeAreSentWhenTheUserAgrees) {
  host_.Download();
  host_.control->FillComboInfo(std::vector<Byte>{0, 5, 2, 0, 200, 5, 6});
  for (const bool agreed : {false, true}) {
    host_.platform.AnswerNext(agreed);
    Send({.macros = true});
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
