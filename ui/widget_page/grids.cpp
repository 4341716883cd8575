#include "ui/widget_page/grids.h"

#include <initializer_list>
#include <string>

namespace quorvel {

namespace {

constexpr int kCameras = 16;
enum CameraColumn { kAction = 1, kRate, kGain, kStart, kHour, kMinute };

void SetRow(Grid& grid, int row, std::initializer_list<const char*> texts) {
  int column = 0;
  for (const char* const text : texts) grid.SetCell(row, column++, text);
}

}  // namespace

GridKinds::GridKinds(Dialog& dialog) : dialog_(dialog) {
  FillCameras();
  FillMacros();
  FillOthers();
}

void GridKinds::FillCameras() {
  MSFG_Camera.SetSize(kCameras + 1, 7);
  SetRow(MSFG_Camera, 0,
         {"Camera", "Action & lamp", "Record rate per second", "Gain", "Start", "Hour", "Minute"});
  Choices actions({"NONE", "Beep", "Beep", "R&D <b>lamp</b>"});
  actions.Reads(0, "").Reads(4, "not in the list");
  sldGain.SetRange(50, 150);
  camera_editing_.Bind(kAction, lstAction, actions, {.empty = 0});
  const ColumnRules whole_row{.shows = ColumnRules::Reach::kInRow};
  camera_editing_.Bind(kRate, cboRate, Choices({"1.5", "3", "6", "12", "25"}), whole_row);
  camera_editing_.Bind(kGain, sldGain, lblGainValue, whole_row);
  camera_editing_.Bind(kStart, dtpStart, whole_row);
  camera_editing_.BindPair(kHour, kMinute, dtpDwell, whole_row);
  for (int row = 1; row <= kCameras; ++row) {
    MSFG_Camera.SetCell(row, 0, std::to_string(row));
    camera_editing_.SetValue(row, kAction, row % 4);
    camera_editing_.SetValue(row, kRate, row % 6);    // 5: no such rate
    camera_editing_.SetValue(row, kGain, 15 * row);   // beyond both ends of the slider
    camera_editing_.SetValue(row, kStart, 90 * row);  // minutes; the last ones are not of the day
    camera_editing_.SetValue(row, kHour, 2 * row);
    camera_editing_.SetValue(row, kMinute, 4 * row);
  }
  camera_editing_.SetValue(2, kAction, 4);
  camera_editing_.GoTo(1, kAction);
}

void GridKinds::FillMacros() {
  MSFG_Macro.SetHeaderRows(2);
  MSFG_Macro.SetMergedHeader(true);
  MSFG_Macro.SetSize(10, 1);
  for (const int row : {0, 1}) MSFG_Macro.SetCell(row, 0, "Camera");
  for (int row = 2; row < MSFG_Macro.Rows(); ++row) {
    MSFG_Macro.SetCell(row, 0, std::to_string(row - 1));
  }
  for (int i = 0; i < 5; ++i) AddColumn();
  macro_editing_.GoTo(2, 1);
}

void GridKinds::AddColumn() {
  constexpr int kMost = 12;
  if (MSFG_Macro.Columns() >= kMost) return;
  const int column = MSFG_Macro.AddColumns(1);
  MSFG_Macro.SetCell(0, column, column < 4 ? "Macro" : "Macro on alarm");
  MSFG_Macro.SetCell(1, column, std::to_string(column));
  macro_editing_.Bind(column, lstMacro, Choices({"Off", "On", "Pan & tilt"}));
  for (int row = 2; row < MSFG_Macro.Rows(); ++row) {
    macro_editing_.SetValue(row, column, (row + column) % 3);
  }
}

void GridKinds::FillOthers() {
  MSFG_Day.SetRange(Grid::Range::kOneRow);
  MSFG_Day.SetAlign(Grid::Align::kCentre);
  MSFG_Day.SetSize(4, 3);
  MSFG_Day.SetLeastWidth(1, 12);
  SetRow(MSFG_Day, 0, {"Day", "On", "Off"});
  SetRow(MSFG_Day, 1, {"Monday", "07:45", "18:00"});
  SetRow(MSFG_Day, 2, {"Tuesday", "", "R&D <b>cell</b>"});
  SetRow(MSFG_Day, 3, {"Sunday", "", ""});
  MSFG_Day.SetCell(3, 1, std::string("A\0B", 3));
  MSFG_NoRows.SetSize(1, 2);
  SetRow(MSFG_NoRows, 0, {"Alarm", "Without rows"});
  MSFG_Disabled.SetSize(3, 2);
  SetRow(MSFG_Disabled, 0, {"Monitor", "Disabled"});
  SetRow(MSFG_Disabled, 1, {"A", "Full screen"});
  SetRow(MSFG_Disabled, 2, {"B", "Quad"});
  MSFG_Disabled.SetEnabled(false);
}

Layout GridKinds::CameraPage() {
  return Row(MSFG_Camera, Column(Labelled(lblAction, lstAction), Labelled(lblRate, cboRate),
                                 lblGain, Row(sldGain, lblGainValue), Labelled(lblStart, dtpStart),
                                 Labelled(lblDwell, dtpDwell)));
}

Layout GridKinds::OtherPage() {
  return Column(Row(MSFG_Macro, Labelled(lblMacro, lstMacro)),
                Row(MSFG_Day, Column(MSFG_NoRows, MSFG_Disabled)));
}

}  // namespace quorvel
