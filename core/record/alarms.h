#pragma once

#include "core/record/meanings/alarms.h"
#include "core/setting.h"

namespace quorvel {

/// One alarm input: its wiring, its external outputs, its macro, and the reaction to the loss of
/// the camera of the same number.
class Alarms : public SettingOwner {
 public:
  Alarms(RecordEnvironment& env, int index) : SettingOwner(env, "AlarmInfo", index) {}
  Alarms& operator=(const Alarms&) = default;
  bool operator==(const Alarms&) const = default;

  Setting<"MacroLnk", Byte, In<34, CommitAlarm>, MacroLink> MacroLnk{*this};
  Setting<"VlBuzzer", bool, In<48, CommitAlarm>, DisableEnable> VlBuzzer{*this};
  Setting<"VlRelay2", bool, In<48, CommitAlarm>, DisableEnable> VlRelay2{*this};
  Setting<"VlRelay1", bool, In<48, CommitAlarm>, DisableEnable> VlRelay1{*this};
  Setting<"ExtAlmAction", Byte, In<45, CommitAlarm>, ExternalOutputs> ExtAlmAction{*this};
  Setting<"InputConf", Byte, In<33, CommitAlarm>, ClosedOpen> InputConf{*this};
  Setting<"Enable", Byte, In<33, CommitAlarm>, DisableEnable> Enable{*this};
};

}  // namespace quorvel
