#include <gtest/gtest.h>

#include <algorithm>

#include "tests/host/test_host.h"

namespace quorvel {
namespace {

class CameraSetup : public ::testing::Test {
 protected:
  Dialog& Open(Byte model_code, Byte cameras = 16, Byte variant = '4') {
    host_.Identify(cameras, model_code, variant);
    return OpenAgain();
  }
  Dialog& OpenAgain() {
    host_.Download();
    return host_.OpenCameraSetup();
  }
  Dialog& Editor() { return host_.platform.Window("frm_CameraSetup"); }
  template <class Control>
  Control& It(const std::string& name) {
    return Editor().Find<Control>(name);
  }
  void Ok() { EXPECT_EQ(It<Button>("cmd_OK").Click(), Answer::kDone); }
  bool Shown(const std::string& name) { return Editor().FindWidget(name)->Showing(); }
  void Tab(int page) { It<TabStrip>("SSTab1").Choose(page); }
  /// Encodes and sends the modified blocks.
  void Upload() {
    host_.platform.at_modal = [](Dialog& dialog) {
      if (dialog.Find<Button>("cmdClearBlk").Visible()) {
        return dialog.Find<Button>("cmdCancel").Click() == Answer::kDone;
      }
      if (!dialog.Find<Button>("cmdOK").Enabled()) return false;
      dialog.Find<OptionButton>("optBlk(1)").Click();
      return dialog.Find<Button>("cmdOK").Click() == Answer::kDone;
    };
    host_.control->Custom(11, 0, 0);
    host_.platform.at_modal = nullptr;
  }

  TestHost host_;
};

TEST_F(CameraSetup, EditsReachTheDeviceAndNothingElseDoes) {
  Open(6);
  const BlockImage before = host_.device;
  EXPECT_EQ(It<TextBox>("m_CameraTitle(0)").Text(), "Camera 01");
  EXPECT_EQ(It<TextBox>("m_CameraTitle(0)").Type("Lobby north door"), Answer::kDone);
  EXPECT_EQ(It<TextBox>("m_CameraTitle(0)").Text(), "Lobby north d");
  It<CheckBox>("m_CameraCovert(9)").Click();
  It<CheckBox>("m_CameraDisable(2)").Click();
  Tab(1);
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Press(3, 1), Answer::kDone);
  EXPECT_EQ(It<ListBox>("lstSnlGain").CurrentText(), "100");
  It<ListBox>("lstSnlGain").Choose(25);
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Cell(3, 1), "75");
  Tab(2);
  It<Grid>("MSFG_TextPos").Press(5, 1);
  It<ListBox>("lstTextpos").Choose(1);
  It<Grid>("MSFG_TextPos").Press(5, 1);
  It<Grid>("MSFG_TextPos").Release(8, 5);
  Ok();
  EXPECT_EQ(host_.Modified(), (std::vector<int>{1, 33, 47, 149, 49}));
  Upload();
  EXPECT_EQ(host_.sent, (std::vector<int>{1, 33, 47, 149, 49, 255}));

  const struct {
    int block, at;
    Byte was, is;
  } changes[] = {{1, 0, 'C', 'L'},   {1, 1, 'a', 'o'}, {1, 2, 'm', 'b'},  {1, 3, 'e', 'b'},
                 {1, 4, 'r', 'y'},   {1, 5, 'a', ' '}, {1, 6, ' ', 'n'},  {1, 7, '0', 'o'},
                 {1, 8, '1', 'r'},   {1, 9, ' ', 't'}, {1, 10, ' ', 'h'}, {1, 12, 0, 'd'},
                 {33, 12, 255, 251}, {47, 2, 50, 25},  {49, 9, 0, 2},     {149, 9, 0, 0x55}};
  BlockImage expected = before;
  for (const auto& it : changes) {
    auto& byte = expected.Block(it.block)[static_cast<std::size_t>(it.at)];
    EXPECT_EQ(byte, it.was) << it.block << " " << it.at;
    byte = it.is;
  }
  EXPECT_TRUE(
      std::equal(expected.Bytes().begin(), expected.Bytes().end(), host_.device.Bytes().begin()));
}

TEST_F(CameraSetup, OpenAndOkMarksNothingOnAnyModel) {
  for (const int resource : {104, 301, 401}) {
    host_.device = LoadDefaultImage(resource);
    const int first = resource == 104 ? 0 : resource == 301 ? 2 : 6;
    const int last = resource == 104 ? 1 : resource == 301 ? 5 : 20;
    for (int code = first; code <= last; ++code) {
      for (const char variant : {'4', '0', '1', '2', 'A', 'C'}) {
        Open(static_cast<Byte>(code), code % 2 == 0 ? 16 : 9, static_cast<Byte>(variant));
        Ok();
        EXPECT_EQ(host_.Modified(), std::vector<int>{}) << code << " " << variant;
      }
    }
  }
}

TEST_F(CameraSetup, TitlesMarkOnlyWhatWasTypedAnew) {
  host_.device.Block(2)[0] = 0xC4;  // a letter of the code page
  Open(6);
  EXPECT_EQ(It<TextBox>("m_CameraTitle(1)").Text(),
            "\xC3\x84"
            "amera 02");
  It<TextBox>("m_CameraTitle(0)").Type("Camera 01");
  It<TextBox>("m_CameraTitle(1)").Type("X");
  It<TextBox>("m_CameraTitle(1)")
      .Type(
          "\xC3\x84"
          "amera 02");
  It<TextBox>("m_CameraTitle(3)").Type("\xE2\x82\xAC \xE4\xB8\xAD");
  EXPECT_EQ(It<TextBox>("m_CameraTitle(3)").Text(), "\xE2\x82\xAC ?");
  Ok();
  EXPECT_EQ(host_.Modified(), std::vector<int>{4});
  Upload();
  EXPECT_EQ(host_.device.Block(4)[0], 0x80);
  EXPECT_EQ(host_.device.Block(4)[2], '?');
}

TEST_F(CameraSetup, CancelAndCloseWriteNothing) {
  for (const int way : {0, 1}) {
    Open(6);
    It<TextBox>("m_CameraTitle(0)").Type("Typed");
    if (way == 0) It<Button>("cmd_Cancel").Click();
    if (way == 1) Editor().CloseWindow();
    EXPECT_TRUE(host_.platform.Windows().empty());
    EXPECT_TRUE(host_.Modified().empty());
    host_.platform.RunUntilIdle();
    EXPECT_TRUE(host_.platform.MenuIsUp());
  }
}

struct VisibilityCase {
  const char* what;
  Byte code;
  Byte cameras;
  Byte variant;
  std::vector<std::string> hidden;
  std::vector<std::string> disabled;
};

TEST_F(CameraSetup, ShowsWhatTheModelHas) {
  const VisibilityCase cases[] = {
      {"multiplexer",
       0,
       16,
       '4',
       {"frmSVHSMonB", "frmPubMonitor"},
       {"m_TitleDisplay(2)", "m_TitleDisplay(4)"}},
      {"basic multiplexer",
       0,
       4,
       'A',
       {"Frame1", "Frame4", "Frame5", "frmSVHSMonB", "frmPubMonitor", "m_CameraTitle(4)",
        "lblCam(15)"},
       {"m_TitleDisplay(2)"}},
      {"duplex",
       2,
       10,
       '4',
       {"Frame5", "frmSVHSMonB", "frmPubMonitor", "m_CameraCovert(10)"},
       {"m_TitleDisplay(2)"}},
      {"lite duplex",
       4,
       16,
       '4',
       {"Frame5", "frmSVHSMonB", "frmPubMonitor"},
       {"optPwrDis(0)", "optPwrDis(1)"}},
      {"triplex",
       6,
       16,
       '1',
       {"Frame5", "frmPubMonitor"},
       {"m_CameraColor(0)", "m_TitleDisplay(2)"}},
      {"matrix", 14, 16, '1', {"Frame5"}, {"m_CameraColor(15)"}},
      {"4L",
       16,
       16,
       '4',
       {"Frame3", "Frame5", "frmSVHSMonB", "frmPubMonitor"},
       {"optPwrDis(1)", "m_CameraColor(0)"}},
  };
  for (const VisibilityCase& it : cases) {
    SCOPED_TRACE(it.what);
    Dialog& editor = Open(it.code, it.cameras, it.variant);
    for (const char* name : {"Frame1", "Frame3", "Frame4", "Frame5", "frmSVHSMonB", "frmPubMonitor",
                             "m_CameraTitle(3)", "optPwrDis(0)"}) {
      const bool hidden = std::find(it.hidden.begin(), it.hidden.end(), name) != it.hidden.end();
      EXPECT_EQ(editor.FindWidget(name)->Visible(), !hidden) << name;
    }
    for (const auto& name : it.hidden) EXPECT_FALSE(editor.FindWidget(name)->Visible()) << name;
    for (const auto& name : it.disabled) EXPECT_FALSE(editor.FindWidget(name)->Enabled()) << name;
    EXPECT_EQ(It<Grid>("MSFG_TextPos").Rows(), it.cameras + 1);
    It<Button>("cmd_Cancel").Click();
  }
}

TEST_F(CameraSetup, GainByFamily) {
  host_.device.Block(47)[0] = 0;
  Open(6);
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Cell(1, 1), "50");
  EXPECT_EQ(It<ListBox>("lstSnlGain").Count(), 101);
  host_.device.Block(47)[0] = 200;  // beyond the list: shown, in no list item, kept
  OpenAgain();
  Tab(1);
  It<Grid>("MSFG_SnlGain").Press(1, 1);
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Cell(1, 1), "250");
  EXPECT_EQ(It<ListBox>("lstSnlGain").Current(), ListBox::kNone);
  It<Grid>("MSFG_SnlGain").Release(1, 4);
  Ok();
  EXPECT_TRUE(host_.Modified().empty());

  host_.device = LoadDefaultImage(301);
  host_.device.Block(47)[0] = 0x90;
  Open(2);
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Cell(1, 1), "1");
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Cell(2, 1), "10");
  EXPECT_EQ(It<ListBox>("lstSnlGain").Count(), 10);
}

TEST_F(CameraSetup, TextPositionsOutsideTheTable) {
  host_.device.Block(149)[8] = 0x0E;  // camera 1: 2, camera 2: 3
  Open(6);
  EXPECT_EQ(It<Grid>("MSFG_TextPos").Cell(1, 1), "Bottom");
  EXPECT_EQ(It<Grid>("MSFG_TextPos").Cell(2, 1), "");
  Ok();
  EXPECT_EQ(host_.Modified(), std::vector<int>{149});
  Upload();
  EXPECT_EQ(host_.device.Block(149)[8], 0x05);
}

TEST_F(CameraSetup, DisplaySettingsOfAMultiplexerAndOfAMatrix) {
  host_.device = LoadDefaultImage(104);
  Open(0);
  Tab(2);
  It<OptionButton>("optFldFrame(1)").Click();
  It<OptionButton>("optPwrDis(1)").Click();
  It<CheckBox>("m_TitleDisplay(1)").Click();
  Ok();
  EXPECT_EQ(host_.Modified(), (std::vector<int>{59, 60}));

  host_.device = LoadDefaultImage(401);
  Open(14, 16, '1');
  Tab(2);
  EXPECT_EQ(It<CheckBox>("chkPubMon(4)").Caption(), "Monitor E");
  It<CheckBox>("chkPubMon(4)").Click();
  It<OptionButton>("optMonBSvhs(1)").Click();
  It<CheckBox>("m_TitleDisplay(4)").Click();
  Ok();
  EXPECT_EQ(host_.Modified(), (std::vector<int>{59, 45}));
}

TEST_F(CameraSetup, RefusesWhatAPersonCannotReach) {
  Open(6, 4);
  EXPECT_EQ(It<TextBox>("m_CameraTitle(4)").Type("X"), Answer::kHidden);
  EXPECT_EQ(It<CheckBox>("m_CameraColor(0)").Click(), Answer::kDisabled);
  EXPECT_EQ(It<ListBox>("lstSnlGain").Choose(1), Answer::kHidden);
  Tab(1);
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Press(5, 1), Answer::kNoSuchPlace);
  EXPECT_EQ(It<Grid>("MSFG_SnlGain").Press(0, 1), Answer::kNoSuchPlace);
  EXPECT_EQ(It<ListBox>("lstSnlGain").Choose(101), Answer::kNoSuchPlace);
  EXPECT_EQ(It<TabStrip>("SSTab1").Choose(3), Answer::kNoSuchPlace);
  It<Grid>("MSFG_SnlGain").Press(2, 0);  // the number column has no list
  It<ListBox>("lstSnlGain").Choose(1);
  Ok();
  EXPECT_TRUE(host_.Modified().empty());
}

TEST_F(CameraSetup, AnEditorOfAnEarlierImageWritesNothing) {
  Open(6);
  It<TextBox>("m_CameraTitle(0)").Type("Old device");
  host_.Identify(4, 6);
  host_.Download();
  EXPECT_EQ(It<Button>("cmd_OK").Click(), Answer::kDone);
  EXPECT_EQ(host_.platform.TakeMessages().at(0).text,
            "The current data does not match the data of the remote device");
  EXPECT_EQ(It<TextBox>("m_CameraTitle(0)").Text(), "Old device");
  EXPECT_TRUE(host_.Modified().empty());
}

}  // namespace
}  // namespace quorvel
