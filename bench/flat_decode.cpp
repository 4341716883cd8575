#include <algorithm>
#include <cstring>

#include "bench/flat_record.h"

namespace quorvel::bench {

namespace {

using Bytes = const std::uint8_t*;

Bytes Block(Bytes image, int number) { return image + (number - 1) * 16; }

template <class Value>
void Bits(Bytes at, int cameras, Value* values) {
  for (int k = 0; k < cameras; ++k) values[k] = static_cast<Value>(at[k / 8] >> (k % 8) & 1);
}
void Pairs(Bytes at, int cameras, std::uint8_t* values) {
  for (int k = 0; k < cameras; ++k) values[k] = at[k / 4] >> (k % 4 * 2) & 3;
}
void Nibbles(Bytes at, int cameras, std::uint8_t* values) {
  for (int k = 0; k < cameras; ++k) values[k] = at[k / 2] >> (k % 2 * 4) & 15;
}
void Copy(Bytes at, int count, std::uint8_t* values) {
  for (int k = 0; k < count; ++k) values[k] = at[k];
}
template <int most>
void ZeroEnded(Bytes at, FlatText<most>& text) {
  int length = 0;
  while (length < most && at[length] != 0) ++length;
  text.length = static_cast<std::uint8_t>(length);
  std::memcpy(text.characters, at, static_cast<std::size_t>(length));
}

void DecodeTitles(Bytes image, FlatRecord& rec) {
  for (int c = 0; c < rec.cameras; ++c) {
    Bytes first = Block(image, 1 + c);
    Bytes end = first + 13;
    while (first < end && *first == ' ') ++first;
    while (first < end && end[-1] == ' ') --end;
    rec.title[c].length = static_cast<std::uint8_t>(end - first);
    std::memcpy(rec.title[c].characters, first, static_cast<std::size_t>(end - first));
  }
}

void DecodeQuality(std::uint8_t* image, FlatRecord& rec) {
  rec.extra_quality = Block(image, 45)[13];
  std::uint8_t* const at = image + 43 * 16 + 8;
  if (rec.extra_quality == 0) {
    Pairs(at, rec.cameras, rec.compression);
    return;
  }
  for (int k = 0; k < rec.cameras; ++k) {
    const int shift = k % 2 * 4;
    const int nibble = std::min(at[k / 2] >> shift & 15, 8);
    rec.compression[k] = static_cast<std::uint8_t>(nibble);
    at[k / 2] = static_cast<std::uint8_t>((at[k / 2] & ~(15 << shift)) | nibble << shift);
  }
}

void DecodeCameras(Bytes image, FlatRecord& rec) {
  const int cameras = rec.cameras;
  Bits(Block(image, 33) + 12, cameras, rec.disable);
  for (int k = 0; k < cameras; ++k) rec.disable[k] = !rec.disable[k];
  Copy(Block(image, 47), cameras, rec.signal_gain);
  Bits(Block(image, 49), cameras, rec.activity_enable);
  Bits(Block(image, 49) + 4, cameras, rec.activity_type);
  Bits(Block(image, 49) + 8, cameras, rec.covert);
  Nibbles(Block(image, 50), cameras, rec.sensitivity);
  Pairs(Block(image, 51), cameras, rec.rate);
  Pairs(Block(image, 51) + 8, cameras, rec.reject);
  Copy(Block(image, 52), 16, rec.size);
  Copy(Block(image, 54), 16, rec.alarm_link);
  for (int c = 0; c < cameras; ++c) Copy(Block(image, 85 + 2 * c), 32, rec.grid[c]);
  Pairs(Block(image, 149), cameras, rec.motion_relay);
  Pairs(Block(image, 149) + 8, cameras, rec.text_position);
  Bits(Block(image, 182) + 4, cameras, rec.video_loss);
  Bits(Block(image, 184), cameras, rec.color);
  Bits(Block(image, 184) + 4, cameras, rec.telemetry_ac);
  Bits(Block(image, 184) + 8, cameras, rec.gate);
}

void DecodeAlarms(Bytes image, FlatRecord& rec) {
  const int cameras = rec.cameras;
  Bits(Block(image, 33), cameras, rec.input_enable);
  Bits(Block(image, 33) + 4, cameras, rec.input_contact);
  Bits(Block(image, 33) + 8, cameras, rec.freeze);
  for (int k = 0; k < cameras; ++k) {
    const std::uint8_t link = Block(image, 34)[k];
    rec.macro_link[k] = link > cameras ? 0 : link;
  }
  Pairs(Block(image, 44), cameras, rec.alarm_relay);
  Bits(Block(image, 48), cameras, rec.loss_relay1);
  Bits(Block(image, 48) + 4, cameras, rec.loss_relay2);
  Bits(Block(image, 48) + 8, cameras, rec.loss_buzzer);
  rec.buzzer[4] = Block(image, 48)[12];
  for (int i = 0; i < 4; ++i) {
    Copy(Block(image, 36 + 2 * i), cameras, rec.display[i]);
    Copy(Block(image, 186 + 2 * i), cameras, rec.preset[i]);
  }
}

void DecodeRecording(Bytes image, FlatRecord& rec) {
  for (int k = 0; k < 16; ++k) {
    const int packed = Block(image, 56)[k];
    rec.pre_event[k] = packed & 7;
    rec.event_link[k] = packed >> 4 & 1;
    rec.event_type[k] = static_cast<std::uint8_t>((packed & 0x40) == 0 ? 0 : 1 + (packed >> 7));
  }
  Copy(Block(image, 57), 16, rec.post_event);
  Copy(Block(image, 58), 16, rec.event_rate);
  Copy(Block(image, 62), 16, rec.lapse_rate);
  Copy(Block(image, 63), 16, rec.activity_rate);
  for (int i = 0; i < 3; ++i) Copy(Block(image, 214 + i), 16, rec.associated[i]);
  const Bytes turbo = Block(image, 219);
  rec.turbo = turbo[0];
  for (int k = 0; k < rec.cameras; ++k) {
    const int byte = k / 8;
    const int bit = k % 8;
    if ((turbo[1 + byte] >> bit & 1) && rec.lapse_rate[k] == 0) rec.lapse_rate[k] = 99;
    if ((turbo[3 + byte] >> bit & 1) && rec.event_rate[k] == 0) rec.event_rate[k] = 99;
    if ((turbo[5 + byte] >> bit & 1) && rec.activity_rate[k] == 0) rec.activity_rate[k] = 99;
  }
  if (turbo[7] == 1 && rec.alarm_rate == 0) rec.alarm_rate = 99;
}

void DecodeModes(Bytes block, FlatRecord& rec) {
  for (int i = 0; i < 5; ++i) rec.date_display[i] = block[0] >> i & 1;
  rec.hours_24 = block[1] == 1;
  rec.date_format = block[2];
  rec.send_time = block[3];
  rec.multi_dwell = block[4];
  rec.full_dwell = block[5];
  rec.normal_rate = block[6];
  rec.alarm_rate = block[7];
  for (int i = 0; i < 5; ++i) rec.title_display[i] = block[8] >> i & 1;
  rec.alarm_timeout = block[9];
  rec.alarm_mode = block[10];
  rec.activity_indicate = block[11];
  rec.network_address = block[12];
  rec.pre_alarm = block[13] < 1 || block[13] > 5 ? 1 : block[13];
  rec.telemetry_options = block[14];
  rec.preset_mode = block[15];
}

void DecodeRecorder(Bytes block, FlatRecord& rec) {
  rec.preset_page = block[0];
  rec.archive_set = block[2];
  rec.archive_on = block[3];
  rec.language = block[4];
  rec.keyboard_lock = block[5];
  rec.relay1_open = (block[6] & 1) != 0;
  rec.relay2_open = (block[6] & 2) != 0;
  rec.full_screen_alarm = block[7] == 1;
  rec.baud_rate = block[8];
  rec.play_record_link = block[9];
  rec.baud_rate_ppc = block[10];
  rec.archive_alarm = block[11];
  rec.auto_disable = block[12];
  rec.alarm_record_mode = block[13];
  rec.record_mode = block[14];
  rec.record_lock = block[15];
}

void DecodeClock(Bytes image, FlatRecord& rec) {
  const Bytes regional = Block(image, 45);
  rec.region = regional[9];
  rec.time_zone = regional[10];
  rec.svhs_monitor = regional[11];
  for (int i = 0; i < 5; ++i) rec.public_monitor[i] = regional[12] >> i & 1;
  const Bytes clock = Block(image, 61);
  rec.hour = clock[0];
  rec.minute = clock[1];
  rec.second = clock[2];
  rec.month = clock[3];
  rec.day = clock[4];
  rec.year = static_cast<std::int16_t>(clock[5] + (clock[5] < 60 ? 2000 : 1900));
  Bits(clock + 6, rec.cameras, rec.telemetry_enable);
  for (int i = 0; i < 4; ++i) rec.buzzer[i] = clock[10 + i];
  rec.archive_cdw = clock[14];
  rec.play_dwell = 1;
  const Bytes servers = Block(image, 217);
  rec.server_update = servers[1];
  Copy(servers + 2, 4, rec.server);
  Copy(servers + 6, 4, rec.backup_server);
}

void DecodeSchedules(Bytes image, FlatRecord& rec) {
  for (int e = 0; e < 20; ++e) {
    const Bytes at = Block(image, 64) + 4 * e;
    FlatTimedMacro& macro = rec.timed_macro[e];
    if (at[0] < 9) macro.day = at[0];
    if (at[1] < 24) macro.hour = at[1];
    if (at[2] < 59) macro.minute = at[2];
    macro.macro = at[3] > rec.cameras ? 1 : at[3];
  }
  for (int c = 0; c < rec.cameras; ++c) {
    const Bytes at = Block(image, 69 + c);
    FlatSubMacro& macro = rec.sub_macro[c];
    macro.length = std::min(at[0], std::uint8_t{10});
    Copy(at + 1, std::min(macro.length + 1, 10), macro.bytes);
  }
  for (int e = 0; e < 10; ++e) {
    const Bytes at = Block(image, 195) + 8 * e;
    rec.timer[e] = {at[0], at[1], at[2], at[3], at[4], at[5], at[6], at[7]};
  }
}

void DecodeNotification(Bytes image, FlatRecord& rec) {
  const Bytes ports = Block(image, 200);
  Copy(ports, 2, rec.email_notify);
  rec.smtp_port = ports[5] * 256 + ports[6];
  Copy(ports + 8, 2, rec.tcp_notify);
  rec.tcp_interval = ports[12];
  rec.tcp_port = ports[13] * 256 + ports[14];
  const Bytes hosts = Block(image, 213);
  Copy(hosts + 1, 4, rec.smtp_host);
  Copy(hosts + 5, 4, rec.tcp_host);
  Copy(hosts + 9, 4, rec.tcp_backup_host);
  for (int i = 0; i < 12; ++i) ZeroEnded(Block(image, 201 + i), rec.text[i]);
  for (int i = 12; i < 18; ++i) ZeroEnded(Block(image, 220 + i - 12), rec.text[i]);
}

}  // namespace

void DecodeFlat(std::uint8_t* image, FlatRecord& rec) {
  rec.cameras = Block(image, 185)[0];
  rec.model_code = Block(image, 185)[1] & 0x7F;
  rec.recorder_kind = Block(image, 182)[8];
  rec.variant = Block(image, 183)[7];
  rec.playback = Block(image, 183)[8];
  rec.archive_ports = Block(image, 184)[12];
  rec.archive_port = Block(image, 184)[13];
  ZeroEnded(Block(image, 185) + 2, rec.model_name);
  DecodeTitles(image, rec);
  DecodeQuality(image, rec);
  DecodeCameras(image, rec);
  DecodeAlarms(image, rec);
  DecodeModes(Block(image, 59), rec);
  DecodeRecorder(Block(image, 60), rec);
  DecodeRecording(image, rec);
  DecodeClock(image, rec);
  DecodeSchedules(image, rec);
  DecodeNotification(image, rec);
}

}  // namespace quorvel::bench
