#pragma once

#include "core/setting.h"

namespace quorvel {

/// What one alarm input does: the cameras shown, presets called, relays closed.
class AlmAction : public SettingOwner {
 public:
  AlmAction(RecordEnvironment& env, int index) : SettingOwner(env, "AlmActionInfo", index) {}
  AlmAction& operator=(const AlmAction&) = default;
  bool operator==(const AlmAction&) const = default;

  Setting<Byte> GateIntrus{*this, "GateIntrus", {184, CommitAlarm}};
  Setting<Byte> Preset3{*this, "Preset3", {192, CommitAlarm}};
  Setting<Byte> Preset2{*this, "Preset2", {190, CommitAlarm}};
  Setting<Byte> Preset1{*this, "Preset1", {188, CommitAlarm}};
  Setting<Byte> Preset0{*this, "Preset0", {186, CommitAlarm}};
  /// Camera indices, 0-based.
  Setting<Byte> Display3{*this, "Display3", {42, CommitAlarm}};
  Setting<Byte> Display2{*this, "Display2", {40, CommitAlarm}};
  Setting<Byte> Display1{*this, "Display1", {38, CommitAlarm}};
  Setting<Byte> Display0{*this, "Display0", {36, CommitAlarm}};
  Setting<Byte> Relay{*this, "Relay", {44, CommitAlarm}};
  Setting<Byte> Freeze{*this, "Freeze", {33, CommitAlarm}};
};

}  // namespace quorvel
