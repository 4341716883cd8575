#pragma once

#include "core/setting.h"

namespace quorvel {

/// Auxiliary monitors and group switching of the matrix models.
class clsMatrix : public SettingOwner {
 public:
  explicit clsMatrix(RecordEnvironment& env) : SettingOwner(env, "MatrixInfo") {}
  clsMatrix& operator=(const clsMatrix&) = default;
  bool operator==(const clsMatrix&) const = default;

  SettingArray<Byte, kMostCameras> AuxMonitor{*this, "AuxMonitor", {45, CommitAlarm}};
  SettingArray<Byte, kMostCameras> GroupSetup{*this, "GroupSetup", {46, CommitSequence}};
  Setting<Byte> TDDspCDE{*this, "TDDspCDE", {59, CommitTimeDate}};
  Setting<Byte> TitleDspCDE{*this, "TitleDspCDE", {59, CommitCamera}};
  Setting<Byte> GroupSwEnable{*this, "GroupSwEnable", {45, CommitSequence}};
};

}  // namespace quorvel
