#include "ui/setup/alarm/video_loss_page.h"

#include "ui/editing/numbered_grid.h"

namespace quorvel {

namespace {
constexpr int kRelay1 = 1;
constexpr int kRelay2 = 2;
constexpr int kBuzzer = 3;
}  // namespace

VideoLossPage::VideoLossPage(Editor& editor, const AlarmFace& face)
    : EditorPage(editor),
      face_(face),
      MSFG_VidLoss(editor, "MSFG_VidLoss"),
      Label8(editor, "Label8", Text(102) + " 1"),
      lst_AlRelay1(editor, "lst_AlRelay1"),
      Label9(editor, "Label9", Text(102) + " 2"),
      lst_AlRelay2(editor, "lst_AlRelay2"),
      Label10(editor, "Label10", Text(69)),
      lst_AlBuz(editor, "lst_AlBuz") {
  MSFG_VidLoss.SetSpokenName(Text(114));
  BuildNumberedGrid(MSFG_VidLoss, Id().MaxCam,
                    {Ctx().texts.Objects().objstCam, Label8.Caption(), Label9.Caption()});
  if (face_.video_loss_buzzer) AddNamedColumn(MSFG_VidLoss, Label10.Caption());
}

Layout VideoLossPage::Contents() {
  return Row(MSFG_VidLoss, Column(Labelled(Label8, lst_AlRelay1), Labelled(Label9, lst_AlRelay2),
                                  Labelled(Label10, lst_AlBuz), Stretch()));
}

void VideoLossPage::Fill() {
  for (ListBox* const list : {&lst_AlRelay1, &lst_AlRelay2, &lst_AlBuz}) {
    list->SetItems({Words().cnstrDisable, Words().cnstrEnable});
  }
  Label10.SetVisible(face_.video_loss_buzzer);
  lst_AlBuz.SetVisible(face_.video_loss_buzzer);
  editing_.Bind(kRelay1, lst_AlRelay1);
  editing_.Bind(kRelay2, lst_AlRelay2);
  if (face_.video_loss_buzzer) editing_.Bind(kBuzzer, lst_AlBuz);
  for (int c = 0; c < Id().MaxCam; ++c) {
    const Alarms& alarm = *Record().AlarmInfo(c);
    editing_.SetItem(c + 1, kRelay1, alarm.VlRelay1() ? 1 : 0);
    editing_.SetItem(c + 1, kRelay2, alarm.VlRelay2() ? 1 : 0);
    editing_.SetItem(c + 1, kBuzzer, alarm.VlBuzzer() ? 1 : 0);  // nothing without the column
  }
}

bool VideoLossPage::IsOn(int camera, int column) const {
  return editing_.ItemAt(camera + 1, column) != 0;
}

void VideoLossPage::Write() {
  for (int c = 0; c < Id().MaxCam; ++c) {
    Alarms& alarm = *Record().AlarmInfo(c);
    alarm.VlRelay1(IsOn(c, kRelay1));
    alarm.VlRelay2(IsOn(c, kRelay2));
    if (face_.video_loss_buzzer) alarm.VlBuzzer(IsOn(c, kBuzzer));
  }
}

void VideoLossPage::GoToStart() { editing_.GoTo(1, kRelay1); }

}  // namespace quorvel
