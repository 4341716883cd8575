#include "ui/setup/alarm/alarm_action_page.h"

#include <string>

namespace quorvel {

AlarmActionPage::AlarmActionPage(Editor& editor, const AlarmFeatures& features)
    : EditorPage(editor, features.action_page) {
  MSFG_AlAction.SetSpokenName(Text(txt::kAlarmAction));
  const int cameras = Id().MaxCam;
  actions_.Column(Label3.Caption(), lst_ALFrz, NoYes(),
                  OfAction(&AlmAction::Freeze).OtherwiseWritten(1));

  const Choices camera = Choices::Numbers(1, cameras, 0);
  const std::string adjacent = Text(txt::kAdjacent);
  actions_.CameraColumn(Text(txt::kPrimary), cbAlCamera, camera, OfAction(&AlmAction::Display0));
  actions_.CameraColumn(adjacent + "1", cbAlCamera, camera, OfAction(&AlmAction::Display1));
  actions_.CameraColumn(adjacent + "2", cbAlCamera, camera, OfAction(&AlmAction::Display2));
  actions_.CameraColumn(adjacent + "3", cbAlCamera, camera, OfAction(&AlmAction::Display3));

  const std::string no_room = Text(kTextNoRoomForIt);
  for (Widget* const it : {static_cast<Widget*>(&lbPreset), static_cast<Widget*>(&cbPreset)}) {
    it->SetVisible(features.PresetColumns);
    it->SetEnabled(features.presets_kept, no_room);
  }
  lbPreset.SetEnabled(true);
  if (features.PresetColumns) {
    Choices preset{{0, "--"}};
    preset.Add(Choices::Numbers(1, cameras, 1));
    const ColumnRules rules{.takes = [kept = features.presets_kept](int) { return kept; }};
    const std::string name = lbPreset.Caption();
    actions_.Column(name + " 1", cbPreset, preset, OfAction(&AlmAction::Preset0), rules);
    actions_.Column(name + " 2", cbPreset, preset, OfAction(&AlmAction::Preset1), rules);
    actions_.Column(name + " 3", cbPreset, preset, OfAction(&AlmAction::Preset2), rules);
    actions_.Column(name + " 4", cbPreset, preset, OfAction(&AlmAction::Preset3), rules);
  }
  actions_.Column(Label5.Caption(), lst_AlRelay, Relays(),
                  OfAction(&AlmAction::Relay).OtherwiseWritten(3));

  // The monitor stands behind the gate and is written before it.
  const int gate = features.intrusion_gate ? actions_.AddColumn(lbAndOr.Caption()) : 0;
  if (features.aux_monitor) {
    actions_.Column(lbAuxMon.Caption(), lstAuxMon, {{0, "B"}, {1, "C"}, {2, "D"}, {3, "E"}},
                    Of(&MuxData::MatrixInfo, &clsMatrix::AuxMonitor));
  }
  if (features.intrusion_gate) {
    actions_.Bind(gate, lstAndOr, {{0, Words().cnstrOR}, {1, Words().cnstrAND}},
                  OfAction(&AlmAction::GateIntrus).OtherwiseWritten(1));
  }
  lbAndOr.SetVisible(features.intrusion_gate);
  lstAndOr.SetVisible(features.intrusion_gate);
  lbAuxMon.SetVisible(features.aux_monitor);
  lstAuxMon.SetVisible(features.aux_monitor);
}

Layout AlarmActionPage::Contents() {
  return Column(MSFG_AlAction,
                Row(Labelled(Label3, lst_ALFrz), Labelled(Label4, cbAlCamera),
                    Labelled(lbPreset, cbPreset), Labelled(Label5, lst_AlRelay),
                    Labelled(lbAndOr, lstAndOr), Labelled(lbAuxMon, lstAuxMon), Stretch()));
}

}  // namespace quorvel
