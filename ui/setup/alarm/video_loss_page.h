#pragma once

#include "ui/editing/editor_page.h"
#include "ui/editing/grid_editing.h"
#include "ui/setup/alarm/alarm_face.h"

namespace quorvel {

/// Videoloss Action: the relays and the buzzer that the loss of each camera switches.
class VideoLossPage : public EditorPage {
 public:
  VideoLossPage(Editor& editor, const AlarmFace& face);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();
  void GoToStart();

 private:
  [[nodiscard]] bool IsOn(int camera, int column) const;

  const AlarmFace& face_;

  Grid MSFG_VidLoss;
  Label Label8;  ///< of lst_AlRelay1
  ListBox lst_AlRelay1;
  Label Label9;  ///< of lst_AlRelay2
  ListBox lst_AlRelay2;
  Label Label10;  ///< of lst_AlBuz
  ListBox lst_AlBuz;
  GridEditing editing_{MSFG_VidLoss};
};

}  // namespace quorvel
