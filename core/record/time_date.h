#pragma once

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
  Setting<"NTPUpdate", Byte, In<217, CommitTimeDate>> NTPUpdate{*this};
  template <int bit>
  struct Server {
    static void Changed(SettingOwner& owner, int) {
      RecordInMask(owner, CommitTimeDate, 217, static_cast<TimeDate&>(owner).NTPchange, bit);
    }
  };
  /// IPv4 octets, first octet at index 0.
  SettingArray<"NTPPrimServer", Byte, 4, Server<0>> NTPPrimServer{*this};
  SettingArray<"NTPBkupServer", Byte, 4, Server<1>> NTPBkupServer{*this};
  Setting<"DaylightRegion", Byte, In<45, CommitTimeDate>> DaylightRegion{*this};
  Setting<"TimeZoneIdx", Byte, In<45, CommitTimeDate>> TimeZoneIdx{*this};
  /// Monitors A to E: 1 shows time and date.
  SettingArray<"TDDisplay", Byte, 5, In<59, CommitTimeDate>> TDDisplay{*this};
  Setting<"CurrentDay", std::int16_t, In<61, CommitTimeDate>> CurrentDay{*this};
  Setting<"CurrentMonth", std::int32_t, In<61, CommitTimeDate>> CurrentMonth{*this};
  Setting<"CurrentYear", std::int16_t, In<61, CommitTimeDate>> CurrentYear{*this};
  Setting<"CurrentHour", std::int16_t, In<61, CommitTimeDate>> CurrentHour{*this};
  Setting<"CurrentMin", std::int16_t, In<61, CommitTimeDate>> CurrentMin{*this};
  Setting<"CurrentSec", std::int16_t, In<61, CommitTimeDate>> CurrentSec{*this};
  Setting<"TimeFormat", bool, In<59, CommitTimeDate>> TimeFormat{*this};  ///< true: 24 hours
  Setting<"DateFormat", Byte, In<59, CommitTimeDate>> DateFormat{*this};
};

}  // namespace quorvel
