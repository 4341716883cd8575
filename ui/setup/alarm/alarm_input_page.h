#pragma once

#include "ui/editing/editor_page.h"
#include "ui/editing/grid_editing.h"

namespace quorvel {

/// Alarm Input: how each input is wired and whether it is enabled.
class AlarmInputPage : public EditorPage {
 public:
  explicit AlarmInputPage(Editor& editor);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();
  /// Goes to the first cell, as when the page comes to the front.
  void GoToStart();

 private:
  Grid MSFG_AlInput;
  Label Label1;  ///< of lst_AlInput
  ListBox lst_AlInput;
  Label Label2;  ///< of lst_AlEnable
  ListBox lst_AlEnable;
  GridEditing editing_{MSFG_AlInput};
};

}  // namespace quorvel
