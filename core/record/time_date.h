#pragma once

#include "core/bit_fields.h"
#include "core/setting.h"

namespace quorvel {

/// The device's clock, its formats, time zone and time servers.
class TimeDate : public SettingOwner {
  /// A changed server octet lists block 217 and marks its server in the change mask.
  struct ServerBlock {
    Byte mask_bit;
    Setting<Byte, Untracked>* mask;
    void Changed(const SettingOwner& owner, int) const {
      if (!owner.Record(CommitTimeDate, 217)) return;
      Byte bits = (*mask)();
      SetBit(bits, mask_bit, true);
      mask->Load(bits);
    }
  };

 public:
  explicit TimeDate(RecordEnvironment& env) : SettingOwner(env, "TDInfo") {}
  TimeDate& operator=(const TimeDate&) = default;
  bool operator==(const TimeDate&) const = default;

  /// Change mask: bit 0 primary server, bit 1 backup server; 0 again once block 217 is encoded.
  Setting<Byte, Untracked> NTPchange{*this, "NTPchange"};
  Setting<Byte> NTPUpdate{*this, "NTPUpdate", {217, CommitTimeDate}};
  /// IPv4 octets, first octet at index 0.
  SettingArray<Byte, 4, ServerBlock> NTPPrimServer{*this, "NTPPrimServer", {0, &NTPchange}};
  SettingArray<Byte, 4, ServerBlock> NTPBkupServer{*this, "NTPBkupServer", {1, &NTPchange}};
  Setting<Byte> DaylightRegion{*this, "DaylightRegion", {45, CommitTimeDate}};
  Setting<Byte> TimeZoneIdx{*this, "TimeZoneIdx", {45, CommitTimeDate}};
  /// Monitors A to E: 1 shows time and date.
  SettingArray<Byte, 5> TDDisplay{*this, "TDDisplay", {59, CommitTimeDate}};
  Setting<std::int16_t> CurrentDay{*this, "CurrentDay", {61, CommitTimeDate}};
  Setting<std::int32_t> CurrentMonth{*this, "CurrentMonth", {61, CommitTimeDate}};
  Setting<std::int16_t> CurrentYear{*this, "CurrentYear", {61, CommitTimeDate}};
  Setting<std::int16_t> CurrentHour{*this, "CurrentHour", {61, CommitTimeDate}};
  Setting<std::int16_t> CurrentMin{*this, "CurrentMin", {61, CommitTimeDate}};
  Setting<std::int16_t> CurrentSec{*this, "CurrentSec", {61, CommitTimeDate}};
  Setting<bool> TimeFormat{*this, "TimeFormat", {59, CommitTimeDate}};  ///< true: 24 hours
  Setting<Byte> DateFormat{*this, "DateFormat", {59, CommitTimeDate}};
};

}  // namespace quorvel
