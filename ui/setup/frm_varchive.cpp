#include "ui/setup/frm_varchive.h"

namespace quorvel {

namespace {
// Values of ArchOption; with any other the recorder has both ports.
constexpr Byte kScsiOnly = 0;
constexpr Byte k1394Only = 3;
}  // namespace

frm_VArchive::frm_VArchive(Context& context)
    : Editor(context, "frm_VArchive", txt::kVideoArchiveSetup, {CommitArchive}) {
  const bool triplex = Id().IsTriplex();
  const bool background = triplex && !Id().LumacastModel;
  Frame1.SetVisible(!triplex);
  Frame2.SetVisible(!triplex);
  Frame3.SetVisible(background);
  Frame4.SetVisible(triplex);
  frmArchivePort.SetVisible(background && !Id().Model4L);

  FieldGroup& settings = Once();
  BindPort(settings);
  settings
      .Options(optArMode,
               {{0, Text(txt::kArchivingOff)},
                {1, Text(txt::kSelectiveArchive)},
                {2, Text(txt::kRestoreFromArchive)},
                {3, Text(txt::kBackgroundArchive)}},
               At(&MuxData::DvrArchiveOn))
      .When(!triplex);
  settings.Options(opBgArchive, OffOn(), At(&MuxData::DvrArchiveOn)).When(background);
  settings.Options(optCD, OffOn(), At(&MuxData::LumacastCDW), lbCD.Caption()).When(triplex);
  settings
      .Options(
          optArSetting,
          {{0, Text(txt::kNoOverwrite)}, {1, Text(txt::kWriteOnce)}, {2, Text(txt::kContinuous)}},
          At(&MuxData::DvrArchiveSet))
      .When(!triplex);
  SetLayout(
      Column(Row(Framed(Frame1, Column(optArMode)), Framed(Frame2, Column(optArSetting, Stretch())),
                 Framed(Frame3, Column(opBgArchive, Stretch())),
                 Framed(Frame4, Column(lbCD, optCD)), Stretch()),
             Framed(frmArchivePort, Row(lbArchPort, optArchPort, Stretch())),
             Row(Stretch(), cmdOK, cmdCancel)));
  Open(cmdOK, cmdCancel);
}

/// A recorder with one port shows that one, whatever is stored.
void frm_VArchive::BindPort(FieldGroup& settings) {
  const bool scsi = Id().ArchOption != k1394Only;
  const bool ieee1394 = Id().ArchOption != kScsiOnly;
  const SettingRef port = At(&MuxData::ArchPortSelect);
  settings
      .Options(optArchPort,
               {{scsi ? 0 : Choices::kNoValue, Text(txt::kScsi)},
                {ieee1394 ? 1 : Choices::kNoValue, "1394"}},
               scsi && ieee1394 ? port : port.Otherwise(scsi ? 0 : 1), lbArchPort.Caption())
      .When(frmArchivePort.Visible())
      .WrittenWhen(ieee1394);
  // With SCSI alone the port is not written: there is nothing to choose.
  const std::string why = Text(kTextOneArchivePort);
  optArchPort(0).SetEnabled(scsi && ieee1394, why);
  optArchPort(1).SetEnabled(ieee1394, why);
}

}  // namespace quorvel
