#include "ui/setup/alarm/alarm_input_page.h"

#include "ui/editing/numbered_grid.h"

namespace quorvel {

namespace {
constexpr int kWiring = 1;
constexpr int kEnable = 2;
}  // namespace

AlarmInputPage::AlarmInputPage(Editor& editor)
    : EditorPage(editor),
      MSFG_AlInput(editor, "MSFG_AlInput"),
      Label1(editor, "Label1", Text(84)),
      lst_AlInput(editor, "lst_AlInput"),
      Label2(editor, "Label2", Text(76)),
      lst_AlEnable(editor, "lst_AlEnable") {
  MSFG_AlInput.SetSpokenName(Text(60));
  BuildNumberedGrid(MSFG_AlInput, Id().MaxCam,
                    {Ctx().texts.Objects().objstAlarm, Text(84), Text(76)});
}

Layout AlarmInputPage::Contents() {
  return Row(MSFG_AlInput,
             Column(Labelled(Label1, lst_AlInput), Labelled(Label2, lst_AlEnable), Stretch()));
}

void AlarmInputPage::Fill() {
  lst_AlInput.SetItems({Words().cnstrClose, Words().cnstrOpen});
  lst_AlEnable.SetItems({Words().cnstrDisable, Words().cnstrEnable});
  editing_.Bind(kWiring, lst_AlInput);
  editing_.Bind(kEnable, lst_AlEnable);
  for (int i = 0; i < Id().MaxCam; ++i) {
    const Alarms& alarm = *Record().AlarmInfo(i);
    editing_.SetItem(i + 1, kWiring, alarm.InputConf());
    editing_.SetItem(i + 1, kEnable, alarm.Enable());
  }
}

void AlarmInputPage::Write() {
  for (int i = 0; i < Id().MaxCam; ++i) {
    Alarms& alarm = *Record().AlarmInfo(i);
    alarm.Enable(editing_.ItemAt(i + 1, kEnable) == 0 ? 0 : 1);
    alarm.InputConf(editing_.ItemAt(i + 1, kWiring) == 0 ? 0 : 1);
  }
}

void AlarmInputPage::GoToStart() { editing_.GoTo(1, kWiring); }

}  // namespace quorvel
