#pragma once

#include "quorvel/widgets.h"
#include "ui/editing/grid_editing.h"

namespace quorvel {

/// Grids in their forms, edited through the controls beside them as the editors' grids are.
class GridKinds {
 public:
  explicit GridKinds(Dialog& dialog);
  [[nodiscard]] Layout CameraPage();
  [[nodiscard]] Layout OtherPage();
  /// Adds a column to the grid whose columns come at run time, up to a limit.
  void AddColumn();

 private:
  void FillCameras();
  void FillMacros();
  void FillOthers();

  Dialog& dialog_;
  /// One header row, and a column for every kind of control that can be bound to one.
  Grid MSFG_Camera{dialog_, "MSFG_Camera"};
  Label lblAction{dialog_, "lblAction", "Action"};
  ListBox lstAction{dialog_, "lstAction"};
  Label lblRate{dialog_, "lblRate", "Rate"};
  ComboBox cboRate{dialog_, "cboRate"};
  Label lblGain{dialog_, "lblGain", "Gain"};
  Slider sldGain{dialog_, "sldGain"};
  Label lblGainValue{dialog_, "lblGainValue"};
  Label lblStart{dialog_, "lblStart", "Start"};
  TimePicker dtpStart{dialog_, "dtpStart"};
  Label lblDwell{dialog_, "lblDwell", "Hour, minute"};
  TimePicker dtpDwell{dialog_, "dtpDwell"};
  GridEditing camera_editing_{MSFG_Camera};

  /// Two header rows, merged, and columns that come at run time.
  Grid MSFG_Macro{dialog_, "MSFG_Macro"};
  Label lblMacro{dialog_, "lblMacro", "Macro"};
  ListBox lstMacro{dialog_, "lstMacro"};
  GridEditing macro_editing_{MSFG_Macro, GridEditing::Release::kSelects};

  /// One row can be selected; texts in the middle of wide columns.
  Grid MSFG_Day{dialog_, "MSFG_Day"};
  Grid MSFG_NoRows{dialog_, "MSFG_NoRows"};
  Grid MSFG_Disabled{dialog_, "MSFG_Disabled"};
};

}  // namespace quorvel
