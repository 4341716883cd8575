#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"
#include "ui/setup/alarm/alarm_features.h"

namespace quorvel {

/// Alarm Action: what each alarm freezes, shows, calls and switches. The columns depend on the
/// model; those of presets, intrusion and auxiliary monitors are not on all.
class AlarmActionPage : public EditorPage {
 public:
  AlarmActionPage(Editor& editor, const AlarmFeatures& features);
  [[nodiscard]] Layout Contents();

 private:
  Grid MSFG_AlAction{*this, "MSFG_AlAction"};
  Label Label3{*this, "Label3", Text(txt::kFreeze)};
  ListBox lst_ALFrz{*this, "lst_ALFrz"};
  Label Label4{*this, "Label4", Text(txt::kCameras)};
  ComboBox cbAlCamera{*this, "cbAlCamera"};
  Label lbPreset{*this, "lbPreset", Text(txt::kPreset)};
  ComboBox cbPreset{*this, "cbPreset"};
  Label Label5{*this, "Label5", Text(txt::kRelay)};
  ListBox lst_AlRelay{*this, "lst_AlRelay"};
  Label lbAndOr{*this, "lbAndOr", Text(txt::kIntrusionAndOr)};
  ListBox lstAndOr{*this, "lstAndOr"};
  Label lbAuxMon{*this, "lbAuxMon", Text(txt::kAuxMonitor)};
  ListBox lstAuxMon{*this, "lstAuxMon"};
  LineGrid actions_{*this, MSFG_AlAction, Each(Id().MaxCam), Text(txt::kInput)};
};

}  // namespace quorvel
