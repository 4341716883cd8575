#include "ui/setup/alarm/alarm_features.h"

namespace quorvel {

namespace {
constexpr int kDiskBuzzerFirmware = 506;
constexpr int kMostBlocksWithoutNotification = 200;
// Blocks that a device needs to keep what the pages show.
constexpr int kLastPresetBlock = 192;
constexpr int kLastUser1Block = 206;
constexpr int kLastUser2Block = 212;
constexpr int kHostsBlock = 213;
}  // namespace

AlarmFeatures AlarmFeaturesOf(const Identity& id, int firmware, int blocks) {
  const bool recorder = !id.IsMultiplexer();
  const bool lite = id.LiteRecordModel;
  const bool small_lite = lite && id.Model4L;
  const bool small_triplex = id.IsTriplex() && !lite && id.VariantChar == '2' && id.MaxCam == 4;

  const bool basic = id.VariantChar == 'A';
  const bool plain_multiplexer = !recorder && id.RecorderKind != 2;
  const bool compact = plain_multiplexer && id.VariantChar == 'C';
  const bool no_actions =
      basic || compact || (plain_multiplexer && (id.VariantChar == '0' || id.VariantChar == '2'));

  AlarmFeatures features{};
  features.action_page = !no_actions && !lite && !small_triplex;
  features.external_page = !basic && !compact && !lite && id.ModelCode <= 1;
  features.macro_page = !basic && !compact && !small_lite;
  features.video_loss_page = !basic && !compact && (!lite || id.VariantChar == '2');
  features.recorder_page = recorder && !lite;
  features.notification_page =
      id.IsTriplex() && !id.Model4L && blocks > kMostBlocksWithoutNotification;

  features.PresetColumns = id.VariantChar == '0';
  features.presets_kept = blocks >= kLastPresetBlock;
  features.intrusion_gate = id.IsTriplex();
  features.aux_monitor = id.IsTriplexMatrix();
  features.video_loss_buzzer = !(lite && id.VariantChar == '2');

  features.record_mode = !basic && !small_lite;
  features.archive_in_record_mode = lite && !small_lite;
  features.full_screen = !no_actions;
  features.full_screen_always = small_triplex;
  features.relays = !compact;
  features.second_relay = !basic;
  features.buzzers = !compact;
  features.event_buzzers = !basic;
  features.disk_buzzer = firmware >= kDiskBuzzerFirmware;
  features.fixed_settings = lite;

  features.user1_kept = blocks >= kLastUser1Block;
  features.user2_kept = blocks >= kLastUser2Block;
  features.local_address = id.ExtendedImage;
  features.hosts_kept = blocks >= kHostsBlock;
  features.tcp_notification = !lite;
  return features;
}

}  // namespace quorvel
