#include <gtest/gtest.h>

#include "tests/host/test_host.h"
#include "tests/host/text_source.h"

namespace quorvel {
namespace {

TEST(Control, UnknownCommandsAndEarlyCallsDoNothing) {
  TestHost host;
  for (const int command : {-1, 0, 9, 13, 14, 19, 191}) {
    EXPECT_EQ(host.control->Custom(static_cast<std::int16_t>(command), 1, 1), 0);
  }
  EXPECT_EQ(host.control->CustomWithString(190, 0, 0, "Some.Class"), 0);
  EXPECT_EQ(host.control->CustomWithString(191, 0, 0, "No.Such.Class"), 0);
  EXPECT_EQ(host.control->TriggerUploadTimer(), 0);
  host.platform.RunUntilIdle();
  EXPECT_TRUE(host.log.empty());
  EXPECT_TRUE(host.sent.empty());
  EXPECT_TRUE(host.platform.Windows().empty());
  EXPECT_TRUE(host.platform.TakeMessages().empty());
}

TEST(Control, PropertiesAndSurface) {
  TestHost host;
  EXPECT_EQ(host.control->Surface().Label1(), "Quorvel");
  EXPECT_EQ(host.control->Surface().Extent(), (Size{49, 15}));
  MemoryPropertyBag bag;
  host.control->Enabled(false);
  host.control->HostCommId(9);
  host.control->Font({"Mono", 12.0, true, false});
  EXPECT_TRUE(host.control->PropertiesChanged());
  host.control->WriteProperties(bag);
  EXPECT_FALSE(host.control->PropertiesChanged());
  EXPECT_EQ(host.control->Surface().Click(), Answer::kDisabled);

  host.NewControl();
  EXPECT_EQ(host.control->HostCommId(), 0);
  host.control->ReadProperties(bag);
  EXPECT_FALSE(host.control->Enabled());
  EXPECT_EQ(host.control->HostCommId(), 9);
  EXPECT_EQ(host.control->Font(), (Font{"Mono", 12.0, true, false}));

  MemoryPropertyBag odd;
  odd.Write("HostCommId", true);
  host.control->ReadProperties(odd);
  EXPECT_TRUE(host.control->Enabled());
  EXPECT_EQ(host.control->HostCommId(), 0);
  EXPECT_EQ(host.control->Font().family, "Sans");
  host.control->Surface().Click();
  host.control->Surface().DoubleClick();
  EXPECT_EQ(host.log, (std::vector<std::string>{"Click", "DblClick"}));

  EXPECT_NE(CreateControl("Quorvel.MainMenuCtrl", host.platform, host), nullptr);
  EXPECT_EQ(CreateControl("Quorvel.Other", host.platform, host), nullptr);
}

TEST(Control, EachPropertyMarksTheChangeAndEachVerbDrawsTheSurface) {
  struct View : WidgetView {
    void Refresh(Aspect /*what*/) override { ++drawn; }
    int drawn = 0;
  } view;
  TestHost host;
  MainMenuCtrl& control = *host.control;
  control.Surface().AttachView(&view);
  MemoryPropertyBag bag;
  const Font mono{"Mono", 24.0, false, false};
  const struct {
    std::function<void()> verb;
    bool changes;
    bool draws;
  } cases[] = {{[&] { control.Enabled(true); }, true, true},
               {[&] { control.Font(mono); }, true, true},
               {[&] { control.HostCommId(0); }, true, false},
               {[&] { control.InitProperties(); }, true, true},
               {[&] { control.Refresh(); }, false, true},
               {[&] { control.WriteProperties(bag); }, false, false},
               {[&] { control.ReadProperties(bag); }, false, true}};
  int number = 0;
  for (const auto& it : cases) {
    SCOPED_TRACE(number++);
    control.WriteProperties(bag);
    view.drawn = 0;
    it.verb();
    EXPECT_EQ(control.PropertiesChanged(), it.changes);
    EXPECT_EQ(view.drawn > 0, it.draws);
  }
  bag.Write("Font", Font{"Sans", 18.0, false, false});
  control.ReadProperties(bag);
  EXPECT_EQ(control.Surface().Extent(),
            host.platform.MeasureText({"Sans", 18.0, false, false}, "Quorvel"));
  EXPECT_FALSE(control.PropertiesChanged());
  control.Surface().AttachView(nullptr);
}

TEST(Control, GridsOfNoCameraAreNeitherGivenNorTaken) {
  TestHost host;
  host.Download();
  host.control->Custom(17, 16, 0);
  host.control->UpdateActGrid(std::vector<Byte>(33, 16));
  host.control->UpdateActGrid(std::vector<Byte>(32, 2));
  host.control->UpdateActGrid({});
  EXPECT_TRUE(host.grid.empty());
  EXPECT_TRUE(host.Modified().empty());
}

TEST(Control, MayBeDestroyedInAnyEvent) {
  for (const std::string event :
       {"RequestBlk 1", "RequestBlk 9", "UploadSucceeded", "ULSucceededWithStr TX16 6 16",
        "DownLoadData 1", "DownLoadData 255", "ActGridPop 16", "ActGridData", "Click",
        "RequestComboBlocks", "SendComboBlocks 3213", "RequestBlk 183", "RequestBlk 185"}) {
    for (const bool sync : {false, true}) {
      SCOPED_TRACE(event);
      TestHost host;
      host.sync = sync;
      if (event.find("Combo") != std::string::npos || event.starts_with("RequestBlk 18")) {
        host.control->FillComboInfo(std::vector<Byte>{0, 4, 0, 0, 200, 5, 6});
        host.combo = {0, 13, 0x0C, 0x80, 0, 0, 0, 4, 0, 0, 200, 5, 6};
        host.combo.insert(host.combo.end(), host.device.Bytes().begin(), host.device.Bytes().end());
      }
      host.act_in = event;
      host.act = [&host] {
        host.control.reset();
        throw std::runtime_error("and the host fails");
      };
      if (event.starts_with("UL")) {
        host.control->HostCommId(1);
        host.GiveWholeImage();
      }
      const std::function<void()> steps[] = {[&host] { host.Download(); },
                                             [&host] {
                                               host.OpenMenu();
                                               host.platform.ChooseMenu("mnuActGrid");
                                             },
                                             [&host] { host.control->Custom(17, 0, 0); },
                                             [&host] { host.control->Surface().Click(); },
                                             [&host] { host.CommandWithOk(11); },
                                             [&host] { host.control->Custom(16, 0, 0); }};
      for (const auto& step : steps) {
        if (host.control) step();
        host.platform.RunUntilIdle();
      }
      EXPECT_EQ(host.control, nullptr);
      EXPECT_TRUE(host.platform.Windows().empty());
      EXPECT_TRUE(host.platform.TakeMessages().empty());
    }
  }
}

TEST(Control, AHostThatFailsInAnEventIsToldAndTheSequenceCanBeRepeated) {
  TestHost host;
  host.act_in = "UploadSucceeded";
  host.act = [] { throw std::runtime_error("the link is down"); };
  host.Download();
  EXPECT_EQ(host.OnlyMessage(), "Error found in FillDataBlk\rThe link is down.");
  host.act = [] { throw 7; };
  host.Download();
  EXPECT_EQ(host.OnlyMessage(), "Error found in FillDataBlk\rThe cause is not known.");
  host.Download();
  EXPECT_EQ(host.Count("UploadSucceeded"), 3);
}

/// For the text asked for as the `at`th; 0 is the destruction.
TEST(Control, ATextSourceMayGiveCommandsOrDestroyTheControl) {
  for (const std::int16_t meddling : {0, 10, 11, 12, 16}) {
    for (const std::int16_t command : {10, 11, 12, 14, 15, 16}) {
      for (const int at : {1, 2, 3, 5, 8, 13, 21, 34}) {
        TestHost host;
        host.platform.files["x"].assign(host.device.Bytes().begin(), host.device.Bytes().end());
        host.Download();
        host.platform.AnswerNextFile("x");
        int asked = 0;
        RegisterTexts(host.platform.Classes(), "Source", [&](int) {
          if (host.control == nullptr || ++asked != at) return "X";
          if (meddling != 0) host.control->Custom(meddling, 0, 0);
          if (meddling == 0) host.control.reset();
          return "X";
        });
        host.control->CustomWithString(191, 0, 0, "Source");
        if (host.control) host.CommandWithOk(command);
        host.platform.RunUntilIdle();
        EXPECT_TRUE(host.platform.Windows().empty()) << meddling << " in " << command;
      }
    }
  }
}

/// Texts in the course of which another device's image arrives.
TEST(Control, AnEditorOpensForOneDeviceWhateverATextSourceDoes) {
  for (const int asked_for : {60, 93, 106, 56}) {
    for (const auto& [before, after] : {std::pair{16, 4}, std::pair{4, 16}}) {
      TestHost host;
      bool meddles = false;
      RegisterTexts(host.platform.Classes(), "Texts", [&](int id) {
        if (meddles && id == asked_for) host.GiveWholeImage();
        return "X";
      });
      host.Identify(static_cast<Byte>(before), 6, '2');
      host.Download();
      host.control->HostCommId(1);
      host.control->CustomWithString(191, 0, 0, "Texts");
      host.OpenMenu();
      host.Identify(static_cast<Byte>(after), 6, '2');
      meddles = true;
      EXPECT_EQ(host.platform.ChooseMenu("mnu_Alarm"), Answer::kDone);
      meddles = false;
      EXPECT_TRUE(host.platform.TakeMessages().empty()) << asked_for;
      Dialog& dialog = host.platform.Window("frm_Alarm");
      EXPECT_EQ(dialog.Find<Grid>("MSFG_VidLoss").Rows(), before + 1);
      EXPECT_EQ(dialog.Find<Button>("cmd_OK").Click(), Answer::kDone);
      EXPECT_EQ(host.OnlyMessage(), "X") << "the data does not match";
      EXPECT_TRUE(host.Modified().empty());
    }
  }
}

TEST(Control, TheMenuComesUpAShortWhileAfterEachAction) {
  TestHost host;
  host.OpenMenu();
  EXPECT_EQ(host.platform.ChooseMenu("mnu_LockKB"), Answer::kDone);
  host.platform.Advance(2);
  EXPECT_FALSE(host.platform.MenuIsUp());
  host.platform.Advance(1);
  EXPECT_TRUE(host.platform.MenuIsUp());
}

TEST(Control, TwoControlsEditTwoDevices) {
  TestHost first;
  TestHost second(301);
  first.Download();
  second.Download();
  first.EditTitle(0, "First");
  EXPECT_EQ(first.Modified(), std::vector<int>{1});
  EXPECT_TRUE(second.Modified().empty());
  second.OpenMenu();
  EXPECT_FALSE(second.platform.Menu().Item("mnu_UnLock").enabled);
}

}  // namespace
}  // namespace quorvel
