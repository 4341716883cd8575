#pragma once

#include "core/record/meanings/alarms.h"
#include "core/setting.h"

namespace quorvel {

/// Auxiliary monitors and group switching of the matrix models.
class clsMatrix : public SettingOwner {
 public:
  explicit clsMatrix(RecordEnvironment& env) : SettingOwner(env, "MatrixInfo") {}
  clsMatrix& operator=(const clsMatrix&) = default;
  bool operator==(const clsMatrix&) const = default;

  SettingArray<"AuxMonitor", Byte, kMostCameras, In<45, CommitAlarm>, AuxMonitors> AuxMonitor{
      *this};
  SettingArray<"GroupSetup", Byte, kMostCameras, In<46, CommitSequence>, CameraIndexOr<"NONE">>
      GroupSetup{*this};
  Setting<"TDDspCDE", Byte, In<59, CommitTimeDate>> TDDspCDE{*this};
  Setting<"TitleDspCDE", Byte, In<59, CommitCamera>> TitleDspCDE{*this};
  Setting<"GroupSwEnable", Byte, In<45, CommitSequence>, GroupSwitching> GroupSwEnable{*this};
};

}  // namespace quorvel
