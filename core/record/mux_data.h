#pragma once

#include <array>
#include <string>

#include "core/record/alarms.h"
#include "core/record/alm_action.h"
#include "core/record/cameras.h"
#include "core/record/cls_email_notify.h"
#include "core/record/cls_events.h"
#include "core/record/cls_matrix.h"
#include "core/record/schedules.h"
#include "core/record/time_date.h"
#include "core/setting.h"

namespace quorvel {

/// The configuration record: every setting of a device, with its per-camera, per-alarm, macro and
/// timer records. Values belong to the identity of its environment.
class MuxData : public SettingOwner {
  struct PlayDwellBlock {
    void Changed(const SettingOwner& owner, int) const {
      if (owner.identity().IsMultiplexer()) owner.Record(CommitSequence, 61);
    }
  };
  /// Auto delete on a triplex recorder, the play/record link on a multiplexer, nothing between.
  struct PlayRecLnkBlock {
    void Changed(const SettingOwner& owner, int) const {
      if (owner.identity().IsTriplex()) owner.Record(CommitRecord, 60);
      if (owner.identity().IsMultiplexer()) owner.Record(CommitMacro, 60);
    }
  };
  struct BuzzerBlock {
    void Changed(const SettingOwner& owner, int index) const {
      owner.Record(CommitAlarm, index == 4 ? 48 : 61);
    }
  };

 public:
  static constexpr int kTimedMacros = 20;
  static constexpr int kRecTimers = 10;

  explicit MuxData(RecordEnvironment& environment);
  MuxData& operator=(const MuxData&) = default;
  bool operator==(const MuxData&) const = default;

  ReadOnlySetting<Byte> Extra_Quality_Feature{"Extra_Quality_Feature"};
  Setting<Byte> Rec120sp{*this, "Rec120sp", {219, CommitRecord}};
  SettingArray<Byte, 5> PubMonitor{*this, "PubMonitor", {45, CommitCamera}};
  Setting<Byte> SVHS_MonB{*this, "SVHS_MonB", {45, CommitCamera}};
  Setting<Byte> ArchPortSelect{*this, "ArchPortSelect", {184, CommitArchive}};
  /// 0 English, 1 French, 2 German, 3 Italian, 4 Russian, 5 Polish, 6 Czech, 7 Finnish,
  /// 8 Hungarian, 9 Slovak, 10 Spanish, 11 Dutch, 12 Danish.
  Setting<Byte> MuxLang{*this, "MuxLang", {60, CommitMenu}};
  Setting<Byte> LumacastCDW{*this, "LumacastCDW", {61, CommitArchive}};
  Setting<Byte> PreAlDuration{*this, "PreAlDuration", {59, CommitAlarm}};  ///< seconds, 1 to 5
  Setting<Byte> DvrArchAlm{*this, "DvrArchAlm", {60, CommitAlarm}};
  Setting<Byte> DvrArchiveOn{*this, "DvrArchiveOn", {60, CommitArchive}};
  Setting<Byte> DvrArchiveSet{*this, "DvrArchiveSet", {60, CommitArchive}};
  ReadOnlySetting<std::string> MuxModelName{"MuxModelName"};
  Setting<Byte, PlayDwellBlock> PlayDwell{*this, "PlayDwell"};
  Setting<Byte> TransmitSpiTime{*this, "TransmitSpiTime", {59, CommitTimeDate}};
  Setting<Byte> FullScrResolution{*this, "FullScrResolution", {60, CommitCamera}};
  Setting<Byte> AutoDisable{*this, "AutoDisable", {60, CommitCamera}};
  Setting<Byte, PlayRecLnkBlock> PlayRecLnk{*this, "PlayRecLnk"};
  ReadOnlySetting<Byte> MacroEditDL1{"MacroEditDL1"};
  ReadOnlySetting<Byte> MacroEditDL2{"MacroEditDL2"};
  Setting<Byte> LockKeyBoard{*this, "LockKeyBoard", {60, CommitMenu}};  ///< 1 locked
  Setting<Byte> NetworkAddr{*this, "NetworkAddr", {59, CommitComm}};
  Setting<Byte> PlaybackOld{*this, "PlaybackOld", {183, CommitVCR}};
  SettingArray<Byte, kMostCameras> TelAC_DC{*this, "TelAC_DC", {184, CommitTelemetry}};
  SettingArray<Byte, kMostCameras> TelEnable{*this, "TelEnable", {61, CommitTelemetry}};
  Setting<Byte> VCR_Signal_Level{*this, "VCR_Signal_Level", {60, CommitVCR}};
  Setting<Byte> DvrRecMode{*this, "DvrRecMode", {60, CommitRecord}};
  Setting<Byte> BaudRatePPC{*this, "BaudRatePPC", {60, CommitComm}};
  Setting<Byte> BaudRate{*this, "BaudRate", {60, CommitComm}};
  Setting<Byte> SwitchEdge{*this, "SwitchEdge", {60, CommitVCR}};
  Setting<Byte> ExtCam_SwAct{*this, "ExtCam_SwAct", {60, CommitVCR}};
  Setting<Byte> VCRType{*this, "VCRType", {60, CommitVCR}};
  Setting<Byte> PresetPGM{*this, "PresetPGM", {60, CommitTelemetry}};
  Setting<Byte> PresetMode{*this, "PresetMode", {59, CommitTelemetry}};
  Setting<Byte> Tel_options{*this, "Tel_options", {59, CommitTelemetry}};
  Setting<Byte> PlaybackFormat{*this, "PlaybackFormat", {59, CommitVCR}};
  Setting<Byte> ActIndicate{*this, "ActIndicate", {59, CommitMotion}};
  SettingArray<Byte, kMostCameras> ActivityType{*this, "ActivityType", {49, CommitMotion}};
  SettingArray<Byte, kMostCameras> ActivityEnable{*this, "ActivityEnable", {49, CommitMotion}};
  /// 0 global, 1 live alarm, 2 video loss, 3 playback, 4 disk monitor.
  SettingArray<Byte, 5, BuzzerBlock> Buzzer{*this, "Buzzer"};
  Setting<bool> Relay1Conf{*this, "Relay1Conf", {60, CommitAlarm}};  ///< true: normally open
  Setting<bool> Relay2Conf{*this, "Relay2Conf", {60, CommitAlarm}};  ///< true: normally open
  Setting<bool> FullscrAlm{*this, "FullscrAlm", {60, CommitAlarm}};
  Setting<Byte> AlmRecMode{*this, "AlmRecMode", {60, CommitAlarm}};
  Setting<Byte> AlarmMode{*this, "AlarmMode", {59, CommitAlarm}};
  Setting<Byte> AlarmTimeOut{*this, "AlarmTimeOut", {59, CommitAlarm}};
  Setting<Byte> RecLock{*this, "RecLock", {60, CommitRecord}};
  /// Camera indices, 255 for an empty place. The record editor lists its blocks itself.
  SettingArray<Byte, 40, Untracked> RecSeqLst{*this, "RecSeqLst"};
  /// Monitors A to E: 1 shows titles.
  SettingArray<Byte, 5> TitleDisplay{*this, "TitleDisplay", {59, CommitCamera}};
  Setting<Byte> MultiDwell{*this, "MultiDwell", {59, CommitSequence}};  ///< seconds
  Setting<Byte> FullDwell{*this, "FullDwell", {59, CommitSequence}};    ///< seconds
  Setting<Byte, Untracked> Normal_Rec_Index{*this, "Normal_Rec_Index"};
  Setting<Byte> Alarm_Rec_Index{*this, "Alarm_Rec_Index", {59, CommitRecord}};

  TimeDate TDInfo;
  clsEmailNotify AlmEmailNotify;
  clsMatrix MatrixInfo;

  /// Elements in place, by 0-based index: per camera below MaxCam, 20 timed macros, 10 timers.
  /// Nothing (a null pointer) for an index out of range.
  [[nodiscard]] Cameras* CamInfo(int index) { return PerCamera(cameras_, index); }
  [[nodiscard]] Alarms* AlarmInfo(int index) { return PerCamera(alarms_, index); }
  [[nodiscard]] AlmAction* AlmActionInfo(int index) { return PerCamera(actions_, index); }
  [[nodiscard]] clsEvents* CamEvent(int index) { return PerCamera(events_, index); }
  [[nodiscard]] clsSubMacro* SubMacroInfo(int index);
  [[nodiscard]] clsTimedMacro* TimeMacroInfo(int index);
  [[nodiscard]] clsRecTimer* MRecTimer(int index);

  /// Replace an element by the values of another; a bad index changes nothing.
  void CamInfo(int index, const Cameras& element) { Replace(CamInfo(index), element); }
  void AlarmInfo(int index, const Alarms& element) { Replace(AlarmInfo(index), element); }
  void AlmActionInfo(int index, const AlmAction& element) {
    Replace(AlmActionInfo(index), element);
  }
  void CamEvent(int index, const clsEvents& element) { Replace(CamEvent(index), element); }
  void SubMacroInfo(int index, const clsSubMacro& element) {
    Replace(SubMacroInfo(index), element);
  }
  void TimeMacroInfo(int index, const clsTimedMacro& element) {
    Replace(TimeMacroInfo(index), element);
  }
  void MRecTimer(int index, const clsRecTimer& element) { Replace(MRecTimer(index), element); }

  /// Lowers all commit flags, so that what follows lists nothing.
  void FillData() { env().commit.Clear(); }

  /// All elements whatever the number of cameras: for the block layouts.
  [[nodiscard]] auto& AllCameras() { return cameras_; }
  [[nodiscard]] auto& AllAlarms() { return alarms_; }
  [[nodiscard]] auto& AllActions() { return actions_; }
  [[nodiscard]] auto& AllEvents() { return events_; }
  [[nodiscard]] auto& AllSubMacros() { return sub_macros_; }
  [[nodiscard]] auto& AllTimedMacros() { return timed_macros_; }
  [[nodiscard]] auto& AllRecTimers() { return rec_timers_; }

 private:
  template <class Elements>
  typename Elements::value_type* PerCamera(Elements& elements, int index) const {
    const bool exists = index >= 0 && index < identity().MaxCam && index < kMostCameras;
    return exists ? &elements[static_cast<std::size_t>(index)] : nullptr;
  }
  template <class Element>
  static void Replace(Element* place, const Element& element) {
    if (place != nullptr) *place = element;
  }

  std::array<Cameras, kMostCameras> cameras_;
  std::array<Alarms, kMostCameras> alarms_;
  std::array<AlmAction, kMostCameras> actions_;
  std::array<clsEvents, kMostCameras> events_;
  std::array<clsSubMacro, kMostCameras> sub_macros_;
  std::array<clsTimedMacro, kTimedMacros> timed_macros_;
  std::array<clsRecTimer, kRecTimers> rec_timers_;
};

}  // namespace quorvel
