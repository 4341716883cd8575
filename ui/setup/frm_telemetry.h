#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// Telemetry: which cameras are controlled and over what line, the protocol, and presets.
class frm_Telemetry : public Editor {
 public:
  explicit frm_Telemetry(Context& context);

 private:
  Grid MSFG_Tel{*this, "MSFG_Tel"};
  Label Label1{*this, "Label1", Text(txt::kEnableOrDisable)};
  ListBox List1{*this, "List1"};
  Label Label2{*this, "Label2", Text(txt::kAcDcSelect)};
  ListBox List2{*this, "List2"};
  Frame Frame1{*this, "Frame1", Text(txt::kTelemetry)};
  ControlArray<OptionButton> optTelStd{*this, "optTelStd", 2};
  Frame Frame2{*this, "Frame2", Text(txt::kPresetMode)};
  ControlArray<OptionButton> optPresetMode{*this, "optPresetMode", 2};
  Frame Frame3{*this, "Frame3", Text(txt::kPresetPgm)};
  ControlArray<OptionButton> optPresetPGM{*this, "optPresetPGM", 2};
  Button cmdOK{*this, "cmdOK"};
  Button cmdCancel{*this, "cmdCancel"};
  LineGrid cameras_{*this, MSFG_Tel, Each(Id().MaxCam), Objects().objstCam};
};

}  // namespace quorvel
