#include "ui/record/lite/lite_settings_page.h"

#include <initializer_list>

#include "ui/context.h"
#include "ui/record/auto_delete.h"

namespace quorvel {

namespace {

using L = LiteCameraSettings;

// Seconds.
constexpr int kLongestPreEvent = 5;
constexpr int kLongestPostEvent = 200;
constexpr int kLongestPreAlarm = 5;
constexpr int kPostEventLines = 4;

}  // namespace

LiteSettingsPage::LiteSettingsPage(Editor& editor, FieldGroup& lock)
    : EditorPage(editor), cameras_(editor, features_, Label2) {
  Label2.SetCaptions(
      {Text(txt::kRecordLock), Text(txt::kRecordQuality), Text(txt::kTimelapseRecordRate),
       Text(txt::kActivityRecordRate), Text(txt::kEventRecordRate), Text(txt::kAlarmRecordRate),
       Text(txt::kPreEventDuration), Text(txt::kPostEventDuration), Text(txt::kPreAlarmDuration),
       Text(txt::kAlarmRecordMode), Text(txt::kActivityLinkToEvent)});
  BindEvents();
  BindDevice(lock);
}

void LiteSettingsPage::BindEvents() {
  sldPreEv.SetRange(0, kLongestPreEvent);
  lbPreEv.SetRoomFor({std::to_string(kLongestPreEvent)});
  lstPostEv.SetRows(kPostEventLines);
  FieldGroup& cameras = cameras_.Lines();
  const bool exist = features_.event_settings;
  cameras.Slide(sldPreEv, lbPreEv, OfEvents(&clsEvents::PreEvDuration)).When(exist);
  cameras
      .List(lstPostEv, Choices::Numbers(0, kLongestPostEvent, 0),
            OfEvents(&clsEvents::PostEvDuration))
      .When(exist);
  cameras.List(cbActLnk, NoYes(), OfEvents(&clsEvents::LnkToEvent)).When(exist);
  for (Widget* const it : std::initializer_list<Widget*>{&Label2(L::kPreEvent), &sldPreEv, &lbPreEv,
                                                         &Label2(L::kPostEvent), &lstPostEv,
                                                         &Label2(L::kActivityLink), &cbActLnk}) {
    it->SetVisible(exist);
  }
}

void LiteSettingsPage::BindDevice(FieldGroup& lock) {
  lock.List(cbRecLock, OffOn(), At(&MuxData::RecLock)).When(features_.record_lock);
  Label2(L::kLock).SetVisible(features_.record_lock);
  cbRecLock.SetVisible(features_.record_lock);

  sldPreAl.SetRange(1, kLongestPreAlarm);
  lbPreAl.SetRoomFor({std::to_string(kLongestPreAlarm)});
  const std::string off = Words().cnstrOFF;
  const std::string days = Text(txt::kDays);
  FieldGroup& alarms = Once().AlsoUnder(CommitAlarm);
  alarms.List(cbAlRecMode, AlarmRecordModes(), At(&MuxData::AlmRecMode));
  alarms.Slide(sldPreAl, lbPreAl, At(&MuxData::PreAlDuration));
  alarms.List(cbAutoDelete,
              AutoDeleteChoices(Record().PlayRecLnk(), Ctx().DeviceFirmware(), off, days),
              At(&MuxData::PlayRecLnk));
}

Layout LiteSettingsPage::Contents() {
  sldPreEv.SetLabel(Label2(L::kPreEvent));
  sldPreAl.SetLabel(Label2(L::kPreAlarm));
  return Column(cameras_.Contents(),
                Row(Column(Label2(L::kPreEvent), Row(sldPreEv, lbPreEv),
                           Labelled(Label2(L::kActivityLink), cbActLnk), Stretch()),
                    Labelled(Label2(L::kPostEvent), lstPostEv),
                    Column(Labelled(Label2(L::kAlarmMode), cbAlRecMode), Label2(L::kPreAlarm),
                           Row(sldPreAl, lbPreAl), Stretch()),
                    Column(Labelled(Label2(L::kLock), cbRecLock),
                           Labelled(lbAutoDelete, cbAutoDelete), Stretch()),
                    Stretch()));
}

}  // namespace quorvel
