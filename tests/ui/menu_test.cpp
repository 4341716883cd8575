#include <gtest/gtest.h>

#include "tests/host/test_host.h"
#include "ui/context.h"
#include "ui/menu/frm_menu.h"

namespace quorvel {
namespace {

TEST(Menu, ShowsWhatTheModelHas) {
  using Hidden = std::vector<std::string>;
  const struct {
    Byte code;
    char variant;
    Hidden hidden;
  } cases[] = {
      {0, '4', {"mnu_VArchive"}},
      {0, 'A', {"mnu_Macro", "mnu_VArchive", "mnu_Telemetry"}},
      {0, 'C', {"mnu_Macro", "mnu_VArchive", "mnu_Telemetry"}},
      {0, '0', {"mnu_VArchive", "mnu_Telemetry"}},
      {0, '2', {"mnu_VArchive", "mnu_Telemetry"}},
      {1, '4', {"mnuVCR"}},
      {3, 'C', {"mnuVCR", "mnu_Telemetry"}},
      {4, '4', {"mnuVCR", "mnu_VArchive"}},
      {5, 'A', {"mnuVCR", "mnu_VArchive"}},
      {6, '2', {"mnuVCR"}},
      {9, '4', {"mnu_Sequence", "mnuVCR"}},
      {16, '4', {"mnu_Sequence", "mnu_Macro", "mnuVCR", "mnu_VArchive"}},
      {18, '0', {"mnuVCR", "mnu_Telemetry"}},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(int{it.code});
    TestHost host;
    host.Identify(16, it.code, static_cast<Byte>(it.variant));
    host.Download();
    host.OpenMenu();
    PopupMenu& menu = host.platform.Menu();
    Hidden hidden;
    for (const MenuItem& item : menu.Root().children) {
      if (!item.visible) hidden.push_back(item.name);
    }
    EXPECT_EQ(hidden, it.hidden);
    const bool lumacast = it.code == 18;
    EXPECT_EQ(menu.Item("mnu_VArchive").caption,
              lumacast ? "Lumacast Setup" : "Video Archive Setup");
  }
}

TEST(Menu, OfAnImageThatIsGoneChoosesNothing) {
  TestHost host;
  host.Identify(16, 16);
  host.Download();
  host.OpenMenu();
  host.platform.ChooseMenu("mnu_LockKB");
  host.platform.RunUntilIdle();
  host.Identify(16, 3);
  host.Download();
  for (const char* item : {"mnu_UnLock", "mnu_French", "mnu_CSetup", "mnuActGrid", "mnu_Exit"}) {
    EXPECT_EQ(host.platform.ChooseMenu(item), Answer::kOutdated) << item;
  }
  EXPECT_STREQ(Describe(Answer::kOutdated), "belongs to data that has been replaced");
  EXPECT_TRUE(host.Modified().empty());
  EXPECT_TRUE(host.platform.Windows().empty());
  EXPECT_EQ(host.Count("ActGridPop 16"), 0);
  // The menu of the present image is up next.
  host.platform.RunUntilIdle();
  EXPECT_EQ(host.platform.ChooseMenu("mnu_UnLock"), Answer::kDisabled);
  EXPECT_EQ(host.platform.ChooseMenu("mnu_French"), Answer::kDone);
  EXPECT_EQ(host.Modified(), std::vector<int>{60});
}

/// The menu alone, over a context of its own.
class MenuForm : public ::testing::Test {
 protected:
  PopupMenu& Load() {
    if (form_ != nullptr) form_->Unload();
    form_ = std::make_shared<frm_Menu>(context_);
    form_->Load();
    platform_.RunUntilIdle();
    return platform_.Menu();
  }
  std::string Ticked() {
    std::string names;
    for (const MenuItem& item : platform_.Menu().Item("mnu_Factory").children) {
      if (item.checked) names += item.name;
    }
    return names;
  }
  HeadlessPlatform platform_;
  Context context_{platform_};
  std::shared_ptr<frm_Menu> form_;
};

TEST_F(MenuForm, LanguagesByCode) {
  const char* const items[] = {"mnu_EngLang",   "mnu_French", "mnu_German",  "mnu_Italian",
                               "mnu_Russian",   "mnu_Polish", "mnu_Czech",   "mnu_Finnish",
                               "mnu_Hungarian", "mnu_Slovak", "mnu_Spanish", "mnu_Dutch",
                               "mnu_Danish"};
  const auto state_firmware = [this](Byte a, Byte b) {
    context_.device.ComboArray = CombinedArray::Build({.ExtraA = a, .ExtraB = b}, {});
  };
  state_firmware(5, 2);
  context_.device.env.identity.VariantChar = '2';  // says nothing from firmware 5.02 on
  for (int code = 0; code < 13; ++code) {
    Load();
    EXPECT_EQ(platform_.ChooseMenu(items[code]), Answer::kDone);
    EXPECT_EQ(context_.device.Record().MuxLang(), code);
    Load();
    EXPECT_EQ(Ticked(), items[code]);
  }
  context_.device.Record().MuxLang(200);
  Load();
  EXPECT_EQ(Ticked(), "mnu_Danish");
  state_firmware(5, 1);
  EXPECT_FALSE(Load().Item("mnu_Polish").visible);
  EXPECT_EQ(Ticked(), "mnu_EngLang");
}

TEST_F(MenuForm, PopsUpAShortWhileAfterItsFormHasLoadedAndEachAction) {
  Load();
  platform_.ChooseMenu("mnu_LockKB");
  EXPECT_FALSE(platform_.MenuIsUp());
  platform_.Advance(2);
  EXPECT_FALSE(platform_.MenuIsUp());
  platform_.Advance(1);
  EXPECT_TRUE(platform_.MenuIsUp());
}

TEST_F(MenuForm, TelemetryOfMultiplexers) {
  context_.device.env.identity.VariantChar = '2';
  for (const Byte kind : {0, 1, 2}) {
    context_.device.env.identity.RecorderKind = kind;
    EXPECT_EQ(Load().Item("mnu_Telemetry").visible, kind == 2);
  }
}

}  // namespace
}  // namespace quorvel
