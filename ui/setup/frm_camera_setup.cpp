#include "ui/setup/frm_camera_setup.h"

#include <algorithm>

#include "ui/editing/number_texts.h"
#include "ui/editing/numbered_grid.h"

namespace quorvel {

namespace {

constexpr int kSettingColumn = 1;

/// A title as it can be edited: up to its first zero byte, without blanks at its end.
std::string_view EditableTitle(std::string_view title) {
  title = title.substr(0, title.find('\0'));
  return title.substr(0, title.find_last_not_of(' ') + 1);
}

}  // namespace

frm_CameraSetup::frm_CameraSetup(Context& context)
    : Editor(context, "frm_CameraSetup", CommitCamera) {
  SetCaption(Text(121));
  ArrangeControls();
  BuildGrids();
  ShowWhatTheModelHas();
  NameForScreenReaders();
  BindButtons(cmd_OK, cmd_Cancel);
  if (BelongsToImage()) {
    FillCameras();
    FillDisplaySettings();
  }
  gain_editing_.GoTo(1, kSettingColumn);
  text_position_editing_.GoTo(1, kSettingColumn);
  SSTab1.on_change = [this] { TabChanged(); };
}

void frm_CameraSetup::ArrangeControls() {
  Frame2.SetCaption(Text(148));
  Frame3.SetCaption(Text(126));
  Frame4.SetCaption(Text(124));
  Frame1.SetCaption(Text(73));
  Frame6.SetCaption(Text(149));
  Frame5.SetCaption(Text(130));
  Frame7.SetCaption(Text(139));
  frmSVHSMonB.SetCaption(Text(323));
  frmPubMonitor.SetCaption(Text(322));

  Layout titles{Layout::Kind::kLines, nullptr, {}};
  for (int c = 0; c < kMostCameras; ++c) {
    lblCam(c).SetCaption(std::to_string(c + 1));
    titles.parts.push_back(Row(lblCam(c), m_CameraTitle(c)));
  }
  SetLayout(
      Column(Tabs(SSTab1,
                  Page{Text(121),
                       Row(Framed(Frame2, std::move(titles)), Framed(Frame3, Lines(m_CameraCovert)),
                           Framed(Frame4, Lines(m_CameraColor)),
                           Framed(Frame1, Lines(m_CameraDisable)), Stretch())},
                  Page{Text(120), Row(MSFG_SnlGain, lstSnlGain)},
                  Page{Text(92), Column(Row(MSFG_TextPos, lstTextpos,
                                            Framed(Frame6, Column(m_TitleDisplay, Stretch()))),
                                        Row(Framed(Frame5, Column(optFldFrame, Stretch())),
                                            Framed(Frame7, Column(optPwrDis, Stretch())),
                                            Framed(frmSVHSMonB, Column(optMonBSvhs, Stretch())),
                                            Framed(frmPubMonitor, Column(chkPubMon)), Stretch()))}),
             Row(Stretch(), cmd_OK, cmd_Cancel)));
}

void frm_CameraSetup::ShowWhatTheModelHas() {
  const Identity& id = Id();
  const bool basic_variant = id.VariantChar == 'A';
  const bool public_monitors = id.IsTriplex() && id.VariantChar == '1' && id.MatrixModel == 1;

  Frame1.SetVisible(!basic_variant);
  Frame4.SetVisible(!basic_variant);
  Frame3.SetVisible(!(id.LiteRecordModel && id.Model4L));
  Frame5.SetVisible(id.IsMultiplexer() && !basic_variant);
  frmPubMonitor.SetVisible(public_monitors);
  frmSVHSMonB.SetVisible(id.IsTriplex() && !id.LiteRecordModel);

  lblCam.ShowFirst(id.MaxCam);
  m_CameraTitle.ShowFirst(id.MaxCam);
  m_CameraCovert.ShowFirst(id.MaxCam);
  m_CameraColor.ShowFirst(id.MaxCam);
  m_CameraDisable.ShowFirst(id.MaxCam);
  m_CameraColor.SetEnabled(!id.IsTriplex());
  for (int i = 2; i < kMonitors; ++i) m_TitleDisplay(i).SetEnabled(id.IsTriplexMatrix());
  optPwrDis.SetEnabled(!id.LiteRecordModel);
}

void frm_CameraSetup::NameForScreenReaders() {
  SSTab1.SetSpokenName(Caption());
  m_CameraTitle.SetSpokenNames(Frame2.Caption());
  m_CameraCovert.SetSpokenNames(Frame3.Caption());
  m_CameraColor.SetSpokenNames(Frame4.Caption());
  m_CameraDisable.SetSpokenNames(Frame1.Caption());
  MSFG_SnlGain.SetSpokenName(Text(143));
  lstSnlGain.SetSpokenName(Text(143));
  MSFG_TextPos.SetSpokenName(Text(145));
  lstTextpos.SetSpokenName(Text(145));
}

void frm_CameraSetup::BuildGrids() {
  const std::string& camera = Ctx().texts.Objects().objstCam;
  BuildNumberedGrid(MSFG_SnlGain, Id().MaxCam, {camera, Text(143)});
  BuildNumberedGrid(MSFG_TextPos, Id().MaxCam, {camera, Text(145)});
  gain_editing_.Bind(kSettingColumn, lstSnlGain);
  text_position_editing_.Bind(kSettingColumn, lstTextpos);
}

void frm_CameraSetup::FillCameras() {
  const auto& words = Ctx().texts.Constants();
  const int least_gain = Id().IsTriplex() ? 50 : 1;  // as shown; it is stored as 0
  const int most_gain = Id().IsTriplex() ? 150 : 10;
  lstSnlGain.SetItems(NumberTexts(least_gain, most_gain));
  lstTextpos.SetItems({words.cnstrTop, words.cnstrBottom});
  for (int c = 0; c < Id().MaxCam; ++c) {
    const Cameras& camera = *Ctx().Record().CamInfo(c);
    m_CameraTitle(c).SetMaxLength(kTitleLength);
    titles_.emplace_back(m_CameraTitle(c), GetPlatform()).Show(EditableTitle(camera.title()));
    m_CameraCovert(c).SetChecked(camera.covert());
    m_CameraColor(c).SetChecked(camera.color());
    m_CameraDisable(c).SetChecked(camera.disable());
    const int gain = camera.SignalGain();
    MSFG_SnlGain.SetCell(c + 1, kSettingColumn, std::to_string(gain + least_gain), gain);
    const int position = camera.TextPos();
    text_position_editing_.SetItem(c + 1, kSettingColumn,
                                   position <= 2 ? std::min(position, 1) : Grid::kNone);
  }
}

void frm_CameraSetup::FillDisplaySettings() {
  const auto& words = Ctx().texts.Constants();
  MuxData& record = Ctx().Record();
  for (int i = 0; i < kMonitors; ++i) {
    const std::string monitor = Ctx().texts.Objects().objstMon + " " + static_cast<char>('A' + i);
    m_TitleDisplay(i).SetCaption(monitor);
    if (m_TitleDisplay(i).Enabled()) m_TitleDisplay(i).SetChecked(record.TitleDisplay(i) == 1);
    chkPubMon(i).SetCaption(monitor);
    chkPubMon(i).SetChecked(record.PubMonitor(i) == 1);
  }
  optFldFrame.SetCaptions({words.cnstrField, words.cnstrFrame});
  optFldFrame.Select(record.FullScrResolution() == 1 ? 1 : 0);
  optPwrDis.SetCaptions({words.cnstrOFF, words.cnstrON});
  optPwrDis.Select(record.AutoDisable() == 1 ? 1 : 0);
  optMonBSvhs.SetCaptions({words.cnstrDisable, words.cnstrEnable});
  optMonBSvhs.Select(record.SVHS_MonB() == 1 ? 1 : 0);
}

void frm_CameraSetup::TabChanged() {
  if (SSTab1.Current() == 1) gain_editing_.GoTo(1, kSettingColumn);
  if (SSTab1.Current() == 2) text_position_editing_.GoTo(1, kSettingColumn);
}

void frm_CameraSetup::WriteCamera(int c, Cameras& camera) {
  camera.covert(m_CameraCovert(c).Checked());
  camera.disable(m_CameraDisable(c).Checked());

  if (const auto title = titles_.at(static_cast<std::size_t>(c)).Typed()) {
    camera.title(title->substr(0, kTitleLength));
    Ctx().env.blocks.AddBlk(static_cast<Byte>(c + 1));
  }
  if (!Id().IsTriplex()) camera.color(m_CameraColor(c).Checked());
  const int gain = gain_editing_.ItemAt(c + 1, kSettingColumn);
  if (gain != Grid::kNone) camera.SignalGain(static_cast<Byte>(gain));
  camera.TextPos(text_position_editing_.ItemAt(c + 1, kSettingColumn) == 0 ? 0 : 1);
}

void frm_CameraSetup::WriteBack(MuxData& record) {
  for (int c = 0; c < Id().MaxCam; ++c) WriteCamera(c, *record.CamInfo(c));
  const int monitors = Id().IsTriplexMatrix() ? kMonitors : 2;
  for (int i = 0; i < monitors; ++i) record.TitleDisplay(i, m_TitleDisplay(i).Checked() ? 1 : 0);
  if (Id().IsMultiplexer()) record.FullScrResolution(optFldFrame(0).Selected() ? 0 : 1);
  if (!Id().LiteRecordModel) record.AutoDisable(optPwrDis(0).Selected() ? 0 : 1);
  if (frmSVHSMonB.Visible()) record.SVHS_MonB(optMonBSvhs(0).Selected() ? 0 : 1);
  if (frmPubMonitor.Visible()) {
    for (int i = 0; i < kMonitors; ++i) record.PubMonitor(i, chkPubMon(i).Checked() ? 1 : 0);
  }
}

}  // namespace quorvel
