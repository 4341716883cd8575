#include "ui/record/full/recorder_settings_page.h"

#include "ui/context.h"
#include "ui/record/auto_delete.h"
#include "ui/record/record_rates.h"

namespace quorvel {

namespace {

/// Turbo that is on in any way reads as on, and stays as it is until the user switches it.
SettingRef TurboMode() {
  return Converted(
      At(&MuxData::Rec120sp), [](MuxData&, int, int stored) { return stored == 0 ? 0 : 1; },
      [](int shown, int stored) { return (shown == 0) == (stored == 0) ? stored : shown; });
}

void ClearTurboRates(MuxData& record) {
  for (int camera = 0; clsEvents* const events = record.CamEvent(camera); ++camera) {
    if (events->Event_RRIndex() == kTurboRate) events->Event_RRIndex.Set(0);
    if (events->TL_RRIndex() == kTurboRate) events->TL_RRIndex.Set(0);
    if (events->Act_RRIndex() == kTurboRate) events->Act_RRIndex.Set(0);
  }
  if (record.Alarm_Rec_Index() == kTurboRate) record.Alarm_Rec_Index.Set(0);
}

}  // namespace

RecorderSettingsPage::RecorderSettingsPage(Editor& editor, const RecordFeatures& features,
                                           const RateChoices& rates, FieldGroup& lock)
    : EditorPage(editor, features.recorder_pages) {
  if (!Exists()) return;
  lock.Options(optTriplexRLk, OffOn(), At(&MuxData::RecLock).Otherwise(0))
      .When(features.triplex_settings);
  frameRecLock.SetVisible(features.triplex_settings);
  FieldGroup& settings = Once();
  settings.List(lstAlRRate, rates.of_alarms,
                Converted(
                    At(&MuxData::Alarm_Rec_Index), [](MuxData&, int, int rate) { return rate; },
                    [this](int rate, int) { return RateToStore(rate); }));
  BindRecordMode(settings, features.triplex_settings);
  cbAutoDelete.SetSpokenName(frameAutoDelete.Caption());
  settings.List(cbAutoDelete,
                AutoDeleteChoices(Record().PlayRecLnk(), Ctx().DeviceFirmware(), Words().cnstrOFF,
                                  Text(txt::kDays)),
                At(&MuxData::PlayRecLnk));
  BindTurbo(features.turbo_mode);
}

void RecorderSettingsPage::BindRecordMode(FieldGroup& settings, bool third_mode) {
  Choices modes{{0, Text(third_mode ? txt::kNoOverwrite : txt::kAutoOverwrite)},
                {1, Text(third_mode ? txt::kWriteOnce : txt::kUserConfirm)}};
  if (third_mode) modes.Add(2, Text(txt::kContinuous));
  optRecMode(2).SetVisible(third_mode);
  settings.Options(optRecMode, modes, At(&MuxData::DvrRecMode).Otherwise(0));
}

void RecorderSettingsPage::BindTurbo(bool exists) {
  FieldGroup& settings = Once();
  turbo_ = &settings.Options(opTurboMode, OffOn(), TurboMode()).When(exists);
  settings.Then([this](MuxData& record) {
    if (turbo_->Differs(0)) ClearTurboRates(record);  // also those that are not to be seen
  });
  frameTurbo.SetVisible(exists);
}

int RecorderSettingsPage::RateToStore(int rate) const {
  return rate == kTurboRate && turbo_->Differs(0) ? 0 : rate;
}

Layout RecorderSettingsPage::Contents() {
  return Row(Labelled(lbAlRRate, lstAlRRate),
             Column(Framed(frameRecMode, Column(optRecMode)),
                    Framed(frameRecLock, Row(optTriplexRLk)), Stretch()),
             Column(Framed(frameAutoDelete, Row(cbAutoDelete)),
                    Framed(frameTurbo, Row(opTurboMode)), Stretch()),
             Stretch());
}

}  // namespace quorvel
