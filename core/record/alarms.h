#pragma once

#include "core/setting.h"

namespace quorvel {

/// One alarm input: its wiring, its external outputs, its macro, and the reaction to the loss of
/// the camera of the same number.
class Alarms : public SettingOwner {
 public:
  Alarms(RecordEnvironment& env, int index) : SettingOwner(env, "AlarmInfo", index) {}
  Alarms& operator=(const Alarms&) = default;
  bool operator==(const Alarms&) const = default;

  Setting<"MacroLnk", Byte, In<34, CommitAlarm>> MacroLnk{*this};
  Setting<"VlBuzzer", bool, In<48, CommitAlarm>> VlBuzzer{*this};
  Setting<"VlRelay2", bool, In<48, CommitAlarm>> VlRelay2{*this};
  Setting<"VlRelay1", bool, In<48, CommitAlarm>> VlRelay1{*this};
  Setting<"ExtAlmAction", Byte, In<45, CommitAlarm>> ExtAlmAction{*this};
  Setting<"InputConf", Byte, In<33, CommitAlarm>> InputConf{*this};
  Setting<"Enable", Byte, In<33, CommitAlarm>> Enable{*this};
};

}  // namespace quorvel
