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

  Setting<Byte> MacroLnk{*this, "MacroLnk", {34, CommitAlarm}};
  Setting<bool> VlBuzzer{*this, "VlBuzzer", {48, CommitAlarm}};
  Setting<bool> VlRelay2{*this, "VlRelay2", {48, CommitAlarm}};
  Setting<bool> VlRelay1{*this, "VlRelay1", {48, CommitAlarm}};
  Setting<Byte> ExtAlmAction{*this, "ExtAlmAction", {45, CommitAlarm}};
  Setting<Byte> InputConf{*this, "InputConf", {33, CommitAlarm}};
  Setting<Byte> Enable{*this, "Enable", {33, CommitAlarm}};
};

}  // namespace quorvel
