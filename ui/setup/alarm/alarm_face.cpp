#include "ui/setup/alarm/alarm_face.h"

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

AlarmFace AlarmFaceOf(const Identity& id, int firmware, int blocks) {
  const bool recorder = !id.IsMultiplexer();
  const bool lite = id.LiteRecordModel;
  const bool small_lite = lite && id.Model4L;
  const bool small_triplex = id.IsTriplex() && !lite && id.VariantChar == '2' && id.MaxCam == 4;

  const bool basic = id.VariantChar == 'A';
  const bool plain_multiplexer = !recorder && id.RecorderKind != 2;
  const bool compact = plain_multiplexer && id.VariantChar == 'C';
  const bool no_actions =
      basic || compact || (plain_multiplexer && (id.VariantChar == '0' || id.VariantChar == '2'));

  AlarmFace face{};
  face.action_page = !no_actions && !lite && !small_triplex;
  face.external_page = !basic && !compact && !lite && id.ModelCode <= 1;
  face.macro_page = !basic && !compact && !small_lite;
  face.video_loss_page = !basic && !compact && (!lite || id.VariantChar == '2');
  face.recorder_page = recorder && !lite;
  face.notification_page = id.IsTriplex() && !id.Model4L && blocks > kMostBlocksWithoutNotification;

  face.PresetColumns = id.VariantChar == '0';
  face.presets_kept = blocks >= kLastPresetBlock;
  face.intrusion_gate = id.IsTriplex();
  face.aux_monitor = id.IsTriplexMatrix();
  face.video_loss_buzzer = !(lite && id.VariantChar == '2');

  face.record_mode = !basic && !small_lite;
  face.archive_in_record_mode = lite && !small_lite;
  face.full_screen = !no_actions;
  face.full_screen_always = small_triplex;
  face.relays = !compact;
  face.second_relay = !basic;
  face.buzzers = !compact;
  face.event_buzzers = !basic;
  face.disk_buzzer = firmware >= kDiskBuzzerFirmware;
  face.fixed_settings = lite;

  face.user1_kept = blocks >= kLastUser1Block;
  face.user2_kept = blocks >= kLastUser2Block;
  face.local_address = id.ExtendedImage;
  face.hosts_kept = blocks >= kHostsBlock;
  face.tcp_notification = !lite;
  return face;
}

}  // namespace quorvel
