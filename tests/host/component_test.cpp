#include <gtest/gtest.h>

#include "host/model_catalogue.h"
#include "tests/host/test_host.h"
#include "ui/context.h"

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
  const struct {
    std::function<void()> verb;
    bool changes;
    bool draws;
  } cases[] = {{[&] { control.Enabled(true); }, true, true},
               {[&] {
                  control.Font({"Mono", 24.0, false, false});
                },
                true, true},
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
        std::vector<Byte> image(host.device.Bytes().begin(), host.device.Bytes().end());
        image.push_back(0);
        host.control->FillDataBlk(image);
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

/// A source of texts that does something each time it is asked.
class MeddlingSource : public AutomationObject {
 public:
  explicit MeddlingSource(std::function<void()> act) : act_(std::move(act)) {}
  std::string Call(std::string_view, std::int32_t) override {
    act_();
    return "X";
  }

 private:
  std::function<void()> act_;
};

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
        const auto meddle = [&] {
          if (host.control == nullptr || ++asked != at) return;
          if (meddling != 0) host.control->Custom(meddling, 0, 0);
          if (meddling == 0) host.control.reset();
        };
        host.platform.Classes().Register(
            "Source", [meddle] { return std::make_shared<MeddlingSource>(meddle); });
        host.control->CustomWithString(191, 0, 0, "Source");
        if (host.control) host.CommandWithOk(command);
        host.platform.RunUntilIdle();
        EXPECT_TRUE(host.platform.Windows().empty()) << meddling << " in " << command;
      }
    }
  }
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

class Identities : public ::testing::Test {
 protected:
  void Connect(Byte channels, Byte code, std::string_view name) {
    std::vector<Byte> data{0, channels, code};
    data.insert(data.end(), name.begin(), name.end());
    SaveConnectedIdentity(context_.host, data);
  }
  bool Loads(Byte channels, Byte code, std::string_view name) {
    context_.device.BlkImage.ResizeBlocks(185);
    WriteIdentityBlock(context_.device.BlkImage, channels, code, name);
    return CheckLoadedIdentity(context_);
  }
  HeadlessPlatform platform_;
  Context context_{platform_};
};

TEST_F(Identities, AreStored) {
  Connect(16, 0x87, std::string_view("DVR\0\0", 5));
  EXPECT_EQ(context_.host.connected.ConnChannels, 16);
  EXPECT_EQ(context_.host.connected.ConnModelCode, 7);
  EXPECT_EQ(context_.host.connected.ConnModelName, "DVR");
  EXPECT_EQ(ModelDescription(context_, 0), " (16 ch, Triplex PAL)");
  EXPECT_EQ(ModelDescription(context_, 2), " (0 ch, Mux model)");
  SaveConnectedIdentity(context_.host, std::vector<Byte>{0, 4, 2});
  EXPECT_EQ(context_.host.connected.ConnChannels, 16);
  Connect(4, 21, std::string_view("\0A", 2));
  EXPECT_EQ(context_.host.connected.ConnModelName, std::string("\0A", 2));
  EXPECT_EQ(ModelDescription(context_, 0), " (4 ch, )");
}

TEST_F(Identities, OfARestoredImageMustFit) {
  context_.device.LoadedFromFile = false;
  EXPECT_TRUE(Loads(4, 0, "OTHER"));
  context_.device.LoadedFromFile = true;
  const struct {
    const char* connected_name;
    Byte connected_code;
    Byte channels, code;
    const char* name;
    bool fits;
  } cases[] = {{"TX16", 7, 16, 7, "TX16", true},
               {"TX16", 7, 16, 6, "TX16", true},
               {"TX16", 7, 16, 0x86, "TX16", true},
               {"TX16", 7, 16, 8, "TX16", false},
               {"TX16", 7, 4, 7, "TX16", false},
               {"TX16", 7, 16, 7, "tx16", false},
               {"MX", 1, 16, 0, "MX", false},
               {"MX", 20, 16, 21, "MX", false},
               {"Vaultline Adv  ", 12, 16, 13, "Vaultline Pro", true},
               {"Vaultline Pro", 12, 16, 12, "Vaultline Adv", true},
               {"  Vaultline Pro ", 6, 16, 6, "Vaultline Adv", true},
               {"Vaultline Adv", 12, 16, 12, "Vaultline", false}};
  for (const auto& it : cases) {
    Connect(16, it.connected_code, it.connected_name);
    EXPECT_EQ(Loads(it.channels, it.code, it.name), it.fits) << it.name << int{it.code};
  }
  platform_.TakeMessages();
  Connect(16, 7, "TX16");
  EXPECT_FALSE(Loads(16, 8, "TX16"));
  const Message message = platform_.TakeMessages().at(0);
  EXPECT_EQ(message.title, "Error Message");
  EXPECT_EQ(message.text,
            "The current data does not match the data of the remote device\r"
            "You are connected to model:  TX16 (16 ch, Triplex PAL)\r"
            "You are loading data from model:  TX16 (16 ch, Triplex NTSC, Lite/EZ)");
}

}  // namespace
}  // namespace quorvel
