#include "resources/factory_settings.h"

#include <string>

namespace quorvel {

namespace {

// The image of a DVR also serves multiplexers, which read other settings in some of its bytes. Both
// readings of such a byte must be usable; these settings share one:
//   PreAlDuration and PlaybackFormat, DvrArchiveSet and ExtCam_SwAct, DvrArchiveOn and SwitchEdge,
//   DvrArchAlm and FullScrResolution, DvrRecMode and VCR_Signal_Level.

/// The camera `steps` further on; after the last comes the first.
Byte CameraAfter(int camera, int steps) {
  return static_cast<Byte>((camera + steps + kMostCameras) % kMostCameras);
}

/// "Camera 07   " and a zero byte: 12 characters, and the end that the device puts behind them.
std::string Title(int camera) {
  const int number = camera + 1;
  std::string title = number < 10 ? "Camera 0" : "Camera ";
  title += std::to_string(number);
  title.resize(12, ' ');
  title.push_back('\0');
  return title;
}

void SetUpCameras(MuxData& rec) {
  // Shown as gain 100 of 50 to 150 on triplex models, as 5 of 1 to 10 on the others.
  const Byte middle_gain = rec.identity().IsTriplex() ? 50 : 4;
  for (Cameras& camera : rec.AllCameras()) {
    camera.title(Title(camera.Index()));
    camera.covert(false);
    camera.disable(false);
    camera.color(true);
    camera.SignalGain(middle_gain);
    camera.TextPos(0);   // top
    camera.Compress(1);  // medium
  }
  for (int monitor = 0; monitor < rec.TitleDisplay.kSize; ++monitor) {
    rec.TitleDisplay(monitor, 1);
    rec.PubMonitor(monitor, 0);
  }
  rec.SVHS_MonB(0);
  rec.AutoDisable(0);
}

void SetUpMotionDetection(MuxData& rec) {
  rec.ActIndicate(0);
  for (Cameras& camera : rec.AllCameras()) {
    const int k = camera.Index();
    rec.ActivityEnable(k, 1);
    rec.ActivityType(k, 0);  // activity
    camera.Sensitivity(5);   // shown as 6 of 1 to 10
    camera.Rate(0);          // no change
    camera.Relay(0);
    camera.Reject(1);  // medium
    camera.size(20);
    camera.LnkALM(static_cast<Byte>(k + 1));
    for (int i = 0; i < camera.ActGrid.kSize; ++i) camera.ActGrid(i, 0xFF);  // all zones
  }
}

void SetUpAlarmInputs(MuxData& rec) {
  for (Alarms& input : rec.AllAlarms()) {
    input.Enable(1);
    input.InputConf(1);  // normally open
    input.ExtAlmAction(0);
    input.MacroLnk(0);
    input.VlRelay1(false);
    input.VlRelay2(false);
    input.VlBuzzer(true);
  }
  for (AlmAction& action : rec.AllActions()) {
    const int k = action.Index();
    action.Freeze(0);
    action.Display0(CameraAfter(k, 0));
    action.Display1(CameraAfter(k, -1));
    action.Display2(CameraAfter(k, 1));
    action.Display3(CameraAfter(k, 2));
    action.Preset0(0);
    action.Preset1(0);
    action.Preset2(0);
    action.Preset3(0);
    action.Relay(1);
    action.GateIntrus(0);  // alarm or intrusion
  }
}

void SetUpAlarmHandling(MuxData& rec) {
  rec.AlarmMode(2);     // timed out
  rec.AlarmTimeOut(9);  // shown as 10 seconds
  rec.FullscrAlm(false);
  rec.AlmRecMode(0);  // interleaved
  rec.Relay1Conf(true);
  rec.Relay2Conf(true);
  rec.Buzzer(0, 1);  // global
  rec.Buzzer(1, 1);  // live alarm
  rec.Buzzer(2, 1);  // video loss
  rec.Buzzer(3, 0);  // playback
  rec.Buzzer(4, 1);  // disk monitor
  rec.PreAlDuration(1);
  rec.DvrArchAlm(0);
}

void SetUpNotification(MuxData& rec) {
  clsEmailNotify& notify = rec.AlmEmailNotify;
  for (int i = 0; i < notify.EmailNotify.kSize; ++i) {
    notify.EmailNotify(i, 0);
    notify.TCPNotify(i, 0);
  }
  notify.SMTPPort(25);
  notify.TCPPort(1027);
  notify.TCPInterval(0);  // at once
}

void SetUpRecording(MuxData& rec) {
  for (clsEvents& camera : rec.AllEvents()) {
    camera.EventSettings(210);  // event and time-lapse, linked to activity, 2 seconds before
    camera.PostEvDuration(10);
    camera.Event_RRIndex(0);
    camera.TL_RRIndex(6);
    camera.Act_RRIndex(2);
  }
  constexpr Byte kEmptyPlace = 255;
  for (int place = 0; place < rec.RecSeqLst.kSize; ++place) {
    rec.RecSeqLst(place, place < kMostCameras ? static_cast<Byte>(place) : kEmptyPlace);
  }
  rec.Normal_Rec_Index(1);
  rec.Alarm_Rec_Index(0);
  // Continuous on triplex models, auto overwrite on the others: a full disk stops no recording.
  rec.DvrRecMode(rec.identity().IsTriplex() ? 2 : 0);
  rec.RecLock(0);
  rec.PlayRecLnk(0);  // no auto delete; no play/record link
}

void SetUpSchedules(MuxData& rec) {
  for (clsTimedMacro& macro : rec.AllTimedMacros()) {
    macro.Day(0);  // never
    macro.Hour(0);
    macro.Minute(0);
    macro.MacroNum(1);
  }
  for (clsSubMacro& macro : rec.AllSubMacros()) macro.SMacroLen(0);
  for (clsRecTimer& timer : rec.AllRecTimers()) timer.RTvalid(0);
}

void SetUpMonitors(MuxData& rec) {
  rec.MultiDwell(5);
  rec.FullDwell(5);
  rec.PlayDwell(rec.identity().IsTriplex() ? 1 : 5);  // on triplex models: leave the clock alone
  TimeDate& clock = rec.TDInfo;
  for (int monitor = 0; monitor < clock.TDDisplay.kSize; ++monitor) clock.TDDisplay(monitor, 1);
  clock.TimeFormat(true);  // 24 hours
  clock.DateFormat(1);     // DD/MM/YY
}

void SetUpClock(MuxData& rec) {
  TimeDate& clock = rec.TDInfo;
  clock.CurrentYear(2000);
  clock.CurrentMonth(1);
  clock.CurrentDay(1);
  clock.CurrentHour(0);
  clock.CurrentMin(0);
  clock.CurrentSec(0);
  clock.DaylightRegion(0);  // off
  clock.TimeZoneIdx(13);    // GMT
  rec.TransmitSpiTime(0);   // not the master clock
}

void SetUpPorts(MuxData& rec) {
  // 9600 baud on both ports. Port 1 counts from 1200 baud on triplex models, else from 9600.
  rec.BaudRatePPC(rec.identity().IsTriplex() ? 3 : 0);
  rec.BaudRate(3);
  rec.NetworkAddr(0);
  for (int k = 0; k < kMostCameras; ++k) {
    rec.TelEnable(k, 0);
    rec.TelAC_DC(k, 0);
  }
  rec.Tel_options(0);
  rec.PresetMode(0);
  rec.PresetPGM(0);  // enabled
  rec.DvrArchiveOn(0);
  rec.DvrArchiveSet(0);  // no overwrite
  rec.ArchPortSelect(0);
  rec.LumacastCDW(0);
  rec.PlaybackOld(0);
  rec.MuxLang(0);  // English
  rec.LockKeyBoard(0);
}

}  // namespace

void ApplyFactorySettings(MuxData& rec) {
  SetUpCameras(rec);
  SetUpMotionDetection(rec);
  SetUpAlarmInputs(rec);
  SetUpAlarmHandling(rec);
  SetUpNotification(rec);
  SetUpRecording(rec);
  SetUpSchedules(rec);
  SetUpMonitors(rec);
  SetUpClock(rec);
  SetUpPorts(rec);
}

}  // namespace quorvel
