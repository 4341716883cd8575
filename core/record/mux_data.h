#pragma once

#include <array>
#include <string>

#include "core/record/alarms.h"
#include "core/record/alm_action.h"
#include "core/record/cameras.h"
#include "core/record/cls_email_notify.h"
#include "core/record/cls_events.h"
#include "core/record/cls_matrix.h"
#include "core/record/meanings/device.h"
#include "core/record/schedules.h"
#include "core/record/time_date.h"
#include "core/setting.h"

namespace quorvel {

/// The configuration record: every setting of a device, with its per-camera, per-alarm, macro and
/// timer records. Values belong to the identity of its environment.
class MuxData : public SettingOwner {
  struct PlayDwellBlock {
    static void Changed(SettingOwner& owner, int) {
      if (owner.identity().IsMultiplexer()) owner.Record(CommitSequence, 61);
    }
  };
  /// Auto delete on a triplex recorder, the play/record link on a multiplexer, nothing between.
  struct PlayRecLnkBlock {
    static void Changed(SettingOwner& owner, int) {
      if (owner.identity().IsTriplex()) owner.Record(CommitRecord, 60);
      if (owner.identity().IsMultiplexer()) owner.Record(CommitMacro, 60);
    }
  };
  struct BuzzerBlock {
    static void Changed(SettingOwner& owner, int index) {
      owner.Record(CommitAlarm, index == 4 ? 48 : 61);
    }
  };

 public:
  static constexpr int kTimedMacros = 20;
  static constexpr int kRecTimers = 10;

  explicit MuxData(RecordEnvironment& environment);
  MuxData& operator=(const MuxData&) = default;
  bool operator==(const MuxData&) const = default;

  Setting<"Extra_Quality_Feature", Byte, ReadOnly> Extra_Quality_Feature{*this};
  Setting<"Rec120sp", Byte, In<219, CommitRecord>, TurboSwitch> Rec120sp{*this};
  SettingArray<"PubMonitor", Byte, 5, In<45, CommitCamera>, NoYes> PubMonitor{*this};
  Setting<"SVHS_MonB", Byte, In<45, CommitCamera>, DisableEnable> SVHS_MonB{*this};
  Setting<"ArchPortSelect", Byte, In<184, CommitArchive>, ArchivePort> ArchPortSelect{*this};
  Setting<"MuxLang", Byte, In<60, CommitMenu>, Language> MuxLang{*this};
  Setting<"LumacastCDW", Byte, In<61, CommitArchive>, OffOn> LumacastCDW{*this};
  Setting<"PreAlDuration", Byte, In<59, CommitAlarm>, Within<1, 5, Seconds>> PreAlDuration{*this};
  Setting<"DvrArchAlm", Byte, In<60, CommitAlarm>, DisableEnable> DvrArchAlm{*this};
  Setting<"DvrArchiveOn", Byte, In<60, CommitArchive>, ArchiveMode> DvrArchiveOn{*this};
  Setting<"DvrArchiveSet", Byte, In<60, CommitArchive>, ArchiveSetting> DvrArchiveSet{*this};
  Setting<"MuxModelName", std::string, ReadOnly> MuxModelName{*this};
  /// Below model code 6 a dwell time; from 6 on 0 while the device is to take the clock, else 1.
  Setting<"PlayDwell", Byte, PlayDwellBlock, PlaybackDwell> PlayDwell{*this};
  Setting<"TransmitSpiTime", Byte, In<59, CommitTimeDate>, NoYes> TransmitSpiTime{*this};
  Setting<"FullScrResolution", Byte, In<60, CommitCamera>, FieldOrFrame> FullScrResolution{*this};
  Setting<"AutoDisable", Byte, In<60, CommitCamera>, OffOn> AutoDisable{*this};
  Setting<"PlayRecLnk", Byte, PlayRecLnkBlock, PlayRecordLink> PlayRecLnk{*this};
  Setting<"MacroEditDL1", Byte, ReadOnly> MacroEditDL1{*this};
  Setting<"MacroEditDL2", Byte, ReadOnly> MacroEditDL2{*this};
  Setting<"LockKeyBoard", Byte, In<60, CommitMenu>, KeyboardLock> LockKeyBoard{*this};
  Setting<"NetworkAddr", Byte, In<59, CommitComm>> NetworkAddr{*this};
  Setting<"PlaybackOld", Byte, In<183, CommitVCR>, OlderFormat> PlaybackOld{*this};
  SettingArray<"TelAC_DC", Byte, kMostCameras, In<184, CommitTelemetry>, CameraLine> TelAC_DC{
      *this};
  SettingArray<"TelEnable", Byte, kMostCameras, In<61, CommitTelemetry>, DisableEnable> TelEnable{
      *this};
  Setting<"VCR_Signal_Level", Byte, In<60, CommitVCR>, SignalLevel> VCR_Signal_Level{*this};
  Setting<"DvrRecMode", Byte, In<60, CommitRecord>, RecorderMode> DvrRecMode{*this};
  Setting<"BaudRatePPC", Byte, In<60, CommitComm>, FirstPort> BaudRatePPC{*this};
  Setting<"BaudRate", Byte, In<60, CommitComm>, SecondPort> BaudRate{*this};
  Setting<"SwitchEdge", Byte, In<60, CommitVCR>, SwitchingEdge> SwitchEdge{*this};
  Setting<"ExtCam_SwAct", Byte, In<60, CommitVCR>, DisableEnable> ExtCam_SwAct{*this};
  Setting<"VCRType", Byte, In<60, CommitVCR>, VideoType> VCRType{*this};
  Setting<"PresetPGM", Byte, In<60, CommitTelemetry>, PresetProgramming> PresetPGM{*this};
  Setting<"PresetMode", Byte, In<59, CommitTelemetry>, PresetModes> PresetMode{*this};
  Setting<"Tel_options", Byte, In<59, CommitTelemetry>, TelemetryProtocol> Tel_options{*this};
  Setting<"PlaybackFormat", Byte, In<59, CommitVCR>, TapeFormat> PlaybackFormat{*this};
  Setting<"ActIndicate", Byte, In<59, CommitMotion>, OffOn> ActIndicate{*this};
  SettingArray<"ActivityType", Byte, kMostCameras, In<49, CommitMotion>, DetectionType>
      ActivityType{*this};
  SettingArray<"ActivityEnable", Byte, kMostCameras, In<49, CommitMotion>, DisableEnable>
      ActivityEnable{*this};
  /// 0 global, 1 live alarm, 2 video loss, 3 playback, 4 disk monitor.
  SettingArray<"Buzzer", Byte, 5, BuzzerBlock, OffOn> Buzzer{*this};
  Setting<"Relay1Conf", bool, In<60, CommitAlarm>, ClosedOpen> Relay1Conf{*this};
  Setting<"Relay2Conf", bool, In<60, CommitAlarm>, ClosedOpen> Relay2Conf{*this};
  Setting<"FullscrAlm", bool, In<60, CommitAlarm>> FullscrAlm{*this};
  Setting<"AlmRecMode", Byte, In<60, CommitAlarm>, AlarmRecordMode> AlmRecMode{*this};
  Setting<"AlarmMode", Byte, In<59, CommitAlarm>, AlarmLatch> AlarmMode{*this};
  Setting<"AlarmTimeOut", Byte, In<59, CommitAlarm>, AlarmTime> AlarmTimeOut{*this};
  Setting<"RecLock", Byte, In<60, CommitRecord>, OffOn> RecLock{*this};
  /// The record editor lists its blocks itself.
  SettingArray<"RecSeqLst", Byte, 40, Untracked, RecordList> RecSeqLst{*this};
  /// Monitors A to E.
  SettingArray<"TitleDisplay", Byte, 5, In<59, CommitCamera>, NoYes> TitleDisplay{*this};
  Setting<"MultiDwell", Byte, In<59, CommitSequence>, MultiscreenDwell> MultiDwell{*this};
  Setting<"FullDwell", Byte, In<59, CommitSequence>, Dwell> FullDwell{*this};
  Setting<"Normal_Rec_Index", Byte, Untracked, NormalSpeed> Normal_Rec_Index{*this};
  Setting<"Alarm_Rec_Index", Byte, In<59, CommitRecord>, AlarmSpeed> Alarm_Rec_Index{*this};

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

  /// Lists a block whose settings the record does not track, or not here.
  void MarkModified(int block) { env().blocks.AddBlk(static_cast<Byte>(block)); }

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
