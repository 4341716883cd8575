#pragma once

#include "ui/editing/editor_page.h"
#include "ui/setup/alarm/alarm_face.h"

namespace quorvel {

/// The second page of other settings, of recorders: pre-alarm duration and archive alarm.
class AlarmRecorderPage : public EditorPage {
 public:
  AlarmRecorderPage(Editor& editor, const AlarmFace& face);
  [[nodiscard]] Layout Contents();
  void Fill();
  void Write();

 private:
  Frame frmPreAlDur;
  ListBox lstPreAlDur;
  Label lbTime;
  Frame frmArchAL;
  Label lbArchAL;  ///< the relay that starts the archive
  ControlArray<OptionButton> optArchAL;
};

}  // namespace quorvel
