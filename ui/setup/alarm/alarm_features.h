#pragma once

#include "quorvel/identity.h"

namespace quorvel {

/// What of the alarms a model has, and its alarm editor therefore shows, all in one place.
struct AlarmFeatures {
  // Pages; those of the inputs and of the other settings are on every model.
  bool action_page;
  bool external_page;
  bool macro_page;
  bool video_loss_page;
  bool recorder_page;
  bool notification_page;

  // Columns of the action page and of the video-loss page.
  bool PresetColumns;  ///< the action grid has its four preset columns
  bool presets_kept;   ///< the device has blocks for them
  bool intrusion_gate;
  bool aux_monitor;
  bool video_loss_buzzer;

  // Groups of the other settings.
  bool record_mode;             ///< Frame2
  bool archive_in_record_mode;  ///< Frame2 switches the archive alarm instead
  bool full_screen;             ///< Frame3
  bool full_screen_always;      ///< alarms of this model switch to full screen, whatever is stored
  bool relays;                  ///< Frame4
  bool second_relay;            ///< Label12, Frame7
  bool buzzers;                 ///< Frame5
  bool event_buzzers;           ///< Frame9 to Frame11: live alarm, video loss, playback
  bool disk_buzzer;             ///< frameDskBuz
  bool fixed_settings;          ///< of these groups, only latch and global buzzer can be changed

  // Groups of the notification page, and what of it the device has blocks for.
  bool user1_kept;
  bool user2_kept;
  bool local_address;
  bool hosts_kept;
  bool tcp_notification;
};

/// `firmware` is the device's version, 506 for 5.06, and `blocks` the image's own block count.
[[nodiscard]] AlarmFeatures AlarmFeaturesOf(const Identity& id, int firmware, int blocks);

}  // namespace quorvel
