#pragma once

#include <deque>

#include "ui/editing/device_text.h"
#include "ui/editing/editor.h"
#include "ui/editing/grid_editing.h"

namespace quorvel {

/// Camera Setup: titles, covert, colour, disabled, gain and text position of every camera, and the
/// display settings of the device.
class frm_CameraSetup : public Editor {
 public:
  explicit frm_CameraSetup(Context& context);

 private:
  void WriteBack(MuxData& record) override;

  void ArrangeControls();
  void ShowWhatTheModelHas();
  void NameForScreenReaders();
  void BuildGrids();
  /// These ask for no texts: a text source may bring another image, which is not shown then.
  void FillCameras();
  void FillDisplaySettings();
  void WriteCamera(int c, Cameras& camera);
  void TabChanged();

  static constexpr int kMonitors = 5;

  TabStrip SSTab1{*this, "SSTab1"};

  // Tab 0, a line for every camera.
  Frame Frame2{*this, "Frame2"};  ///< titles
  ControlArray<Label> lblCam{*this, "lblCam", kMostCameras};
  ControlArray<TextBox> m_CameraTitle{*this, "m_CameraTitle", kMostCameras};
  Frame Frame3{*this, "Frame3"};  ///< covert
  ControlArray<CheckBox> m_CameraCovert{*this, "m_CameraCovert", kMostCameras};
  Frame Frame4{*this, "Frame4"};  ///< colour
  ControlArray<CheckBox> m_CameraColor{*this, "m_CameraColor", kMostCameras};
  Frame Frame1{*this, "Frame1"};  ///< disabled
  ControlArray<CheckBox> m_CameraDisable{*this, "m_CameraDisable", kMostCameras};

  // Tab 1.
  Grid MSFG_SnlGain{*this, "MSFG_SnlGain"};
  ListBox lstSnlGain{*this, "lstSnlGain"};

  // Tab 2.
  Grid MSFG_TextPos{*this, "MSFG_TextPos"};
  ListBox lstTextpos{*this, "lstTextpos"};
  Frame Frame6{*this, "Frame6"};  ///< titles display
  ControlArray<CheckBox> m_TitleDisplay{*this, "m_TitleDisplay", kMonitors};
  Frame Frame5{*this, "Frame5"};  ///< field or frame
  ControlArray<OptionButton> optFldFrame{*this, "optFldFrame", 2};
  Frame Frame7{*this, "Frame7"};  ///< power-up disable
  ControlArray<OptionButton> optPwrDis{*this, "optPwrDis", 2};
  Frame frmSVHSMonB{*this, "frmSVHSMonB"};
  ControlArray<OptionButton> optMonBSvhs{*this, "optMonBSvhs", 2};
  Frame frmPubMonitor{*this, "frmPubMonitor"};
  ControlArray<CheckBox> chkPubMon{*this, "chkPubMon", kMonitors};

  Button cmd_OK{*this, "cmd_OK"};
  Button cmd_Cancel{*this, "cmd_Cancel"};

  std::deque<DeviceText> titles_;
  GridEditing gain_editing_{MSFG_SnlGain};
  GridEditing text_position_editing_{MSFG_TextPos};
};

}  // namespace quorvel
