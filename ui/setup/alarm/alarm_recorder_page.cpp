#include "ui/setup/alarm/alarm_recorder_page.h"

#include <algorithm>

#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {
constexpr int kLongestPreAlarm = 5;  // seconds
}

AlarmRecorderPage::AlarmRecorderPage(Editor& editor, const AlarmFace& face)
    : EditorPage(editor),
      frmPreAlDur(editor, "frmPreAlDur", Text(97)),
      lstPreAlDur(editor, "lstPreAlDur"),
      lbTime(editor, "lbTime", Text(57)),
      frmArchAL(editor, "frmArchAL", Text(66)),
      lbArchAL(editor, "lbArchAL", Text(102) + " 2"),
      optArchAL(editor, "optArchAL", 2) {
  frmPreAlDur.SetVisible(face.recorder_page);
  frmArchAL.SetVisible(face.recorder_page);
}

Layout AlarmRecorderPage::Contents() {
  return Row(Framed(frmPreAlDur, Row(lstPreAlDur, Column(lbTime, Stretch()))),
             Framed(frmArchAL, Column(lbArchAL, optArchAL, Stretch())), Stretch());
}

void AlarmRecorderPage::Fill() {
  lstPreAlDur.SetItems(NumberTexts(1, kLongestPreAlarm));
  lstPreAlDur.Select(Record().PreAlDuration() - 1);
  optArchAL.SetCaptions({Words().cnstrDisable, Words().cnstrEnable});
  optArchAL.SetSpokenNames(frmArchAL.Caption());
  optArchAL.Select(Record().DvrArchAlm() != 0 ? 1 : 0);
}

void AlarmRecorderPage::Write() {
  Record().DvrArchAlm(optArchAL(0).Selected() ? 0 : 1);
  // Without a choice the shortest: a recorder has no other durations.
  Record().PreAlDuration(static_cast<Byte>(std::max(lstPreAlDur.Current(), 0) + 1));
}

}  // namespace quorvel
