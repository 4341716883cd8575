#pragma once

#include "core/record/meanings/alarms.h"
#include "core/setting.h"

namespace quorvel {

/// What one alarm input does: the cameras shown, presets called, relays closed.
class AlmAction : public SettingOwner {
 public:
  AlmAction(RecordEnvironment& env, int index) : SettingOwner(env, "AlmActionInfo", index) {}
  AlmAction& operator=(const AlmAction&) = default;
  bool operator==(const AlmAction&) const = default;

  Setting<"GateIntrus", Byte, In<184, CommitAlarm>, IntrusionGate> GateIntrus{*this};
  Setting<"Preset3", Byte, In<192, CommitAlarm>, AlarmPreset> Preset3{*this};
  Setting<"Preset2", Byte, In<190, CommitAlarm>, AlarmPreset> Preset2{*this};
  Setting<"Preset1", Byte, In<188, CommitAlarm>, AlarmPreset> Preset1{*this};
  Setting<"Preset0", Byte, In<186, CommitAlarm>, AlarmPreset> Preset0{*this};
  /// Camera indices, 0-based.
  Setting<"Display3", Byte, In<42, CommitAlarm>, CameraIndex> Display3{*this};
  Setting<"Display2", Byte, In<40, CommitAlarm>, CameraIndex> Display2{*this};
  Setting<"Display1", Byte, In<38, CommitAlarm>, CameraIndex> Display1{*this};
  Setting<"Display0", Byte, In<36, CommitAlarm>, CameraIndex> Display0{*this};
  Setting<"Relay", Byte, In<44, CommitAlarm>, Relays> Relay{*this};
  Setting<"Freeze", Byte, In<33, CommitAlarm>, NoYes> Freeze{*this};
};

}  // namespace quorvel
