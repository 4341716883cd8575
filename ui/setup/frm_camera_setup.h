#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// Camera Setup: titles, covert, colour, disabled, gain and text position of every camera, and the
/// display settings of the device.
class frm_CameraSetup : public Editor {
 public:
  explicit frm_CameraSetup(Context& context);

 private:
  void BindCameras();
  void BindDisplaySettings();
  void Arrange();
  void ShowWhatTheModelHas();

  static constexpr int kMonitors = 5;

  TabStrip SSTab1{*this, "SSTab1"};

  // Tab 0, a line for every camera.
  Frame Frame2{*this, "Frame2", Text(txt::kTitle)};
  ControlArray<Label> lblCam{*this, "lblCam", kMostCameras};
  ControlArray<TextBox> m_CameraTitle{*this, "m_CameraTitle", kMostCameras};
  Label lbTitleNote{*this, "lbTitleNote"};
  Frame Frame3{*this, "Frame3", Text(txt::kCovert)};
  ControlArray<CheckBox> m_CameraCovert{*this, "m_CameraCovert", kMostCameras};
  Frame Frame4{*this, "Frame4", Text(txt::kColor)};
  ControlArray<CheckBox> m_CameraColor{*this, "m_CameraColor", kMostCameras};
  Frame Frame1{*this, "Frame1", Text(txt::kDisableWord)};
  ControlArray<CheckBox> m_CameraDisable{*this, "m_CameraDisable", kMostCameras};

  // Tab 1.
  Grid MSFG_SnlGain{*this, "MSFG_SnlGain"};
  Label lbSnlGain{*this, "lbSnlGain", Text(txt::kSignalGain)};
  ListBox lstSnlGain{*this, "lstSnlGain"};

  // Tab 2.
  Grid MSFG_TextPos{*this, "MSFG_TextPos"};
  Label lbTextpos{*this, "lbTextpos", Text(txt::kTextPosition)};
  ListBox lstTextpos{*this, "lstTextpos"};
  Frame Frame6{*this, "Frame6", Text(txt::kTitlesDisplay)};
  ControlArray<CheckBox> m_TitleDisplay{*this, "m_TitleDisplay", kMonitors};
  Frame Frame5{*this, "Frame5", Text(txt::kFieldOrFrameSetup)};
  ControlArray<OptionButton> optFldFrame{*this, "optFldFrame", 2};
  Frame Frame7{*this, "Frame7", Text(txt::kPowerUpDisable)};
  ControlArray<OptionButton> optPwrDis{*this, "optPwrDis", 2};
  Frame frmSVHSMonB{*this, "frmSVHSMonB", Text(txt::kSvhsOnMonitorB)};
  ControlArray<OptionButton> optMonBSvhs{*this, "optMonBSvhs", 2};
  Frame frmPubMonitor{*this, "frmPubMonitor", Text(txt::kPublicDisplayMonitors)};
  ControlArray<CheckBox> chkPubMon{*this, "chkPubMon", kMonitors};

  Button cmd_OK{*this, "cmd_OK"};
  Button cmd_Cancel{*this, "cmd_Cancel"};

  FieldGroup& cameras_ = Each(Id().MaxCam);
  LineGrid gains_{*this, MSFG_SnlGain, cameras_, Objects().objstCam};
  LineGrid text_positions_{*this, MSFG_TextPos, cameras_, Objects().objstCam};
};

}  // namespace quorvel
