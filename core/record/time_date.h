#pragma once

#include "core/record/meanings/clock.h"
#include "core/setting.h"

namespace quorvel {

/// The device's clock, its formats, time zone and time servers.
class TimeDate : public SettingOwner {
 public:
  explicit TimeDate(RecordEnvironment& env) : SettingOwner(env, "TDInfo") {}
  TimeDate& operator=(const TimeDate&) = default;
  bool operator==(const TimeDate&) const = default;

  /// Change mask: bit 0 primary server, bit 1 backup server; 0 again once sent.
  Setting<"NTPchange", Byte> NTPchange{*this};
  Setting<"NTPUpdate", Byte, In<217, CommitTimeDate>, ServerInterval> NTPUpdate{*this};
  template <int bit>
  struct Server {
    static void Changed(SettingOwner& owner, int) {
      RecordInMask(owner, CommitTimeDate, 217, static_cast<TimeDate&>(owner).NTPchange, bit);
    }
  };
  /// IPv4 octets, first octet at index 0.
  SettingArray<"NTPPrimServer", Byte, 4, Server<0>> NTPPrimServer{*this};
  SettingArray<"NTPBkupServer", Byte, 4, Server<1>> NTPBkupServer{*this};
  Setting<"DaylightRegion", Byte, In<45, CommitTimeDate>, SummerTime> DaylightRegion{*this};
  Setting<"TimeZoneIdx", Byte, In<45, CommitTimeDate>, TimeZone> TimeZoneIdx{*this};
  /// Monitors A to E.
  SettingArray<"TDDisplay", Byte, 5, In<59, CommitTimeDate>, NoYes> TDDisplay{*this};
  Setting<"CurrentDay", std::int16_t, In<61, CommitTimeDate>, DayOfMonth> CurrentDay{*this};
  Setting<"CurrentMonth", std::int32_t, In<61, CommitTimeDate>, MonthOfYear> CurrentMonth{*this};
  Setting<"CurrentYear", std::int16_t, In<61, CommitTimeDate>, ClockYear> CurrentYear{*this};
  Setting<"CurrentHour", std::int16_t, In<61, CommitTimeDate>, HourOfDay> CurrentHour{*this};
  Setting<"CurrentMin", std::int16_t, In<61, CommitTimeDate>, MinuteOrSecond> CurrentMin{*this};
  Setting<"CurrentSec", std::int16_t, In<61, CommitTimeDate>, MinuteOrSecond> CurrentSec{*this};
  Setting<"TimeFormat", bool, In<59, CommitTimeDate>, ClockHours> TimeFormat{*this};
  Setting<"DateFormat", Byte, In<59, CommitTimeDate>, DateOrder> DateFormat{*this};
};

}  // namespace quorvel
