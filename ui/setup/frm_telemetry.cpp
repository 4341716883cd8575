#include "ui/setup/frm_telemetry.h"

#include "ui/context.h"

namespace quorvel {

namespace {
constexpr int kFirmwareOfCurrentProtocol = 503;
}

frm_Telemetry::frm_Telemetry(Context& context)
    : Editor(context, "frm_Telemetry", txt::kTelemetry, {CommitTelemetry}) {
  MSFG_Tel.SetSpokenName(Caption());
  const bool current = Id().VariantChar == '2' &&
                       context.device.ComboArray.Header().Firmware() >= kFirmwareOfCurrentProtocol;
  const auto of_two = [this, current](int first, int second) -> Choices {
    return {{0, Text(current ? txt::kLegacy : first)}, {1, Text(current ? txt::kCurrent : second)}};
  };
  cameras_.NameByTitles();
  cameras_.Column(Text(txt::kTelemetryDisable), List1, DisableEnable(),
                  At(&MuxData::TelEnable).Otherwise(0));
  cameras_.Column(Label2.Caption(), List2, {{0, Words().cnstrAC}, {1, Words().cnstrDC}},
                  At(&MuxData::TelAC_DC).Otherwise(1));
  FieldGroup& settings = Once();
  settings.Options(optTelStd, of_two(txt::kStandard, txt::kAlternate),
                   At(&MuxData::Tel_options).Otherwise(1));
  settings.Options(optPresetMode, of_two(txt::kStandard, txt::kEnhanced),
                   At(&MuxData::PresetMode).Otherwise(1));
  settings
      .Options(optPresetPGM, {{0, Text(txt::kEnabledWord)}, {1, Text(txt::kDisabledWord)}},
               At(&MuxData::PresetPGM).Otherwise(1))
      .WrittenWhen(!current);
  Frame3.SetVisible(!current);
  SetLayout(
      Column(Row(MSFG_Tel, Column(Labelled(Label1, List1), Labelled(Label2, List2), Stretch()),
                 Column(Framed(Frame1, Column(optTelStd)), Framed(Frame2, Column(optPresetMode)),
                        Framed(Frame3, Column(optPresetPGM)), Stretch())),
             Row(Stretch(), cmdOK, cmdCancel)));
  Open(cmdOK, cmdCancel);
}

}  // namespace quorvel
