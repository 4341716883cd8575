#pragma once

#include "ui/editing/editor.h"
#include "ui/setup/alarm/alarm_action_page.h"
#include "ui/setup/alarm/alarm_features.h"
#include "ui/setup/alarm/alarm_input_page.h"
#include "ui/setup/alarm/alarm_notification_page.h"
#include "ui/setup/alarm/alarm_output_pages.h"
#include "ui/setup/alarm/alarm_settings_page.h"

namespace quorvel {

/// Alarms: inputs, actions, external outputs, macro links, video loss, settings for all alarms, and
/// notification. Each page is a class of its own; AlarmFeatures tells what a model shows of them.
/// Pages are written in the order of their declaration.
class frm_Alarm : public Editor {
 public:
  explicit frm_Alarm(Context& context);

 private:
  [[nodiscard]] Layout Pages();

  AlarmFeatures features_;

  TabStrip SSTab1{*this, "SSTab1"};
  AlarmInputPage input_page_{*this};
  AlarmActionPage action_page_{*this, features_};
  ExternalAlarmPage external_page_{*this, features_};
  MacroLinkPage macro_page_{*this, features_};
  VideoLossPage video_loss_page_{*this, features_};
  AlarmSettingsPage settings_page_{*this, features_};
  AlarmRecorderPage recorder_page_{*this, features_};
  AlarmNotificationPage notification_page_{*this, features_};
  Button cmd_OK{*this, "cmd_OK"};
  Button cmd_Cancel{*this, "cmd_Cancel"};
};

}  // namespace quorvel
