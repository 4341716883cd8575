#include <algorithm>
#include <cstring>

#include "bench/flat_record.h"

namespace quorvel::bench {

namespace {

using Bytes = std::uint8_t*;

Bytes Block(Bytes image, int number) { return image + (number - 1) * 16; }
std::uint8_t Low(int number) { return static_cast<std::uint8_t>(number); }

template <class Value>
void Bits(const Value* values, int cameras, Bytes at) {
  unsigned bits = 0;
  for (int k = 0; k < cameras; ++k) bits |= static_cast<unsigned>(values[k] != 0) << k;
  at[0] = static_cast<std::uint8_t>(bits);
  at[1] = static_cast<std::uint8_t>(bits >> 8);
}
void Pairs(const std::uint8_t* values, int cameras, Bytes at) {
  for (int first = 0; first < cameras; first += 4) {
    int byte = 0;
    for (int k = first; k < cameras && k < first + 4; ++k) byte |= values[k] << (k % 4 * 2);
    at[first / 4] = Low(byte);
  }
}
void Nibbles(const std::uint8_t* values, int cameras, Bytes at) {
  for (int first = 0; first < cameras; first += 2) {
    const int high = first + 1 < cameras ? values[first + 1] : 0;
    at[first / 2] = Low(values[first] | high << 4);
  }
}
void Copy(const std::uint8_t* values, int count, Bytes at) {
  for (int k = 0; k < count; ++k) at[k] = values[k];
}
std::uint8_t TwoBits(const std::uint8_t* values) { return Low(values[0] | values[1] << 1); }

void EncodeTitles(const FlatRecord& rec, Bytes image) {
  for (int c = 0; c < rec.cameras; ++c) {
    const Bytes at = Block(image, 1 + c);
    const std::size_t length = rec.title[c].length;
    std::memcpy(at, rec.title[c].characters, length);
    std::memset(at + length, ' ', 13 - length);
  }
}

void EncodeCameras(const FlatRecord& rec, Bytes image) {
  const int cameras = rec.cameras;
  bool enabled[16];
  for (int k = 0; k < cameras; ++k) enabled[k] = !rec.disable[k];
  Bits(enabled, cameras, Block(image, 33) + 12);
  if (rec.extra_quality == 0) {
    Pairs(rec.compression, cameras, Block(image, 44) + 8);
  } else {
    Nibbles(rec.compression, cameras, Block(image, 44) + 8);
  }
  Copy(rec.signal_gain, cameras, Block(image, 47));
  Bits(rec.activity_enable, cameras, Block(image, 49));
  Bits(rec.activity_type, cameras, Block(image, 49) + 4);
  Bits(rec.covert, cameras, Block(image, 49) + 8);
  Nibbles(rec.sensitivity, cameras, Block(image, 50));
  Pairs(rec.rate, cameras, Block(image, 51));
  Pairs(rec.reject, cameras, Block(image, 51) + 8);
  Copy(rec.size, 16, Block(image, 52));
  Copy(rec.alarm_link, 16, Block(image, 54));
  for (int c = 0; c < cameras; ++c) Copy(rec.grid[c], 32, Block(image, 85 + 2 * c));
  Pairs(rec.motion_relay, cameras, Block(image, 149));
  Pairs(rec.text_position, cameras, Block(image, 149) + 8);
  Bits(rec.color, cameras, Block(image, 184));
  Bits(rec.telemetry_ac, cameras, Block(image, 184) + 4);
  Bits(rec.gate, cameras, Block(image, 184) + 8);
  Block(image, 184)[13] = rec.archive_port;
}

void EncodeAlarms(const FlatRecord& rec, Bytes image) {
  const int cameras = rec.cameras;
  Bits(rec.input_enable, cameras, Block(image, 33));
  Bits(rec.input_contact, cameras, Block(image, 33) + 4);
  Bits(rec.freeze, cameras, Block(image, 33) + 8);
  Copy(rec.macro_link, cameras, Block(image, 34));
  std::memset(Block(image, 44) + 4, 0, 4);
  Pairs(rec.alarm_relay, cameras, Block(image, 44));
  Bits(rec.loss_relay1, cameras, Block(image, 48));
  Bits(rec.loss_relay2, cameras, Block(image, 48) + 4);
  Bits(rec.loss_buzzer, cameras, Block(image, 48) + 8);
  Block(image, 48)[12] = rec.buzzer[4];
  for (int i = 0; i < 4; ++i) {
    Copy(rec.display[i], cameras, Block(image, 36 + 2 * i));
    Copy(rec.preset[i], cameras, Block(image, 186 + 2 * i));
  }
}

void EncodeRecording(const FlatRecord& rec, Bytes image) {
  constexpr std::uint8_t kTypeBits[] = {0x00, 0x40, 0xC0};
  for (int k = 0; k < 16; ++k) {
    Block(image, 56)[k] =
        Low(rec.pre_event[k] | rec.event_link[k] << 4 | kTypeBits[rec.event_type[k]]);
  }
  Copy(rec.post_event, 16, Block(image, 57));
  Copy(rec.event_rate, 16, Block(image, 58));
  Copy(rec.lapse_rate, 16, Block(image, 62));
  Copy(rec.activity_rate, 16, Block(image, 63));
  for (int i = 0; i < 3; ++i) Copy(rec.associated[i], 16, Block(image, 214 + i));
}

void EncodeModes(const FlatRecord& rec, Bytes block) {
  block[0] = TwoBits(rec.date_display);
  block[1] = rec.hours_24;
  block[2] = rec.date_format;
  block[3] = rec.send_time;
  block[4] = rec.multi_dwell;
  block[5] = rec.full_dwell;
  block[6] = rec.normal_rate;
  block[7] = rec.alarm_rate;
  block[8] = TwoBits(rec.title_display);
  block[9] = rec.alarm_timeout;
  block[10] = rec.alarm_mode;
  block[11] = rec.activity_indicate;
  block[12] = rec.network_address;
  block[13] = rec.pre_alarm;
  block[14] = rec.telemetry_options;
  block[15] = rec.preset_mode;
}

void EncodeRecorder(const FlatRecord& rec, Bytes block) {
  block[0] = rec.preset_page;
  block[2] = rec.archive_set;
  block[3] = rec.archive_on;
  block[4] = rec.language;
  block[5] = rec.keyboard_lock;
  block[6] = Low(rec.relay1_open | rec.relay2_open << 1);
  block[7] = rec.full_screen_alarm;
  block[8] = rec.baud_rate;
  block[9] = rec.play_record_link;
  block[10] = rec.baud_rate_ppc;
  block[11] = rec.archive_alarm;
  block[12] = rec.auto_disable;
  block[13] = rec.alarm_record_mode;
  block[14] = rec.record_mode;
  block[15] = rec.record_lock;
}

void EncodeClock(FlatRecord& rec, Bytes image) {
  const Bytes regional = Block(image, 45);
  regional[9] = rec.region;
  regional[10] = rec.time_zone;
  regional[11] = rec.svhs_monitor;
  regional[12] = 0;
  for (int i = 0; i < 5; ++i) regional[12] |= Low(rec.public_monitor[i] << i);
  const Bytes clock = Block(image, 61);
  clock[0] = Low(rec.hour);
  clock[1] = Low(rec.minute);
  clock[2] = Low(rec.second);
  clock[3] = Low(rec.month);
  clock[4] = Low(rec.day);
  clock[5] = Low(rec.year - (rec.year < 2000 || rec.year >= 2060 ? 1900 : 2000));
  Bits(rec.telemetry_enable, rec.cameras, clock + 6);
  Copy(rec.buzzer, 4, clock + 10);
  clock[14] = rec.archive_cdw;
  clock[15] = rec.play_dwell;
  const Bytes servers = Block(image, 217);
  servers[0] = rec.server_change;
  servers[1] = rec.server_update;
  Copy(rec.server, 4, servers + 2);
  Copy(rec.backup_server, 4, servers + 6);
}

void EncodeSchedules(const FlatRecord& rec, Bytes image) {
  for (int e = 0; e < 20; ++e) {
    const FlatTimedMacro& macro = rec.timed_macro[e];
    const Bytes at = Block(image, 64) + 4 * e;
    at[0] = macro.day;
    at[1] = macro.hour;
    at[2] = macro.minute;
    at[3] = macro.macro;
  }
  for (int c = 0; c < rec.cameras; ++c) {
    const FlatSubMacro& macro = rec.sub_macro[c];
    const Bytes at = Block(image, 69 + c);
    const int script = std::min(macro.length + 1, 10);
    at[0] = macro.length;
    Copy(macro.bytes, script, at + 1);
    for (int k = script; k < 10; ++k) {
      if (macro.bytes[k] != 0) at[1 + k] = macro.bytes[k];
    }
  }
  for (int e = 0; e < 10; ++e) {
    const FlatTimer& timer = rec.timer[e];
    const Bytes at = Block(image, 195) + 8 * e;
    at[0] = timer.date;
    at[1] = timer.start_hour;
    at[2] = timer.start_minute;
    at[3] = timer.stop_hour;
    at[4] = timer.stop_minute;
    at[5] = timer.macro;
    at[6] = timer.status;
    at[7] = timer.valid;
  }
}

void EncodeNotification(FlatRecord& rec, Bytes image) {
  const Bytes ports = Block(image, 200);
  Copy(rec.email_notify, 2, ports);
  ports[5] = Low(rec.smtp_port >> 8);
  ports[6] = Low(rec.smtp_port);
  Copy(rec.tcp_notify, 2, ports + 8);
  ports[12] = rec.tcp_interval;
  ports[13] = Low(rec.tcp_port >> 8);
  ports[14] = Low(rec.tcp_port);
  const Bytes hosts = Block(image, 213);
  hosts[0] = rec.host_change;
  Copy(rec.smtp_host, 4, hosts + 1);
  Copy(rec.tcp_host, 4, hosts + 5);
  Copy(rec.tcp_backup_host, 4, hosts + 9);
  for (int i = 0; i < 18; ++i) {
    const Bytes at = Block(image, i < 12 ? 201 + i : 220 + i - 12);
    std::memset(at, 0, 16);
    std::memcpy(at, rec.text[i].characters, rec.text[i].length);
  }
}

}  // namespace

void EncodeFlat(FlatRecord& rec, std::uint8_t* image) {
  EncodeTitles(rec, image);
  EncodeCameras(rec, image);
  EncodeAlarms(rec, image);
  EncodeModes(rec, Block(image, 59));
  EncodeRecorder(rec, Block(image, 60));
  EncodeRecording(rec, image);
  EncodeClock(rec, image);
  EncodeSchedules(rec, image);
  EncodeNotification(rec, image);
  Block(image, 183)[8] = rec.playback;
}

}  // namespace quorvel::bench
