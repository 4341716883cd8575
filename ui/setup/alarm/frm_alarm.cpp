#include "ui/setup/alarm/frm_alarm.h"

#include "ui/context.h"

namespace quorvel {

frm_Alarm::frm_Alarm(Context& context)
    : Editor(context, "frm_Alarm", txt::kAlarms, {CommitAlarm}),
      features_(AlarmFeaturesOf(Id(), context.DeviceFirmware(),
                                context.device.BlkImage.BlkCountOrZero())) {
  SetLayout(Column(Pages(), Row(Stretch(), cmd_OK, cmd_Cancel)));
  // Not an edit: these models do so in any case.
  if (features_.full_screen_always && BelongsToImage()) Record().FullscrAlm(true);
  Open(cmd_OK, cmd_Cancel, &SSTab1);
}

Layout frm_Alarm::Pages() {
  const std::string settings = Text(txt::kOtherSettings);
  const bool numbered = recorder_page_.Exists();
  return Tabs(
      SSTab1, Page{Text(txt::kAlarmInput), input_page_.Contents()},
      Page{Text(txt::kAlarmAction), action_page_.Contents(), action_page_.Exists()},
      Page{Text(txt::kExternalAlarmAction), external_page_.Contents(), external_page_.Exists()},
      Page{Text(txt::kLinkToAMacro), macro_page_.Contents(), macro_page_.Exists()},
      Page{Text(txt::kVideolossAction), video_loss_page_.Contents(), video_loss_page_.Exists()},
      Page{settings + (numbered ? " 1" : ""), settings_page_.Contents()},
      Page{settings + (numbered ? " 2" : ""), recorder_page_.Contents(), recorder_page_.Exists()},
      Page{Text(txt::kNotification), notification_page_.Contents(), notification_page_.Exists()});
}

}  // namespace quorvel
