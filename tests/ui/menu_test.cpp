#include <gtest/gtest.h>

#include "tests/host/test_host.h"
#include "ui/menu/frm_menu.h"

namespace quorvel {
namespace {

/// Names of the items of the first level that are in a state, separators left out.
std::vector<std::string> Names(PopupMenu& menu, const std::function<bool(const MenuItem&)>& state) {
  std::vector<std::string> names;
  for (const MenuItem& item : menu.Root().children) {
    if (!item.separator && state(item)) names.push_back(item.name);
  }
  return names;
}

struct ModelCase {
  Byte code;
  char variant;
  std::vector<std::string> hidden;
};

TEST(Menu, ShowsWhatTheModelHas) {
  const ModelCase cases[] = {
      {0, '4', {"mnu_VArchive"}},
      {0, 'A', {"mnu_Macro", "mnu_VArchive", "mnu_Telemetry"}},
      {0, 'C', {"mnu_Macro", "mnu_VArchive", "mnu_Telemetry"}},
      {0, '0', {"mnu_VArchive", "mnu_Telemetry"}},
      {0, '2', {"mnu_VArchive", "mnu_Telemetry"}},
      {1, '4', {"mnuVCR"}},
      {3, 'C', {"mnuVCR", "mnu_Telemetry"}},
      {4, '4', {"mnuVCR", "mnu_VArchive"}},
      {6, '2', {"mnuVCR"}},
      {9, '4', {"mnu_Sequence", "mnuVCR"}},
      {16, '4', {"mnu_Sequence", "mnu_Macro", "mnuVCR", "mnu_VArchive"}},
      {18, '0', {"mnuVCR", "mnu_Telemetry"}},
  };
  for (const ModelCase& it : cases) {
    SCOPED_TRACE(int{it.code});
    TestHost host;
    host.Identify(16, it.code, static_cast<Byte>(it.variant));
    host.Download();
    host.OpenMenu();
    PopupMenu& menu = host.platform.Menu();
    EXPECT_EQ(Names(menu, [](const MenuItem& item) { return !item.visible; }), it.hidden);
    // Of the editors, Alarms and Camera Setup are there.
    EXPECT_EQ(Names(menu, [](const MenuItem& item) { return item.enabled; }),
              (std::vector<std::string>{"mnu_Alarm", "mnu_MDetection", "mnu_CSetup",
                                        "mnu_FPanelLock", "mnu_Factory", "mnu_Exit"}));
    const bool lumacast = it.code == 18;
    EXPECT_EQ(menu.Item("mnu_VArchive").caption,
              lumacast ? "Lumacast Setup" : "Video Archive Setup");
    EXPECT_EQ(menu.Item("mnu_Alarm").caption, "Alarms");
  }
}

TEST(Menu, KeyboardLock) {
  TestHost host;
  host.Identify(16, 3);
  host.device.Block(60)[5] = 0;
  host.Download();
  host.OpenMenu();
  EXPECT_FALSE(host.platform.Menu().Item("mnu_UnLock").enabled);
  EXPECT_TRUE(host.platform.Menu().Item("mnu_LockKB").checked);
  EXPECT_EQ(host.platform.ChooseMenu("mnu_UnLock"), Answer::kDisabled);
  EXPECT_TRUE(host.Modified().empty());

  host.Identify(16, 6);
  host.Download();
  host.OpenMenu();
  EXPECT_TRUE(host.platform.Menu().Item("mnu_UnLock").checked);
  host.platform.ChooseMenu("mnu_LockKB");
  EXPECT_FALSE(host.platform.MenuIsUp());
  host.platform.RunUntilIdle();
  EXPECT_TRUE(host.platform.Menu().Item("mnu_LockKB").checked);
  EXPECT_FALSE(host.platform.Menu().Item("mnu_UnLock").checked);
  EXPECT_EQ(host.Modified(), std::vector<int>{60});
}

TEST(Menu, LanguagesOfOldFirmware) {
  TestHost host;
  host.Download();
  host.OpenMenu();
  EXPECT_FALSE(host.platform.Menu().Item("mnu_EngLang").checked);
  EXPECT_TRUE(host.platform.Menu().Item("mnu_Italian").visible);
  host.platform.ChooseMenu("mnu_French");
  host.platform.RunUntilIdle();
  EXPECT_TRUE(host.platform.Menu().Item("mnu_French").checked);
  EXPECT_EQ(host.Modified(), std::vector<int>{60});

  host.Identify(16, 6, '1');
  host.Download();
  host.OpenMenu();
  PopupMenu& menu = host.platform.Menu();
  EXPECT_TRUE(menu.Item("mnu_EngLang").checked);
  EXPECT_FALSE(menu.Item("mnu_French").enabled);
  EXPECT_FALSE(menu.Item("mnu_German").enabled);
  EXPECT_FALSE(menu.Item("mnu_Italian").visible);
  EXPECT_FALSE(menu.Item("mnu_Dutch").visible);
  EXPECT_TRUE(menu.Item("mnu_Danish").visible);
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
  const char* const captions[] = {"English", "French", "German",  "Italian",   "Russian",
                                  "Polish",  "Czech",  "Finnish", "Hungarian", "Slovak",
                                  "Spanish", "Dutch",  "Danish"};
  const auto state_firmware = [this](Byte a, Byte b) {
    context_.ComboArray = CombinedArray::Build({.ExtraA = a, .ExtraB = b}, {});
  };
  state_firmware(5, 2);
  context_.env.identity.VariantChar = '2';  // says nothing from firmware 5.02 on
  for (int code = 0; code < 13; ++code) {
    EXPECT_EQ(Load().Item(items[code]).caption, captions[code]);
    EXPECT_EQ(platform_.ChooseMenu(items[code]), Answer::kDone);
    EXPECT_EQ(context_.Record().MuxLang(), code);
    Load();
    EXPECT_EQ(Ticked(), items[code]);
  }
  context_.Record().MuxLang(200);
  Load();
  EXPECT_EQ(Ticked(), "mnu_Danish");
  state_firmware(5, 1);
  EXPECT_FALSE(Load().Item("mnu_Polish").visible);
  EXPECT_EQ(Ticked(), "mnu_EngLang");
}

TEST_F(MenuForm, HostsThatMoveWholeImagesMayUnlockAnyModel) {
  SetModelFlags(context_.env.identity, 3);
  context_.MenuHostCommId = 1;
  PopupMenu& menu = Load();
  EXPECT_TRUE(menu.Item("mnu_UnLock").enabled);
  EXPECT_TRUE(menu.Item("mnu_UnLock").checked);
  EXPECT_EQ(context_.Record().LockKeyBoard(), 0);
  EXPECT_FALSE(menu.Item("mnuActGrid").visible);
}

TEST_F(MenuForm, TelemetryOfMultiplexers) {
  context_.env.identity.VariantChar = '2';
  for (const Byte kind : {0, 1, 2}) {
    context_.env.identity.RecorderKind = kind;
    EXPECT_EQ(Load().Item("mnu_Telemetry").visible, kind == 2);
  }
}

TEST_F(MenuForm, CaptionsComeFromTheCatalogue) {
  const struct {
    const char* item;
    const char* caption;
  } cases[] = {{"mnu_Alarm", "Alarms"},
               {"mnu_Macro", "Macro"},
               {"mnu_Record", "Record"},
               {"mnu_CSetup", "Camera Setup"},
               {"mnu_Comm", "Communications"},
               {"mnu_Factory", "Factory Settings"},
               {"mnu_FPanelLock", "Front Panel Lock"},
               {"mnu_LockKB", "Lock Keyboard"},
               {"mnu_UnLock", "Unlock Keyboard"},
               {"mnu_Main", "Main"},
               {"mnu_MDetection", "Motion Detection"},
               {"mnuMTSetup", "Setup Parameters"},
               {"mnuActGrid", "Setup Active zones"},
               {"mnu_Sequence", "Sequencing"},
               {"mnu_Telemetry", "Telemetry"},
               {"mnu_TimeDate", "Time/Date"},
               {"mnuVCR", "VCR Setup"},
               {"mnu_VArchive", "Video Archive Setup"},
               {"mnu_Exit", "Exit"}};
  PopupMenu& menu = Load();
  for (const auto& it : cases) EXPECT_EQ(menu.Item(it.item).caption, it.caption);
}

TEST(Menu, ActiveZonesNeedALink) {
  TestHost host;
  host.Download();
  host.OpenMenu(0);
  host.platform.ChooseMenu("mnuActGrid");
  Dialog& message = host.platform.Window("frmMsg");
  EXPECT_EQ(message.Caption(), "Information Message");
  EXPECT_EQ(message.Find<Label>("Label1").Caption(),
            "Please establish an Ethernet connection first.");
  message.Find<Button>("cmdOK").Click();
  EXPECT_FALSE(host.platform.MenuIsUp());
  host.platform.Advance(3);
  EXPECT_TRUE(host.platform.MenuIsUp());
  EXPECT_EQ(host.Count("ActGridPop 16"), 0);

  host.OpenMenu(1);
  host.platform.ChooseMenu("mnuActGrid");
  EXPECT_EQ(host.Count("ActGridPop 16"), 1);

  host.control->HostCommId(1);
  host.OpenMenu(1);
  EXPECT_FALSE(host.platform.Menu().Item("mnuActGrid").visible);
}

TEST(Menu, OneEditorAtATimeAndExit) {
  TestHost host;
  host.Download();
  host.OpenMenu();
  host.platform.ChooseMenu("mnu_CSetup");
  Dialog& editor = host.platform.Window("frm_CameraSetup");
  editor.Find<TextBox>("m_CameraTitle(0)").Type("Typed");
  host.platform.RunUntilIdle();
  EXPECT_FALSE(host.platform.MenuIsUp());
  EXPECT_EQ(host.platform.Windows().size(), 1U);

  host.OpenMenu();  // unloads the menu and what it had opened
  EXPECT_TRUE(host.platform.Windows().empty());
  host.platform.ChooseMenu("mnu_Exit");
  host.platform.RunUntilIdle();
  EXPECT_FALSE(host.platform.MenuIsUp());
  EXPECT_TRUE(host.Modified().empty());
}

TEST(Menu, TheControlMayBeDestroyedFromAChoice) {
  TestHost host;
  host.Download();
  host.OpenMenu();
  host.act_in = "ActGridPop 16";
  host.act = [&host] { host.control.reset(); };
  host.platform.ChooseMenu("mnuActGrid");
  EXPECT_EQ(host.control, nullptr);
  host.platform.RunUntilIdle();
  EXPECT_FALSE(host.platform.MenuIsUp());
}

}  // namespace
}  // namespace quorvel
