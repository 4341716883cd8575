#include "ui/setup/alarm/alarm_settings_page.h"

#include "ui/editing/choices.h"
#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

constexpr int kTimedOut = 2;
constexpr int kLongestTimeOut = 250;  // seconds
constexpr int kTimeOutLines = 6;
constexpr int kGlobalBuzzer = 0;

// Places of the archive alarm among the record modes.
constexpr int kArchiveOff = 1;
constexpr int kArchiveOn = 2;

}  // namespace

AlarmSettingsPage::AlarmSettingsPage(Editor& editor, const AlarmFace& face)
    : EditorPage(editor),
      face_(face),
      Frame1(editor, "Frame1", Text(61)),
      opt_AlLatch(editor, "opt_AlLatch", 3),
      Label17(editor, "Label17", Text(63)),
      lstTimeOut(editor, "lstTimeOut"),
      Label18(editor, "Label18", Text(57)),
      Frame2(editor, "Frame2", Text(62)),
      lbTemp(editor, "lbTemp", Text(102) + " 2"),
      opt_AlRecMode(editor, "opt_AlRecMode", 3),
      Frame3(editor, "Frame3", Text(79)),
      opt_AlFullScr(editor, "opt_AlFullScr", 2),
      Frame4(editor, "Frame4", Text(103)),
      Label11(editor, "Label11", Text(102) + " 1 :"),
      Frame6(editor, "Frame6"),
      opt_Rl1Conf(editor, "opt_Rl1Conf", 2),
      Label12(editor, "Label12", Text(102) + " 2 :"),
      Frame7(editor, "Frame7"),
      opt_Rl2Conf(editor, "opt_Rl2Conf", 2),
      Frame5(editor, "Frame5", Text(70)),
      Label13(editor, "Label13", Text(80)),
      Frame8(editor, "Frame8"),
      opt_GlBuz(editor, "opt_GlBuz", 2),
      Label14(editor, "Label14", Text(87)),
      Frame9(editor, "Frame9"),
      opt_LiveAlBuz(editor, "opt_LiveAlBuz", 2),
      Label15(editor, "Label15", Text(113)),
      Frame10(editor, "Frame10"),
      opt_VLossBuz(editor, "opt_VLossBuz", 2),
      Label16(editor, "Label16", Text(94)),
      Frame11(editor, "Frame11"),
      opt_PlayBuz(editor, "opt_PlayBuz", 2),
      lbDskBuz(editor, "lbDskBuz", Text(330)),
      frameDskBuz(editor, "frameDskBuz"),
      opt_DiskBuz(editor, "opt_DiskBuz", 2) {
  CaptionGroups();
  ShowWhatTheModelHas();
}

std::array<AlarmSettingsPage::BuzzerGroup, AlarmSettingsPage::kBuzzers>
AlarmSettingsPage::Buzzers() {
  return {{{0, Label13, Frame8, opt_GlBuz, true},
           {1, Label14, Frame9, opt_LiveAlBuz, face_.event_buzzers},
           {2, Label15, Frame10, opt_VLossBuz, face_.event_buzzers},
           {3, Label16, Frame11, opt_PlayBuz, face_.event_buzzers},
           {4, lbDskBuz, frameDskBuz, opt_DiskBuz, face_.disk_buzzer}}};
}

Layout AlarmSettingsPage::Contents() {
  Layout buzzers = Column();
  for (const BuzzerGroup& it : Buzzers()) {
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

void AlarmSettingsPage::CaptionGroups() {
  const auto& words = Words();
  opt_AlLatch.SetCaptions({Text(85), Text(110), Text(108)});
  opt_AlRecMode.SetCaptions({words.cnstrInter, words.cnstrExcl, words.cnstrNoChg});
  opt_AlFullScr.SetCaptions({words.cnstrNo, words.cnstrYes});
  opt_Rl1Conf.SetCaptions({words.cnstrClose, words.cnstrOpen});
  opt_Rl2Conf.SetCaptions({words.cnstrClose, words.cnstrOpen});
  opt_Rl1Conf.SetSpokenNames(Label11.Caption());
  opt_Rl2Conf.SetSpokenNames(Label12.Caption());
  for (const BuzzerGroup& it : Buzzers()) {
    it.options.SetCaptions({words.cnstrOFF, words.cnstrON});
    it.options.SetSpokenNames(it.label.Caption());
  }
  if (face_.archive_in_record_mode) {
    Frame2.SetCaption(Text(66));
    opt_AlRecMode(kArchiveOff).SetCaption(words.cnstrDisable);
    opt_AlRecMode(kArchiveOn).SetCaption(words.cnstrEnable);
    opt_AlRecMode.SetSpokenNames(lbTemp.Caption());
  }
}

void AlarmSettingsPage::ShowWhatTheModelHas() {
  Frame2.SetVisible(face_.record_mode);
  lbTemp.SetVisible(face_.archive_in_record_mode);
  opt_AlRecMode(0).SetVisible(!face_.archive_in_record_mode);
  Frame3.SetVisible(face_.full_screen);
  Frame4.SetVisible(face_.relays);
  Label12.SetVisible(face_.second_relay);
  Frame7.SetVisible(face_.second_relay);
  Frame5.SetVisible(face_.buzzers);
  for (const BuzzerGroup& it : Buzzers()) {
    it.label.SetVisible(it.shown);
    it.frame.SetVisible(it.shown);
    it.options.SetEnabled(!face_.fixed_settings);
  }
  opt_GlBuz.SetEnabled(true);
  opt_AlFullScr.SetEnabled(!face_.fixed_settings);
  opt_Rl1Conf.SetEnabled(!face_.fixed_settings);
  opt_Rl2Conf.SetEnabled(!face_.fixed_settings);
  if (face_.full_screen_always) opt_AlFullScr(0).SetEnabled(false);
  for (Widget* const it : std::initializer_list<Widget*>{&Label17, &lstTimeOut, &Label18}) {
    it->SetKeepsPlace(true);  // the page does not jump as the time-out comes and goes
  }
}

void AlarmSettingsPage::FillRecordMode() {
  if (face_.archive_in_record_mode) {
    opt_AlRecMode.Select(Record().DvrArchAlm() != 0 ? kArchiveOn : kArchiveOff);
  } else {
    opt_AlRecMode.Select(Record().AlmRecMode());
  }
}

void AlarmSettingsPage::Fill() {
  MuxData& record = Record();
  FillRecordMode();
  lstTimeOut.SetRows(kTimeOutLines);
  lstTimeOut.SetItems(NumberTexts(1, kLongestTimeOut));
  lstTimeOut.SetLabel(Label17);
  opt_AlLatch.Select(record.AlarmMode());
  for (OptionButton& option : opt_AlLatch) option.on_click = [this] { ShowTimeOut(); };
  ShowTimeOut();
  // Not an edit: these models do so in any case.
  if (face_.full_screen_always) record.FullscrAlm(true);
  opt_AlFullScr.Select(record.FullscrAlm() ? 1 : 0);
  opt_Rl1Conf.Select(record.Relay1Conf() ? 1 : 0);
  opt_Rl2Conf.Select(record.Relay2Conf() ? 1 : 0);
  for (const BuzzerGroup& it : Buzzers()) {
    it.options.Select(record.Buzzer(it.number) == 1 ? 1 : 0);
  }
}

void AlarmSettingsPage::ShowTimeOut() {
  const bool timed = opt_AlLatch(kTimedOut).Selected();
  Label17.SetVisible(timed);
  lstTimeOut.SetVisible(timed);
  Label18.SetVisible(timed);
  if (timed) lstTimeOut.Select(Record().AlarmTimeOut());
}

void AlarmSettingsPage::Write() {
  WriteGroups();
  WriteLatch();
  if (face_.archive_in_record_mode && face_.record_mode) {
    Record().DvrArchAlm(opt_AlRecMode(kArchiveOff).Selected() ? 0 : 1);
  }
}

void AlarmSettingsPage::WriteGroups() {
  MuxData& record = Record();
  if (!face_.fixed_settings) {
    record.FullscrAlm(opt_AlFullScr(1).Selected());
    record.AlmRecMode(static_cast<Byte>(Chosen(opt_AlRecMode, record.AlmRecMode())));
    record.Relay1Conf(opt_Rl1Conf(1).Selected());
    record.Relay2Conf(opt_Rl2Conf(1).Selected());
  }
  for (const BuzzerGroup& it : Buzzers()) {
    if (face_.fixed_settings && it.number != kGlobalBuzzer) continue;
    if (it.shown && face_.buzzers) record.Buzzer(it.number, it.options(1).Selected() ? 1 : 0);
  }
}

void AlarmSettingsPage::WriteLatch() {
  MuxData& record = Record();
  const int mode = Chosen(opt_AlLatch, kTimedOut);
  record.AlarmMode(static_cast<Byte>(mode));
  if (mode == kTimedOut) {
    record.AlarmTimeOut(static_cast<Byte>(Chosen(lstTimeOut, record.AlarmTimeOut())));
  }
}

}  // namespace quorvel
