#pragma once

#include "ui/editing/editor.h"
#include "ui/setup/alarm/alarm_action_page.h"
#include "ui/setup/alarm/alarm_face.h"
#include "ui/setup/alarm/alarm_input_page.h"
#include "ui/setup/alarm/alarm_notification_page.h"
#include "ui/setup/alarm/alarm_output_pages.h"
#include "ui/setup/alarm/alarm_recorder_page.h"
#include "ui/setup/alarm/alarm_settings_page.h"
#include "ui/setup/alarm/video_loss_page.h"

namespace quorvel {

/// Alarms: inputs, actions, external outputs, macro links, video loss, settings for all alarms, and
/// notification. Each page is a class of its own; AlarmFace tells what a model shows of them. A
/// page that is hidden is neither filled nor written.
class frm_Alarm : public Editor {
 public:
  explicit frm_Alarm(Context& context);

 private:
  void WriteBack(MuxData& record) override;
  void ArrangePages();
  void FillPages();
  void TabChanged();

  AlarmFace face_;

  TabStrip SSTab1{*this, "SSTab1"};
  AlarmInputPage input_page_;                ///< tab 0
  AlarmActionPage action_page_;              ///< tab 1
  ExternalAlarmPage external_page_;          ///< tab 2
  MacroLinkPage macro_page_;                 ///< tab 3
  VideoLossPage video_loss_page_;            ///< tab 4
  AlarmSettingsPage settings_page_;          ///< tab 5
  AlarmRecorderPage recorder_page_;          ///< tab 6
  AlarmNotificationPage notification_page_;  ///< tab 7
  Button cmd_OK{*this, "cmd_OK"};
  Button cmd_Cancel{*this, "cmd_Cancel"};
};

}  // namespace quorvel
