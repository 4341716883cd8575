#include "ui/setup/alarm/alarm_settings_page.h"

namespace quorvel {

namespace {

constexpr int kTimedOut = 2;
constexpr int kLongestTimeOut = 250;  // seconds
constexpr int kTimeOutLines = 6;
constexpr int kLongestPreAlarm = 5;  // seconds

}  // namespace

AlarmSettingsPage::AlarmSettingsPage(Editor& editor, const AlarmFeatures& features)
    : EditorPage(editor), features_(features) {
  const auto& words = Words();
  const bool free = !features_.fixed_settings;
  FieldGroup& settings = Once();
  settings.Options(opt_AlFullScr, NoYes(), At(&MuxData::FullscrAlm)).WrittenWhen(free);
  settings.Options(opt_AlRecMode, AlarmRecordModes(), At(&MuxData::AlmRecMode))
      .When(!features_.archive_in_record_mode)
      .WrittenWhen(free);
  settings.Options(opt_Rl1Conf, ClosedOpen(), At(&MuxData::Relay1Conf), Label11.Caption())
      .WrittenWhen(free);
  settings.Options(opt_Rl2Conf, ClosedOpen(), At(&MuxData::Relay2Conf), Label12.Caption())
      .WrittenWhen(free);
  BindBuzzers(settings);
  BindLatch(settings);
  if (features_.archive_in_record_mode) {
    Frame2.SetCaption(Text(txt::kArchiveAlarm));
    settings
        .Options(opt_AlRecMode,
                 {{Choices::kNoValue, words.cnstrInter},
                  {0, words.cnstrDisable},
                  {1, words.cnstrEnable}},
                 At(&MuxData::DvrArchAlm).Otherwise(1), lbTemp.Caption())
        .WrittenWhen(features_.record_mode);
  }
  ShowWhatTheModelHas();
}

void AlarmSettingsPage::BindLatch(FieldGroup& settings) {
  settings.Options(
      opt_AlLatch,
      {{0, Text(txt::kLatched)}, {1, Text(txt::kTransparent)}, {kTimedOut, Text(txt::kTimedOut)}},
      At(&MuxData::AlarmMode).OtherwiseWritten(kTimedOut));
  lstTimeOut.SetRows(kTimeOutLines);
  lstTimeOut.SetLabel(Label17);
  time_out_ = &settings.List(lstTimeOut, Choices::Numbers(1, kLongestTimeOut, 0),
                             At(&MuxData::AlarmTimeOut));
  time_out_->WrittenWhen([this] { return opt_AlLatch(kTimedOut).Selected(); });
  for (OptionButton& option : opt_AlLatch) option.on_click = [this] { ShowTimeOut(); };
  AfterFill([this] { ShowTimeOut(); });
}

std::array<AlarmSettingsPage::BuzzerLine, AlarmSettingsPage::kBuzzers>
AlarmSettingsPage::Buzzers() {
  return {{{Label13, Frame8, opt_GlBuz, true},
           {Label14, Frame9, opt_LiveAlBuz, features_.event_buzzers},
           {Label15, Frame10, opt_VLossBuz, features_.event_buzzers},
           {Label16, Frame11, opt_PlayBuz, features_.event_buzzers},
           {lbDskBuz, frameDskBuz, opt_DiskBuz, features_.disk_buzzer}}};
}

void AlarmSettingsPage::BindBuzzers(FieldGroup& settings) {
  int number = 0;
  const std::string fixed = Text(kTextFixedOnThisModel);
  for (const BuzzerLine& it : Buzzers()) {
    const bool can_be_changed = number == 0 || !features_.fixed_settings;
    settings
        .Options(it.options, OffOn(), At(&MuxData::Buzzer, number++).Otherwise(0),
                 it.label.Caption())
        .WrittenWhen(can_be_changed && it.shown && features_.buzzers);
    it.label.SetVisible(it.shown);
    it.frame.SetVisible(it.shown);
    it.options.SetEnabled(can_be_changed, fixed);
  }
}

void AlarmSettingsPage::ShowWhatTheModelHas() {
  Frame2.SetVisible(features_.record_mode);
  lbTemp.SetVisible(features_.archive_in_record_mode);
  opt_AlRecMode(0).SetVisible(!features_.archive_in_record_mode);
  Frame3.SetVisible(features_.full_screen);
  Frame4.SetVisible(features_.relays);
  Label12.SetVisible(features_.second_relay);
  Frame7.SetVisible(features_.second_relay);
  Frame5.SetVisible(features_.buzzers);
  const std::string fixed = Text(kTextFixedOnThisModel);
  opt_AlFullScr.SetEnabled(!features_.fixed_settings, fixed);
  opt_Rl1Conf.SetEnabled(!features_.fixed_settings, fixed);
  opt_Rl2Conf.SetEnabled(!features_.fixed_settings, fixed);
  if (features_.full_screen_always) opt_AlFullScr(0).SetEnabled(false, fixed);
  for (Widget* const it : std::initializer_list<Widget*>{&Label17, &lstTimeOut, &Label18}) {
    it->SetKeepsPlace(true);  // the page does not jump as the time-out comes and goes
  }
}

Layout AlarmSettingsPage::Contents() {
  Layout buzzers = Column();
  for (const BuzzerLine& it : Buzzers()) {
    buzzers.parts.push_back(Row(it.label, Framed(it.frame, Row(it.options))));
  }
  return Row(Column(Framed(Frame1, Row(Column(opt_AlLatch, Stretch()),
                                       Column(Label17, lstTimeOut, Label18))),
                    Framed(Frame2, Column(lbTemp, opt_AlRecMode)),
                    Framed(Frame3, Row(opt_AlFullScr)), Stretch()),
             Column(Framed(Frame4, Column(Row(Label11, Framed(Frame6, Row(opt_Rl1Conf))),
                                          Row(Label12, Framed(Frame7, Row(opt_Rl2Conf))))),
                    Framed(Frame5, std::move(buzzers)), Stretch()),
             Stretch());
}

void AlarmSettingsPage::ShowTimeOut() {
  const bool timed = opt_AlLatch(kTimedOut).Selected();
  Label17.SetVisible(timed);
  lstTimeOut.SetVisible(timed);
  Label18.SetVisible(timed);
  if (timed) time_out_->PutBack(0);  // the stored time-out
}

AlarmRecorderPage::AlarmRecorderPage(Editor& editor, const AlarmFeatures& features)
    : EditorPage(editor, features.recorder_page) {
  frmPreAlDur.SetVisible(Exists());
  frmArchAL.SetVisible(Exists());
  FieldGroup& settings = Once();
  settings.Options(optArchAL, DisableEnable(), At(&MuxData::DvrArchAlm).Otherwise(1),
                   frmArchAL.Caption());
  lstPreAlDur.SetLabel(lbTime);
  lstPreAlDur.SetSpokenName(frmPreAlDur.Caption());
  // Without a choice the shortest: a recorder has no other durations.
  settings.List(lstPreAlDur, Choices::Numbers(1, kLongestPreAlarm, 1),
                At(&MuxData::PreAlDuration).OtherwiseWritten(1));
}

Layout AlarmRecorderPage::Contents() {
  return Row(Framed(frmPreAlDur, Row(lstPreAlDur, Column(lbTime, Stretch()))),
             Framed(frmArchAL, Column(lbArchAL, optArchAL, Stretch())), Stretch());
}

}  // namespace quorvel
