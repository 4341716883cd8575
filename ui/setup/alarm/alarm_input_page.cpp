#include "ui/setup/alarm/alarm_input_page.h"

namespace quorvel {

AlarmInputPage::AlarmInputPage(Editor& editor) : EditorPage(editor) {
  MSFG_AlInput.SetSpokenName(Text(txt::kAlarmInput));
  const int wiring = inputs_.AddColumn(Label1.Caption());
  const int enable = inputs_.AddColumn(Label2.Caption());
  inputs_.Bind(enable, lst_AlEnable, DisableEnable(), OfAlarm(&Alarms::Enable).OtherwiseWritten(1));
  inputs_.Bind(wiring, lst_AlInput, ClosedOpen(), OfAlarm(&Alarms::InputConf).OtherwiseWritten(1));
}

Layout AlarmInputPage::Contents() {
  return Row(MSFG_AlInput,
             Column(Labelled(Label1, lst_AlInput), Labelled(Label2, lst_AlEnable), Stretch()));
}

}  // namespace quorvel
