#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"
#include "ui/setup/alarm/alarm_features.h"

namespace quorvel {

/// External Alarm Action: the output that each remote input switches.
class ExternalAlarmPage : public EditorPage {
 public:
  ExternalAlarmPage(Editor& editor, const AlarmFeatures& features);
  [[nodiscard]] Layout Contents() { return Row(MSFG_AlExt, Labelled(Label6, lst_AlExternal)); }

 private:
  Grid MSFG_AlExt{*this, "MSFG_AlExt"};
  Label Label6{*this, "Label6", Text(txt::kOutput)};
  ListBox lst_AlExternal{*this, "lst_AlExternal"};
  LineGrid inputs_{*this, MSFG_AlExt, Each(Id().MaxCam), Text(txt::kRemoteInput)};
};

/// Link to a Macro: the macro that each alarm starts.
class MacroLinkPage : public EditorPage {
 public:
  MacroLinkPage(Editor& editor, const AlarmFeatures& features);
  [[nodiscard]] Layout Contents() { return Row(MSFG_AlMacro, Labelled(Label7, lst_AlMacro)); }

 private:
  Grid MSFG_AlMacro{*this, "MSFG_AlMacro"};
  Label Label7{*this, "Label7", Text(txt::kMacro)};
  ListBox lst_AlMacro{*this, "lst_AlMacro"};
  LineGrid alarms_{*this, MSFG_AlMacro, Each(Id().MaxCam), Objects().objstAlarm};
};

/// Videoloss Action: what the loss of each camera's picture switches.
class VideoLossPage : public EditorPage {
 public:
  VideoLossPage(Editor& editor, const AlarmFeatures& features);
  [[nodiscard]] Layout Contents();

 private:
  Grid MSFG_VidLoss{*this, "MSFG_VidLoss"};
  Label Label8{*this, "Label8", Text(txt::kRelay) + " 1"};
  ListBox lst_AlRelay1{*this, "lst_AlRelay1"};
  Label Label9{*this, "Label9", Text(txt::kRelay) + " 2"};
  ListBox lst_AlRelay2{*this, "lst_AlRelay2"};
  Label Label10{*this, "Label10", Text(txt::kBuzzer)};
  ListBox lst_AlBuz{*this, "lst_AlBuz"};
  LineGrid cameras_{*this, MSFG_VidLoss, Each(Id().MaxCam), Objects().objstCam};
};

}  // namespace quorvel
