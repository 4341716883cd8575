#include "ui/setup/alarm/alarm_action_page.h"

#include <string>

#include "ui/editing/number_texts.h"
#include "ui/editing/numbered_grid.h"

namespace quorvel {

namespace {

constexpr int kFreezeColumn = 1;
constexpr int kFirstCameraColumn = 2;
constexpr int kFirstPresetColumn = 6;
constexpr int kDisplays = 4;
constexpr int kBothRelays = 3;

/// Calls `each` with the number, 0 to 3, and the camera setting of every display.
template <class Action, class Each>
void ForDisplays(Action& action, const Each& each) {
  each(0, action.Display0);
  each(1, action.Display1);
  each(2, action.Display2);
  each(3, action.Display3);
}

/// The same with the preset settings.
template <class Action, class Each>
void ForPresets(Action& action, const Each& each) {
  each(0, action.Preset0);
  each(1, action.Preset1);
  each(2, action.Preset2);
  each(3, action.Preset3);
}

}  // namespace

AlarmActionPage::AlarmActionPage(Editor& editor, const AlarmFace& face)
    : EditorPage(editor),
      face_(face),
      MSFG_AlAction(editor, "MSFG_AlAction"),
      Label3(editor, "Label3", Text(78)),
      lst_ALFrz(editor, "lst_ALFrz"),
      Label4(editor, "Label4", Text(71)),
      cbAlCamera(editor, "cbAlCamera"),
      lbPreset(editor, "lbPreset", Text(98)),
      cbPreset(editor, "cbPreset"),
      Label5(editor, "Label5", Text(102)),
      lst_AlRelay(editor, "lst_AlRelay"),
      lbAndOr(editor, "lbAndOr", Text(305)),
      lstAndOr(editor, "lstAndOr"),
      lbAuxMon(editor, "lbAuxMon", Text(67)),
      lstAuxMon(editor, "lstAuxMon") {
  MSFG_AlAction.SetSpokenName(Text(59));
  BuildColumns();
}

Layout AlarmActionPage::Contents() {
  return Column(MSFG_AlAction,
                Row(Labelled(Label3, lst_ALFrz), Labelled(Label4, cbAlCamera),
                    Labelled(lbPreset, cbPreset), Labelled(Label5, lst_AlRelay),
                    Labelled(lbAndOr, lstAndOr), Labelled(lbAuxMon, lstAuxMon), Stretch()));
}

void AlarmActionPage::BuildColumns() {
  BuildNumberedGrid(MSFG_AlAction, Id().MaxCam,
                    {Text(83), Text(78), Text(99), Text(58) + "1", Text(58) + "2", Text(58) + "3"});
  if (face_.PresetColumns) {
    for (int i = 1; i <= kDisplays; ++i) {
      AddNamedColumn(MSFG_AlAction, Text(98) + " " + std::to_string(i));
    }
  }
  RelayColumn = AddNamedColumn(MSFG_AlAction, Text(102));
  if (face_.intrusion_gate) GateColumn = AddNamedColumn(MSFG_AlAction, Text(305));
  if (face_.aux_monitor) AuxColumn = AddNamedColumn(MSFG_AlAction, Text(67));
}

void AlarmActionPage::FillLists() {
  const auto& words = Words();
  auto presets = NumberTexts(1, Id().MaxCam);
  presets.insert(presets.begin(), "--");

  lst_ALFrz.SetItems({words.cnstrNo, words.cnstrYes});
  cbAlCamera.SetItems(NumberTexts(1, Id().MaxCam));
  cbPreset.SetItems(std::move(presets));
  lst_AlRelay.SetItems({words.cnstrNone, words.cnstrFirst, words.cnstrSecond, words.cnstrFPlusS});
  lstAndOr.SetItems({words.cnstrOR, words.cnstrAND});
  lstAuxMon.SetItems({"B", "C", "D", "E"});

  for (Widget* const it : {static_cast<Widget*>(&lbPreset), static_cast<Widget*>(&cbPreset)}) {
    it->SetVisible(face_.PresetColumns);
  }
  lbAndOr.SetVisible(face_.intrusion_gate);
  lstAndOr.SetVisible(face_.intrusion_gate);
  lbAuxMon.SetVisible(face_.aux_monitor);
  lstAuxMon.SetVisible(face_.aux_monitor);
}

void AlarmActionPage::Fill() {
  FillLists();
  editing_.Bind(kFreezeColumn, lst_ALFrz);
  for (int i = 0; i < kDisplays; ++i) editing_.Bind(kFirstCameraColumn + i, cbAlCamera);
  ColumnRules preset_rules;
  preset_rules.takes = [this](int /*row*/) { return face_.presets_kept; };
  for (int i = 0; face_.PresetColumns && i < kDisplays; ++i) {
    editing_.Bind(kFirstPresetColumn + i, cbPreset, preset_rules);
  }
  cbPreset.SetEnabled(face_.presets_kept);
  editing_.Bind(RelayColumn, lst_AlRelay);
  if (face_.intrusion_gate) editing_.Bind(GateColumn, lstAndOr);
  if (face_.aux_monitor) editing_.Bind(AuxColumn, lstAuxMon);

  for (int i = 0; i < Id().MaxCam; ++i) {
    FillAlarm(i + 1, *Record().AlmActionInfo(i));
    if (face_.aux_monitor) editing_.SetItem(i + 1, AuxColumn, Record().MatrixInfo.AuxMonitor(i));
  }
  GoToStart();
}

void AlarmActionPage::FillAlarm(int row, const AlmAction& action) {
  editing_.SetItem(row, kFreezeColumn, action.Freeze());
  ForDisplays(action, [&](int i, const auto& camera) {
    // A camera that the model lacks keeps its number in sight.
    MSFG_AlAction.SetCell(row, kFirstCameraColumn + i, std::to_string(camera() + 1), camera());
  });
  if (face_.PresetColumns) {
    ForPresets(action, [&](int i, const auto& preset) {
      editing_.SetItem(row, kFirstPresetColumn + i, preset());
    });
  }
  editing_.SetItem(row, RelayColumn, action.Relay());
  if (face_.intrusion_gate) editing_.SetItem(row, GateColumn, action.GateIntrus());
}

void AlarmActionPage::Write() {
  for (int i = 0; i < Id().MaxCam; ++i) WriteAlarm(i + 1, *Record().AlmActionInfo(i));
}

void AlarmActionPage::WriteAlarm(int row, AlmAction& action) {
  // A camera or preset that is none of the list's stays as it is stored.
  const auto write = [&](int column, auto& setting) {
    const int item = editing_.ItemAt(row, column);
    if (item != Grid::kNone) setting(static_cast<Byte>(item));
  };
  action.Freeze(editing_.ItemAt(row, kFreezeColumn) == 0 ? 0 : 1);
  ForDisplays(action, [&](int i, auto& camera) { write(kFirstCameraColumn + i, camera); });
  if (face_.PresetColumns) {
    ForPresets(action, [&](int i, auto& preset) { write(kFirstPresetColumn + i, preset); });
  }
  const int relay = editing_.ItemAt(row, RelayColumn);
  action.Relay(static_cast<Byte>(relay == Grid::kNone ? kBothRelays : relay));
  if (face_.aux_monitor) {
    const int monitor = editing_.ItemAt(row, AuxColumn);
    if (monitor != Grid::kNone) Record().MatrixInfo.AuxMonitor(row - 1, static_cast<Byte>(monitor));
  }
  if (face_.intrusion_gate) action.GateIntrus(editing_.ItemAt(row, GateColumn) == 0 ? 0 : 1);
}

void AlarmActionPage::GoToStart() { editing_.GoTo(1, kFreezeColumn); }

}  // namespace quorvel
