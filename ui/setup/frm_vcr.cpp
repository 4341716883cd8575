#include "ui/setup/frm_vcr.h"

#include <vector>

namespace quorvel {

namespace {

constexpr int kLastSignalLevel = 2;
constexpr int kLastFormat = 3;

/// The first two options share one code of `PlaybackFormat`, and `PlaybackOld` tells them apart;
/// the others leave it as it is.
SettingRef PlaybackOption() {
  return Joined(
      {At(&MuxData::PlaybackFormat), At(&MuxData::PlaybackOld)},
      [](const std::vector<int>& values) {
        if (values.at(0) != 0) return values.at(0) + 1;
        return values.at(1) == 0 ? 0 : 1;
      },
      [](int option, std::vector<int>& values) {
        values.at(0) = option < 2 ? 0 : option - 1;
        if (option < 2) values.at(1) = option;
      });
}

}  // namespace

frm_VCR::frm_VCR(Context& context) : Editor(context, "frm_VCR", txt::kVcrSetup, {CommitVCR}) {
  const std::string type = Text(txt::kType);
  FieldGroup& settings = Once();
  settings.Options(optVideo, {{0, Text(txt::kCompositeVideo)}, {1, Text(txt::kSvhsVideo)}},
                   At(&MuxData::VCRType).Otherwise(1));
  settings.Options(optSwInput, DisableEnable(), At(&MuxData::ExtCam_SwAct).Otherwise(1));
  settings.Options(optSwEdge, {{0, Text(txt::kPositiveEdge)}, {1, Text(txt::kNegativeEdge)}},
                   At(&MuxData::SwitchEdge).Otherwise(1));
  settings.Options(optSignal, {{0, type + " A"}, {1, type + " B"}, {2, type + " C"}},
                   At(&MuxData::VCR_Signal_Level).OtherwiseWritten(kLastSignalLevel));
  settings.Options(optPlayFmt, PlaybackFormats(), PlaybackOption().OtherwiseWritten(kLastFormat));
  const bool basic = Id().VariantChar == 'A';
  for (Frame* const frame : {&Frame2, &Frame3, &Frame4}) frame->SetVisible(!basic);
  SetLayout(Column(
      Row(Column(Framed(Frame1, Column(optVideo)), Framed(Frame5, Column(optPlayFmt)), Stretch()),
          Column(Framed(Frame2, Column(optSwInput)), Framed(Frame3, Column(optSwEdge)), Stretch()),
          Column(Framed(Frame4, Column(optSignal)), Stretch()), Stretch()),
      Row(Stretch(), cmdOK, cmdCancel)));
  Open(cmdOK, cmdCancel);
}

/// Whatever the older device holds besides 0 stands for the second format, and becomes its code.
void frm_VCR::WriteRest(MuxData& record) {
  if (record.PlaybackFormat() == 0 && record.PlaybackOld() > 1) record.PlaybackOld(1);
}

Choices frm_VCR::PlaybackFormats() const {
  const auto formats = [this](int first, int second, int third) -> Choices {
    return {{0, Text(first)}, {1, Text(second)}, {2, Text(third)}, {3, Text(txt::kFormat6)}};
  };
  switch (Id().VariantChar) {
    case 'A': return formats(txt::kFormat7, txt::kFormat1, txt::kFormat8);
    case 'C':
    case '0': return formats(txt::kFormat2, txt::kFormat1, txt::kFormat8);
    case '4': return formats(txt::kFormat5, txt::kFormat1, txt::kFormat8);
    case '2': return formats(txt::kFormat9, txt::kFormat4, txt::kFormat3);
    default: return formats(txt::kFormat11, txt::kFormat10, txt::kFormat3);
  }
}

}  // namespace quorvel
