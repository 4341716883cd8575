#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// Edit Submacro: a row for each submacro, a column for each step. The steps of a row follow one
/// another without gaps: a press behind the first empty step goes to that step, and emptying one
/// empties those behind it.
class SubmacroPage : public EditorPage {
 public:
  SubmacroPage(Editor& editor, bool exists);
  [[nodiscard]] Layout Contents();

 private:
  [[nodiscard]] Choices StepCodes();
  void ShowDelays();
  void BindSteps();
  /// The first empty step of a row, or the column behind the last.
  [[nodiscard]] int FirstEmpty(int row) const;
  void EmptyFrom(int row, int column);
  /// Closes the gap that a write into a cell has left.
  void CloseUp(int row, int column);

  Grid MSFG_SubMacro{*this, "MSFG_SubMacro"};
  Label lbSubmacro{*this, "lbSubmacro", Text(kTextStep)};
  ListBox lstSubmacro{*this, "lstSubmacro"};
  Label Label4{*this, "Label4"};  ///< the first delay code
  Label Label5{*this, "Label5"};  ///< the second
  Button cmd_ClearCell{*this, "cmd_ClearCell", Text(txt::kClearCell)};
  Button cmdClearLine{*this, "cmdClearLine", Text(txt::kClearLine)};
  LineGrid submacros_{*this, MSFG_SubMacro, Each(Id().MaxCam), Text(txt::kSubmacroEdit),
                      GridEditing::Release::kSelects};
};

}  // namespace quorvel
