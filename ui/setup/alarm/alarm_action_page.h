#pragma once

#include "ui/editing/editor_page.h"
#include "ui/editing/grid_editing.h"
#include "ui/setup/alarm/alarm_face.h"

namespace quorvel {

/// Alarm Action: what each alarm freezes, shows, calls and switches. The columns depend on the
/// model; those of presets, intrusion and auxiliary monitors are not on all.
class AlarmActionPage : public EditorPage {
 public:
  AlarmActionPage(Editor& editor, const AlarmFace& face);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();
  /// Goes to the first cell, as when the page comes to the front.
  void GoToStart();

 private:
  void BuildColumns();
  void FillLists();
  void FillAlarm(int row, const AlmAction& action);
  void WriteAlarm(int row, AlmAction& action);

  const AlarmFace& face_;

  Grid MSFG_AlAction;
  Label Label3;  ///< of lst_ALFrz
  ListBox lst_ALFrz;
  Label Label4;  ///< of cbAlCamera
  ComboBox cbAlCamera;
  Label lbPreset;
  ComboBox cbPreset;
  Label Label5;  ///< of lst_AlRelay
  ListBox lst_AlRelay;
  Label lbAndOr;
  ListBox lstAndOr;
  Label lbAuxMon;
  ListBox lstAuxMon;

  int RelayColumn = 0;
  int GateColumn = 0;  ///< where there is one
  int AuxColumn = 0;   ///< where there is one
  GridEditing editing_{MSFG_AlAction};
};

}  // namespace quorvel
