#include "ui/record/macro/submacro_page.h"

#include <algorithm>

#include "ui/editing/number_texts.h"

namespace quorvel {

namespace {

constexpr int kStepCodes = 256;
constexpr int kNoStep = kStepCodes;  // a cell without a step
constexpr int kDigits = 3;
constexpr int kLines = 14;

/// A step of a submacro: its code, or kNoStep behind the submacro's end. Taking a step away leaves
/// its byte alone and ends the submacro before it.
SettingRef StepOf(int step) {
  return Joined(
      {OfSubMacro(&clsSubMacro::SMacroByte, step), OfSubMacro(&clsSubMacro::SMacroLen)},
      [step](const std::vector<int>& parts) { return step < parts.at(1) ? parts.at(0) : kNoStep; },
      [step](int code, std::vector<int>& parts) {
        if (code == kNoStep) {
          parts.at(1) = std::min(parts.at(1), step);
        } else {
          parts = {code, std::max(parts.at(1), step + 1)};
        }
      });
}

}  // namespace

SubmacroPage::SubmacroPage(Editor& editor, bool exists) : EditorPage(editor, exists) {
  MSFG_SubMacro.SetSpokenName(Text(txt::kEditSubmacro));
  MSFG_SubMacro.SetRange(Grid::Range::kOneRow);
  lstSubmacro.SetRows(kLines);
  ShowDelays();
  BindSteps();
  cmd_ClearCell.on_click = [this] { EmptyFrom(MSFG_SubMacro.Row(), MSFG_SubMacro.Column()); };
  cmdClearLine.on_click = [this] { EmptyFrom(MSFG_SubMacro.Row(), 1); };
}

void SubmacroPage::ShowDelays() {
  const std::string delay = Text(txt::kDelay);
  Label4.SetCaption(delay + "1:  " + std::to_string(Record().MacroEditDL1()));
  Label5.SetCaption(delay + "2:  " + std::to_string(Record().MacroEditDL2()));
  Label4.SetVisible(Id().IsMultiplexer());
  Label5.SetVisible(Id().IsMultiplexer());
}

/// On a multiplexer two of the codes are delays. Where both are the same code, it is the first.
Choices SubmacroPage::StepCodes() {
  Choices codes;
  for (int code = 0; code < kStepCodes; ++code) {
    std::string text = NumberText(code, kDigits);
    if (Id().IsMultiplexer()) {
      if (code == Record().MacroEditDL2()) text = "DL2";
      if (code == Record().MacroEditDL1()) text = "DL1";
    }
    codes.Add(code, std::move(text));
  }
  codes.Reads(kNoStep, "");
  return codes;
}

void SubmacroPage::BindSteps() {
  const Choices codes = StepCodes();
  submacros_.Editing().SetRowsAreWhole();
  for (int step = 0; step < clsSubMacro::kLongest; ++step) {
    const int column = submacros_.AddColumn(" ");
    MSFG_SubMacro.SetColumnName(column, lbSubmacro.Caption() + " " + std::to_string(step + 1));
    MSFG_SubMacro.SetLeastWidth(column, kDigits);
    submacros_.Bind(
        column, lstSubmacro, codes, StepOf(step),
        {.written = [this, column](int row) { CloseUp(row, column); }, .empty = kNoStep});
  }
  submacros_.Editing().before_show = [this] {
    const int row = MSFG_SubMacro.Row();
    const int first_empty = FirstEmpty(row);
    if (MSFG_SubMacro.Column() > first_empty) MSFG_SubMacro.SetCurrent(row, first_empty);
  };
}

int SubmacroPage::FirstEmpty(int row) const {
  int column = 1;
  while (column < MSFG_SubMacro.Columns() && !MSFG_SubMacro.Cell(row, column).empty()) ++column;
  return column;
}

void SubmacroPage::EmptyFrom(int row, int column) {
  if (row < MSFG_SubMacro.HeaderRows() || column < 1) return;
  for (; column < MSFG_SubMacro.Columns(); ++column) {
    submacros_.Editing().SetValue(row, column, kNoStep);
  }
  submacros_.Editing().ShowCell();
}

void SubmacroPage::CloseUp(int row, int column) {
  GridEditing& editing = submacros_.Editing();
  const int code = editing.ValueAt(row, column);
  if (code == kNoStep) return EmptyFrom(row, column);
  const int first_empty = FirstEmpty(row);
  if (first_empty > column) return;
  editing.SetValue(row, first_empty, code);
  editing.SetValue(row, column, kNoStep);
}

Layout SubmacroPage::Contents() {
  return Row(MSFG_SubMacro, Column(Labelled(lbSubmacro, lstSubmacro), Label4, Label5, cmd_ClearCell,
                                   cmdClearLine, Stretch()));
}

}  // namespace quorvel
