#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// Sequencing: how long the monitors dwell on each picture and, on matrix models, the groups in
/// which cameras are switched.
class frm_Sequencing : public Editor {
 public:
  explicit frm_Sequencing(Context& context);

 private:
  void BindDwells();
  void BindGroups();
  void Arrange();

  Label Label1{*this, "Label1", Text(txt::kMultiscreenDwell)};
  ListBox lMultiDwell{*this, "lMultiDwell"};
  Label Label2{*this, "Label2", Text(txt::kTimeInSeconds)};
  Label Label3{*this, "Label3", Text(txt::kFullscreenDwell)};
  ListBox lFullDwell{*this, "lFullDwell"};
  Label Label4{*this, "Label4", Text(txt::kTimeInSeconds)};
  Label Label5{*this, "Label5", Text(txt::kPlayFullDwell)};
  ListBox lPlayDwell{*this, "lPlayDwell"};
  Label Label6{*this, "Label6", Text(txt::kTimeInSeconds)};
  Frame Frame1{*this, "Frame1"};  ///< of the groups
  Frame Frame2{*this, "Frame2", Text(txt::kGroupSwitchingEnable)};
  ControlArray<OptionButton> optGrpEnable{*this, "optGrpEnable", 2};
  Frame Frame3{*this, "Frame3", Text(txt::kGroupSwitchingSetup)};
  Grid msfgGrSetup{*this, "msfgGrSetup"};
  Label lbGrpSetup{*this, "lbGrpSetup", Text(txt::kGroup)};
  ListBox lstGrpSetup{*this, "lstGrpSetup"};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};

  FieldGroup& settings_ = Once();
  LineGrid cameras_{*this, msfgGrSetup, Each(Id().IsTriplexMatrix() ? Id().MaxCam : 0),
                    Text(txt::kIndex), GridEditing::Release::kSelects};
};

}  // namespace quorvel
