#include "ui/setup/frm_camera_setup.h"

#include <string>

namespace quorvel {

frm_CameraSetup::frm_CameraSetup(Context& context)
    : Editor(context, "frm_CameraSetup", txt::kCameraSetup, {CommitCamera}) {
  ShowWhatTheModelHas();
  BindCameras();
  BindDisplaySettings();
  Arrange();
  Open(cmd_OK, cmd_Cancel, &SSTab1);
}

void frm_CameraSetup::BindCameras() {
  const bool triplex = Id().IsTriplex();
  const int least = triplex ? 50 : 1;  // gain as shown; it is stored as 0
  const int most = triplex ? 150 : 10;
  Choices gains = Choices::Numbers(least, most, 0);
  gains.OthersRead([least](int value) { return std::to_string(value + least); });
  const auto& words = Words();
  Choices positions{{0, words.cnstrTop}, {1, words.cnstrBottom}};
  positions.Reads(2, words.cnstrBottom);

  cameras_.Check(m_CameraCovert, OfCamera(&Cameras::covert));
  cameras_.Check(m_CameraDisable, OfCamera(&Cameras::disable));
  for (TextBox& box : m_CameraTitle) box.SetMaxLength(kTitleLength);
  m_CameraTitle.SetSpokenNames(Frame2.Caption());
  cameras_.Texts(m_CameraTitle, lbTitleNote, OfCamera(&Cameras::title)).Lists([](int c) {
    return c + 1;
  });
  cameras_.Check(m_CameraColor, OfCamera(&Cameras::color)).WrittenWhen(!triplex);
  gains_.Column(lbSnlGain.Caption(), lstSnlGain, gains, OfCamera(&Cameras::SignalGain));
  text_positions_.Column(lbTextpos.Caption(), lstTextpos, positions,
                         OfCamera(&Cameras::TextPos).OtherwiseWritten(1));
  for (LineGrid* const grid : {&gains_, &text_positions_}) {
    grid->NameByTitles([this](int camera) { return m_CameraTitle(camera).Text(); });
  }

  for (int c = 0; c < kMostCameras; ++c) lblCam(c).SetCaption(std::to_string(c + 1));
  m_CameraCovert.SetSpokenNames(Frame3.Caption());
  m_CameraColor.SetSpokenNames(Frame4.Caption());
  m_CameraDisable.SetSpokenNames(Frame1.Caption());
  MSFG_SnlGain.SetSpokenName(lbSnlGain.Caption());
  MSFG_TextPos.SetSpokenName(lbTextpos.Caption());
}

void frm_CameraSetup::BindDisplaySettings() {
  const auto& words = Words();
  for (int i = 0; i < kMonitors; ++i) {
    const std::string monitor = Objects().objstMon + " " + static_cast<char>('A' + i);
    m_TitleDisplay(i).SetCaption(monitor);
    chkPubMon(i).SetCaption(monitor);
  }
  const int monitors = Id().IsTriplexMatrix() ? kMonitors : 2;
  for (int i = monitors; i < kMonitors; ++i) m_TitleDisplay(i).SetEnabled(false);

  Each(monitors).Check(m_TitleDisplay, At(&MuxData::TitleDisplay));
  FieldGroup& display = Once();
  display
      .Options(optFldFrame, {{0, words.cnstrField}, {1, words.cnstrFrame}},
               At(&MuxData::FullScrResolution).Otherwise(0))
      .WrittenWhen(Id().IsMultiplexer());
  display.Options(optPwrDis, OffOn(), At(&MuxData::AutoDisable).Otherwise(0))
      .WrittenWhen(!Id().LiteRecordModel);
  display.Options(optMonBSvhs, DisableEnable(), At(&MuxData::SVHS_MonB).Otherwise(0))
      .WrittenWhen(frmSVHSMonB.Visible());
  Each(kMonitors).Check(chkPubMon, At(&MuxData::PubMonitor)).WrittenWhen(frmPubMonitor.Visible());
}

void frm_CameraSetup::Arrange() {
  Layout titles{Layout::Kind::kLines, nullptr, {}};
  for (int c = 0; c < kMostCameras; ++c)
    titles.parts.push_back(LabelledRow(lblCam(c), m_CameraTitle(c)));
  SetLayout(Column(
      Tabs(SSTab1,
           Page{Text(txt::kCameraSetup),
                Column(Row(Framed(Frame2, std::move(titles)), Framed(Frame3, Lines(m_CameraCovert)),
                           Framed(Frame4, Lines(m_CameraColor)),
                           Framed(Frame1, Lines(m_CameraDisable)), Stretch()),
                       lbTitleNote)},
           Page{Text(txt::kCameraAgc), Row(MSFG_SnlGain, Labelled(lbSnlGain, lstSnlGain))},
           Page{Text(txt::kOtherSettings),
                Column(Row(MSFG_TextPos, Labelled(lbTextpos, lstTextpos),
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
  optPwrDis.SetEnabled(!id.LiteRecordModel);
}

}  // namespace quorvel
