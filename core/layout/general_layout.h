#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Block 59. Only a triplex matrix has monitors C to E; other models get their bits cleared.
template <class Pass>
void DisplaysAndAlarmMode(Pass& block, MuxData& rec, const Identity& id) {
  const int monitors = id.IsTriplexMatrix() ? 5 : 2;
  block.Bits(0, rec.TDInfo.TDDisplay, monitors);
  block.Flag(1, rec.TDInfo.TimeFormat);
  block.Byte(2, rec.TDInfo.DateFormat);
  block.Byte(3, rec.TransmitSpiTime);
  block.Byte(4, rec.MultiDwell);
  block.Byte(5, rec.FullDwell);
  block.Byte(6, rec.Normal_Rec_Index);
  block.Byte(7, rec.Alarm_Rec_Index);
  block.Bits(8, rec.TitleDisplay, monitors);
  block.Byte(9, rec.AlarmTimeOut);
  block.Byte(10, rec.AlarmMode);
  block.Byte(11, rec.ActIndicate);
  block.Byte(12, rec.NetworkAddr);
  if (id.IsMultiplexer()) {
    block.Byte(13, rec.PlaybackFormat);
  } else {
    block.Byte(13, rec.PreAlDuration);
    if constexpr (Pass::kReading) {
      if (rec.PreAlDuration() < 1 || rec.PreAlDuration() > 5) rec.PreAlDuration.Load(1);
    }
  }
  block.Byte(14, rec.Tel_options);
  block.Byte(15, rec.PresetMode);
}

/// Block 60: a VCR's settings on a multiplexer, a recorder's in the same bytes elsewhere.
template <class Pass>
void VcrOrRecorder(Pass& block, MuxData& rec, const Identity& id) {
  block.Byte(0, rec.PresetPGM);
  if (id.IsMultiplexer()) {
    block.Byte(1, rec.VCRType);
    block.Byte(2, rec.ExtCam_SwAct);
    block.Byte(3, rec.SwitchEdge);
    block.Byte(11, rec.FullScrResolution);
    block.Byte(14, rec.VCR_Signal_Level);
  } else {
    block.Byte(2, rec.DvrArchiveSet);
    block.Byte(3, rec.DvrArchiveOn);
    block.Byte(10, rec.BaudRatePPC);
    block.Byte(11, rec.DvrArchAlm);
    block.Byte(14, rec.DvrRecMode);
  }
  block.Byte(4, rec.MuxLang);
  block.Byte(5, rec.LockKeyBoard);
  block.BitFlags(6, rec.Relay1Conf, rec.Relay2Conf);
  block.Flag(7, rec.FullscrAlm);
  block.Byte(8, rec.BaudRate);
  block.Byte(9, rec.PlayRecLnk);
  block.Byte(12, rec.AutoDisable);
  block.Byte(13, rec.AlmRecMode);
  block.Byte(15, rec.RecLock);
}

/// Block 61: the clock, whose year byte counts from 2000 below 60 and from 1900 above. Years
/// behind 2059 are written as they are read, from 1900.
template <class Pass>
void Clock(Pass& block, MuxData& rec, const Identity& id) {
  constexpr int kFirstYearOf1900s = 60;
  TimeDate& clock = rec.TDInfo;
  block.Byte(0, clock.CurrentHour);
  block.Byte(1, clock.CurrentMin);
  block.Byte(2, clock.CurrentSec);
  block.Byte(3, clock.CurrentMonth);
  block.Byte(4, clock.CurrentDay);
  block.Coded(
      5, 0xFF, clock.CurrentYear,
      [](int year) { return year + (year < kFirstYearOf1900s ? 2000 : 1900); },
      [](int year) {
        return year - (year < 2000 || year >= 2000 + kFirstYearOf1900s ? 1900 : 2000);
      });
  block.CameraBits(6, Each(rec.TelEnable));
  block.Bytes(10, 4, Each(rec.Buzzer));
  if (id.IsTriplex()) {
    block.Byte(14, rec.LumacastCDW);
    // Not a dwell time here: 0 lets the device take the clock.
    block.ChangeMask(15, rec.PlayDwell);
    if constexpr (Pass::kReading) rec.PlayDwell.Load(1);
  } else {
    block.Byte(15, rec.PlayDwell);
  }
}

/// Block 183.
template <class Pass>
void VariantAndPlayback(Pass& block, MuxData& rec, Identity& id) {
  if (id.IsMultiplexer()) block.Byte(5, rec.PlaybackOld);
  if (id.IsTriplex()) block.Byte(8, rec.PlaybackOld);
  block.Device(7, id.VariantChar, "VariantChar");
}

/// Block 185: who the device is. Never encoded.
template <class Pass>
void DeviceIdentity(Pass& block, MuxData& rec, Identity& id) {
  block.Device(0, id.MaxCam, "MaxCam");
  // The model code is kept without its top bit, which ReadIdentity has cleared.
  if constexpr (!Pass::kReading) block.Device(1, id.ModelCode, "ModelCode");
  block.ZeroEndedText(2, 14, rec.MuxModelName);
}

}  // namespace quorvel::layout
