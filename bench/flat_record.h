#pragma once

#include <cstdint>

namespace quorvel::bench {

/// Characters of a fixed place, with their number.
template <int most>
struct FlatText {
  std::uint8_t length;
  char characters[most];
};

struct FlatTimedMacro {
  std::uint8_t macro, minute, hour, day;
};

struct FlatSubMacro {
  std::uint8_t length;
  std::uint8_t bytes[10];
};

struct FlatTimer {
  std::uint8_t date, start_hour, start_minute, stop_hour, stop_minute, macro, status, valid;
};

/// Every setting that a triplex recorder (model code 6) has, as plain arrays by camera, alarm input
/// or entry: what decoding and encoding cost at least. Value-initialise it before the first decode.
struct FlatRecord {
  // Identity
  std::uint8_t cameras, model_code, recorder_kind, variant, archive_ports;
  FlatText<14> model_name;

  // Cameras
  FlatText<13> title[16];
  bool disable[16], covert[16], color[16], video_loss[16];
  std::uint8_t signal_gain[16], text_position[16], compression[16], extra_quality;
  std::uint8_t title_display[5], public_monitor[5], svhs_monitor, auto_disable;

  // Motion detection
  std::uint8_t grid[16][32];
  std::uint8_t activity_enable[16], activity_type[16], activity_indicate;
  std::uint8_t sensitivity[16], rate[16], reject[16], motion_relay[16], size[16], alarm_link[16];

  // Alarms
  std::uint8_t input_enable[16], input_contact[16], macro_link[16];
  bool loss_relay1[16], loss_relay2[16], loss_buzzer[16];
  std::uint8_t freeze[16], alarm_relay[16], display[4][16], preset[4][16], gate[16];
  std::uint8_t buzzer[5], alarm_mode, alarm_record_mode, alarm_timeout, pre_alarm;
  bool relay1_open, relay2_open, full_screen_alarm;

  // Recording
  std::uint8_t event_rate[16], lapse_rate[16], activity_rate[16], post_event[16];
  std::uint8_t pre_event[16], event_link[16], event_type[16], associated[3][16];
  std::uint8_t normal_rate, alarm_rate, turbo, record_lock, record_mode, play_record_link;
  std::uint8_t archive_set, archive_on, archive_alarm, archive_port, archive_cdw, playback;

  // Schedules
  FlatTimedMacro timed_macro[20];
  FlatSubMacro sub_macro[16];
  FlatTimer timer[10];

  // Time and date
  std::int16_t hour, minute, second, day, year;
  std::int32_t month;
  bool hours_24;
  std::uint8_t date_format, region, time_zone, date_display[5], send_time;
  std::uint8_t server_change, server_update, server[4], backup_server[4];

  // Everything else
  std::uint8_t language, keyboard_lock, baud_rate, baud_rate_ppc, network_address;
  std::uint8_t multi_dwell, full_dwell, play_dwell;
  std::uint8_t telemetry_enable[16], telemetry_ac[16], telemetry_options, preset_mode, preset_page;

  // Notification
  std::uint8_t email_notify[2], tcp_notify[2], tcp_interval;
  std::int32_t smtp_port, tcp_port;
  std::uint8_t host_change, smtp_host[4], tcp_host[4], tcp_backup_host[4];
  FlatText<16> text[18];
};

/// Takes all settings out of a 225-block image of model code 6, without any check of the image.
/// Repairs compression nibbles in the image, as the decoder does.
void DecodeFlat(std::uint8_t* image, FlatRecord& rec);

/// Writes all settings into a 225-block image.
void EncodeFlat(FlatRecord& rec, std::uint8_t* image);

}  // namespace quorvel::bench
