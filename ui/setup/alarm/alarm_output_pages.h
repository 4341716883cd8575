#pragma once

#include "ui/editing/editor_page.h"
#include "ui/editing/grid_editing.h"

namespace quorvel {

/// External Alarm Action: the output that each remote input switches.
class ExternalAlarmPage : public EditorPage {
 public:
  explicit ExternalAlarmPage(Editor& editor);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();
  void GoToStart();

 private:
  Grid MSFG_AlExt;
  Label Label6;  ///< of lst_AlExternal
  ListBox lst_AlExternal;
  GridEditing editing_{MSFG_AlExt};
};

/// Link to a Macro: the macro that each alarm starts.
class MacroLinkPage : public EditorPage {
 public:
  explicit MacroLinkPage(Editor& editor);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();
  void GoToStart();

 private:
  Grid MSFG_AlMacro;
  Label Label7;  ///< of lst_AlMacro
  ListBox lst_AlMacro;
  GridEditing editing_{MSFG_AlMacro};
};

}  // namespace quorvel
