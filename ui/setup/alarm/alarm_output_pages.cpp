#include "ui/setup/alarm/alarm_output_pages.h"

namespace quorvel {

ExternalAlarmPage::ExternalAlarmPage(Editor& editor, const AlarmFeatures& features)
    : EditorPage(editor, features.external_page) {
  MSFG_AlExt.SetSpokenName(Text(txt::kExternalAlarmAction));
  Choices outputs = Relays();
  outputs.Add(Choices({Words().cnstrExt1, Words().cnstrExt2, Words().cnstrExt3, Words().cnstrExt4},
                      outputs.Count()));
  inputs_.Column(Label6.Caption(), lst_AlExternal, outputs,
                 OfAlarm(&Alarms::ExtAlmAction).OtherwiseWritten(7),
                 {.writes = ColumnRules::Reach::kInRow});
}

MacroLinkPage::MacroLinkPage(Editor& editor, const AlarmFeatures& features)
    : EditorPage(editor, features.macro_page) {
  MSFG_AlMacro.SetSpokenName(Text(txt::kLinkToAMacro));
  Choices macros{{0, Words().cnstrNone}};
  macros.Add(Choices::Numbers(1, Id().MaxCam, 1)).Reads(0, "");
  alarms_.Column(Label7.Caption(), lst_AlMacro, macros, OfAlarm(&Alarms::MacroLnk), {.empty = 0});
}

VideoLossPage::VideoLossPage(Editor& editor, const AlarmFeatures& features)
    : EditorPage(editor, features.video_loss_page) {
  MSFG_VidLoss.SetSpokenName(Text(txt::kVideolossAction));
  cameras_.NameByTitles();
  cameras_.Column(Label8.Caption(), lst_AlRelay1, DisableEnable(), OfAlarm(&Alarms::VlRelay1));
  cameras_.Column(Label9.Caption(), lst_AlRelay2, DisableEnable(), OfAlarm(&Alarms::VlRelay2));
  Label10.SetVisible(features.video_loss_buzzer);
  lst_AlBuz.SetVisible(features.video_loss_buzzer);
  if (features.video_loss_buzzer) {
    cameras_.Column(Label10.Caption(), lst_AlBuz, DisableEnable(), OfAlarm(&Alarms::VlBuzzer));
  }
}

Layout VideoLossPage::Contents() {
  return Row(MSFG_VidLoss, Column(Labelled(Label8, lst_AlRelay1), Labelled(Label9, lst_AlRelay2),
                                  Labelled(Label10, lst_AlBuz), Stretch()));
}

}  // namespace quorvel
