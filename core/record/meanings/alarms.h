#pragma once

#include "core/record/meanings/words.h"

namespace quorvel {

struct MacroLink : Besides<0, "NONE", OnePerCamera> {};
struct AlarmPreset : Besides<0, "--", OnePerCamera> {};
/// Duplex models keep bytes of their own in place of them.
struct ExternalOutputs : Where<&Identity::HasEventRecording, NoUnit,
                               Words<"NONE", "1", "2", "1+2", "EXT1", "EXT2", "EXT3", "EXT4">> {};
struct IntrusionGate : Words<"OR", "AND"> {};
struct AuxMonitors : Words<"B", "C", "D", "E"> {};
struct GroupSwitching : Words<"Disable", "Enable"> {};

struct AlarmRecordMode : Words<"INTERLEAVED", "EXCLUSIVE", "NO CHANGE"> {};
struct AlarmLatch : Words<"Latched", "Transparent", "Timed Out"> {};
struct AlarmTime : Within<0, 249, SecondsFromOne> {};

// Notification. The masks are any numbers, as bit 7 is the device's own.

inline bool NotifiesOverTcp(const Identity& id) { return id.IsTriplex() && !id.LiteRecordModel; }
struct TcpPort : Where<NotifiesOverTcp, Within<1027, 32767>> {};
struct TcpInterval
    : Where<NotifiesOverTcp, Besides<0, "Immediate", Within<1, 60, Minutes>>, Minutes> {};

}  // namespace quorvel
