#pragma once

#include "core/record/meanings/clock.h"

namespace quorvel {

struct EventType : Words<"TL", "Event", "Event+TL"> {};
struct PreEventTime : Within<0, 5, Seconds> {};
struct PostEventTime : Within<0, 200, Seconds> {};

// Rates. Lite models have four of their own, and from the factory hold those of full models, which
// they take for one of theirs.

struct FullRates : Within<0, 20> {};
struct LiteRates : Words<"0 pps", "1 pps", "4 pps", "20 pps"> {
  static constexpr Range Limits(const Identity& id) { return FullRates::Limits(id); }
};
struct LiteEventRates : WordsFrom<2, "4 pps", "20 pps"> {
  static constexpr Range Limits(const Identity& id) { return FullRates::Limits(id); }
};
/// The rate of turbo waits while turbo is off.
template <class Rates>
struct WithTurbo : Where<&Identity::PlexarProModel, Besides<99, "TURBO", Rates>, Rates> {};
struct RecordRate : Where<&Identity::LiteRecordModel, LiteRates, WithTurbo<FullRates>> {};
struct EventRate : Where<&Identity::LiteRecordModel, LiteEventRates, WithTurbo<FullRates>> {};

// The speeds of a multiplexer, of which the last is every 333rd field, and those of a DVR, by the
// field that they record.

struct FreeSpeeds : Within<0, 166> {};
struct SpeedModes : Words<"001", "009", "017", "025", "057", "321", "Event"> {};
struct NormalSpeed : Where<&Identity::IsMultiplexer, FreeSpeeds,
                           Where<&Identity::HasEventRecording, NoUnit, SpeedModes>> {};
struct AlarmRate : Where<&Identity::LiteRecordModel, Words<"0 pps", "1 pps", "4 pps", "20 pps">,
                         WithTurbo<Within<0, 5>>> {};
struct AlarmSpeed : Where<&Identity::IsMultiplexer, FreeSpeeds,
                          Where<&Identity::HasEventRecording, AlarmRate, SpeedModes>> {};

/// Cameras. The factory settings of these models hold those of a recorder: 210 in the first places.
struct RecordList : Within<0, kMostCameras - 1> {
  static constexpr std::array kCodes{Code{255, "NONE"}, Code{210, "unused"}};
  static constexpr std::span<const Code> Codes(const Identity& /*id*/) { return kCodes; }
};

struct RecorderMode : Where<&Identity::IsTriplex, Words<"No Overwrite", "Write Once", "Continuous">,
                            Words<"Auto Overwrite", "User Confirm">> {};
/// Auto delete of a recorder, in days; of a multiplexer, whether it plays what it records.
struct AutoDelete : Besides<0, "OFF", Within<1, 99>> {};
struct PlayRecordLink
    : Where<&Identity::IsMultiplexer, NoYes, Where<&Identity::HasEventRecording, AutoDelete>> {};
/// A recorder without it keeps the byte to itself.
struct TurboSwitch : Where<&Identity::PlexarProModel, OffOn> {};

// Timers. One that is not valid holds zeros, also for its date.

struct TimerDate : WordsFrom<40, "MON", "TUE", "WED", "THU", "FRI", "SAT", "SUN", "MON-FRI",
                             "SAT-SUN", "MON-SUN"> {
  static constexpr Range Limits(const Identity& /*id*/) { return {0, 31}; }
};
struct TimerMacro : Besides<0, "NONE", Within<1, kMostCameras>> {};

/// When a macro starts. The device counts minutes to 58.
struct MacroDay : Words<"NONE", "MON", "TUE", "WED", "THU", "FRI", "SAT", "SUN", "**"> {};
struct MacroMinutes : Within<0, 58> {};

}  // namespace quorvel
