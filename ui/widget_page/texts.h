#pragma once

#include "quorvel/widgets.h"
#include "ui/editing/number_box.h"
#include "ui/editing/octet_boxes.h"

namespace quorvel {

/// Labels, buttons, ticks, options and text boxes in their states.
class TextKinds {
 public:
  explicit TextKinds(Dialog& dialog);
  [[nodiscard]] Layout Contents();
  void ShowHidden(bool shown);

 private:
  void FillTicks();
  void FillBoxes();

  Dialog& dialog_;
  Label lblMarks{dialog_, "lblMarks", "R&D <b>label</b>"};
  Label lblDisabled{dialog_, "lblDisabled", "Disabled label"};
  Button cmdMarks{dialog_, "cmdMarks", "Save & close"};
  Button cmdDisabled{dialog_, "cmdDisabled", "Disabled"};
  Button cmdHidden{dialog_, "cmdHidden", "Place kept"};
  Button cmdAfter{dialog_, "cmdAfter", "Stays here"};

  Frame frmTicks{dialog_, "frmTicks", "Ticks"};
  ControlArray<CheckBox> chkState{dialog_, "chkState", 5};
  Frame frmOptions{dialog_, "frmOptions", "Options"};
  ControlArray<OptionButton> optMode{dialog_, "optMode", 4};
  Frame frmNone{dialog_, "frmNone", "None selected"};
  ControlArray<OptionButton> optNone{dialog_, "optNone", 3};
  Frame frmOut{dialog_, "frmOut", "Selected out of reach"};
  ControlArray<OptionButton> optDisabled{dialog_, "optDisabled", 2};
  ControlArray<OptionButton> optHidden{dialog_, "optHidden", 2};

  Label lblTitle{dialog_, "lblTitle", "12 characters"};
  TextBox txtTitle{dialog_, "txtTitle"};
  Label lblBeyond{dialog_, "lblBeyond", "Beyond the limit"};
  TextBox txtBeyond{dialog_, "txtBeyond"};
  Label lblZero{dialog_, "lblZero", "With a zero byte"};
  TextBox txtZero{dialog_, "txtZero"};
  Label lblSelected{dialog_, "lblSelected", "Selected by focus"};
  TextBox txtSelected{dialog_, "txtSelected"};
  Label lblAny{dialog_, "lblAny", "Any length"};
  TextBox txtAny{dialog_, "txtAny"};
  Label lblNoText{dialog_, "lblNoText", "Disabled"};
  TextBox txtDisabled{dialog_, "txtDisabled"};
  Label lblPort{dialog_, "lblPort", "Port, taken when left"};
  TextBox txtPort{dialog_, "txtPort"};
  Label lblAddress{dialog_, "lblAddress", "Address"};
  ControlArray<TextBox> txtAddress{dialog_, "txtAddress", 4};
  ControlArray<Label> lblDot{dialog_, "lblDot", 3};

  PortBox port_{txtPort, 1, 65535, 1027};
  OctetBoxes address_{txtAddress};
};

}  // namespace quorvel
