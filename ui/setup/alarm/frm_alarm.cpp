#include "ui/setup/alarm/frm_alarm.h"

namespace quorvel {

frm_Alarm::frm_Alarm(Context& context)
    : Editor(context, "frm_Alarm", CommitAlarm),
      face_(AlarmFaceOf(Id(), context.DeviceFirmware(), context.BlkImage.BlkCountOrZero())),
      input_page_(*this),
      action_page_(*this, face_),
      external_page_(*this),
      macro_page_(*this),
      video_loss_page_(*this, face_),
      settings_page_(*this, face_),
      recorder_page_(*this, face_),
      notification_page_(*this, face_) {
  SetCaption(Text(64));
  SSTab1.SetSpokenName(Caption());
  ArrangePages();
  FillPages();
  BindButtons(cmd_OK, cmd_Cancel);
  TabChanged();
  SSTab1.on_change = [this] { TabChanged(); };
}

void frm_Alarm::ArrangePages() {
  const std::string settings = Text(92);
  const bool numbered = face_.recorder_page;
  SetLayout(Column(
      Tabs(SSTab1, Page{Text(60), input_page_.Contents()},
           Page{Text(59), action_page_.Contents(), face_.action_page},
           Page{Text(77), external_page_.Contents(), face_.external_page},
           Page{Text(86), macro_page_.Contents(), face_.macro_page},
           Page{Text(114), video_loss_page_.Contents(), face_.video_loss_page},
           Page{settings + (numbered ? " 1" : ""), settings_page_.Contents()},
           Page{settings + (numbered ? " 2" : ""), recorder_page_.Contents(), face_.recorder_page},
           Page{Text(56), notification_page_.Contents(), face_.notification_page}),
      Row(Stretch(), cmd_OK, cmd_Cancel)));
}

/// Filling asks for no texts, so the image stays. One that a text source has brought before is not
/// shown: OK says so.
void frm_Alarm::FillPages() {
  if (!BelongsToImage()) return;
  input_page_.Fill();
  if (face_.action_page) action_page_.Fill();
  if (face_.external_page) external_page_.Fill();
  if (face_.macro_page) macro_page_.Fill();
  if (face_.video_loss_page) video_loss_page_.Fill();
  if (face_.notification_page) notification_page_.Fill();
  settings_page_.Fill();
  if (face_.recorder_page) recorder_page_.Fill();
}

void frm_Alarm::WriteBack(MuxData& /*record*/) {
  input_page_.Write();
  if (face_.action_page) action_page_.Write();
  if (face_.external_page) external_page_.Write();
  if (face_.macro_page) macro_page_.Write();
  if (face_.video_loss_page) video_loss_page_.Write();
  settings_page_.Write();
  if (face_.recorder_page) recorder_page_.Write();
  if (face_.notification_page) notification_page_.Write();
}

void frm_Alarm::TabChanged() {
  switch (SSTab1.Current()) {
    case 0: return input_page_.GoToStart();
    case 1: return action_page_.GoToStart();
    case 2: return external_page_.GoToStart();
    case 3: return macro_page_.GoToStart();
    case 4: return video_loss_page_.GoToStart();
    default: return;
  }
}

}  // namespace quorvel
