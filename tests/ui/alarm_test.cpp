#include <gtest/gtest.h>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

class Alarm : public ::testing::Test {
 protected:
  Dialog& Open() {
    host_.Download();
    host_.OpenMenu();
    host_.platform.ChooseMenu("mnu_Alarm");
    return host_.platform.Window("frm_Alarm");
  }
  static void Ok(Dialog& dialog) {
    EXPECT_EQ(dialog.Find<Button>("cmd_OK").Click(), Answer::kDone);
  }

  TestHost host_;
};

TEST_F(Alarm, WhatNoControlCanShow) {
  const int kNothing = 0;
  const struct {
    const char* what;
    Byte code, variant;
    int block, at;
    Byte stored;
    int listed;  ///< by OK without a change; such values the rules of writing replace
    const char* setting;
    const char* value;
  } cases[] = {
      {"an unknown way to end", 6, '4', 59, 10, 7, 59, "AlarmMode", "2"},
      {"its time-out", 6, '4', 59, 9, 251, kNothing, "AlarmTimeOut", "252 s"},
      {"an unknown record mode", 6, '4', 60, 13, 9, kNothing, "AlmRecMode", "9"},
      {"another archive alarm", 6, '4', 60, 11, 5, 60, "DvrArchAlm", "1"},
      {"another archive alarm, hidden", 8, 'A', 60, 11, 5, kNothing, "DvrArchAlm", "5"},
      {"another buzzer", 6, '4', 61, 11, 7, 61, "Buzzer(1)", "0"},
      {"another buzzer, hidden", 6, 'A', 61, 11, 7, kNothing, "Buzzer(1)", "7"},
      {"another buzzer, disabled", 8, '4', 61, 11, 7, kNothing, "Buzzer(1)", "7"},
      {"a camera that is not there", 6, '4', 36, 2, 40, kNothing, "AlmActionInfo(2).Display0",
       "40"},
      {"a preset that is not there", 6, '0', 186, 1, 99, kNothing, "AlmActionInfo(1).Preset0",
       "99"},
      {"an unknown output", 1, '4', 45, 3, 9, 45, "AlarmInfo(3).ExtAlmAction", "7"},
      {"an event without a box", 6, '4', 200, 0, 0x81, kNothing, "AlmEmailNotify.EmailNotify(0)",
       "129"},
      {"an interval too long", 6, '4', 200, 12, 99, kNothing, "AlmEmailNotify.TCPInterval",
       "99 min"},
      {"a port too low", 6, '4', 200, 14, 80, kNothing, "AlmEmailNotify.TCPPort", "1104"},
      {"a server that cannot be", 6, '4', 213, 1, 240, kNothing, "AlmEmailNotify.SMTPServer(0)",
       "240"},
      {"an address without a domain", 6, '4', 201, 0, 'x', kNothing, nullptr, nullptr},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.what);
    host_.device = LoadDefaultImage(it.code == 1 ? 104 : 401);
    if (it.code != 1) {
      host_.device.ResizeBlocks(225);
      host_.device.Block(1)[15] = 225;
    }
    host_.Identify(16, it.code, it.variant);
    host_.device.Block(it.block)[static_cast<std::size_t>(it.at)] = it.stored;
    Ok(Open());
    EXPECT_EQ(host_.Modified(),
              it.listed == kNothing ? std::vector<int>{} : std::vector<int>{it.listed});
    if (it.setting != nullptr) {
      EXPECT_EQ(host_.control->Settings(it.setting).at(0).value, it.value);
    }
  }
}

TEST_F(Alarm, TheTimeOutComesAndGoesWithItsOption) {
  host_.device.Block(59)[9] = 9;
  host_.device.Block(59)[10] = 1;
  Dialog& dialog = Open();
  dialog.Find<TabStrip>("SSTab1").Choose(5);
  auto& list = dialog.Find<ListBox>("lstTimeOut");
  EXPECT_EQ(list.Choose(3), Answer::kHidden);
  dialog.Find<OptionButton>("opt_AlLatch(2)").Click();
  EXPECT_EQ(list.CurrentText(), "10");
  EXPECT_EQ(list.Choose(19), Answer::kDone);
  dialog.Find<OptionButton>("opt_AlLatch(0)").Click();
  EXPECT_FALSE(list.Showing());
  dialog.Find<OptionButton>("opt_AlLatch(2)").Click();
  EXPECT_EQ(list.CurrentText(), "10");
  Ok(dialog);
  EXPECT_EQ(host_.Modified(), std::vector<int>{59});
}

/// A text source that hands the control another device's image when it is asked for one text.
class ImageBringer : public AutomationObject {
 public:
  explicit ImageBringer(TestHost& host) : host_(host) {}
  std::string Call(std::string_view /*method*/, std::int32_t id) override {
    if (id == asked_for) {
      std::vector<Byte> image(host_.device.Bytes().begin(), host_.device.Bytes().end());
      image.push_back(0);
      host_.control->FillDataBlk(image);
    }
    return "text";
  }
  int asked_for = 0;

 private:
  TestHost& host_;
};

TEST_F(Alarm, OpensForOneDeviceWhateverATextSourceDoes) {
  for (const int asked_for : {60, 93, 106, 56}) {
    for (const auto& [before, after] : {std::pair{16, 4}, std::pair{4, 16}}) {
      const auto source = std::make_shared<ImageBringer>(host_);
      host_.platform.Classes().Register("Texts", [source] { return source; });
      host_.NewControl();
      host_.Identify(static_cast<Byte>(before), 6, '2');
      host_.Download();
      host_.control->HostCommId(1);
      host_.control->CustomWithString(191, 0, 0, "Texts");
      host_.OpenMenu();
      host_.Identify(static_cast<Byte>(after), 6, '2');
      source->asked_for = asked_for;
      EXPECT_EQ(host_.platform.ChooseMenu("mnu_Alarm"), Answer::kDone);
      source->asked_for = 0;
      EXPECT_TRUE(host_.platform.TakeMessages().empty()) << asked_for;
      EXPECT_EQ(host_.platform.Window("frm_Alarm").Find<Grid>("MSFG_VidLoss").Rows(), before + 1);
      Ok(host_.platform.Window("frm_Alarm"));
      EXPECT_EQ(host_.OnlyMessage(), "text") << "the data does not match";
      EXPECT_TRUE(host_.Modified().empty());
    }
  }
}

}  // namespace
}  // namespace quorvel
