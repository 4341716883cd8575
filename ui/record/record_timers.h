#pragma once

#include <optional>
#include <vector>

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// The ten record timers: a table and, beside it, the controls that edit the selected rows. A row
/// is a timer, or empty. What is chosen in an empty row makes it a timer that starts and stops at
/// midnight of the first of the month, links to no macro and is off, but for what was chosen;
/// Delete empties the selected rows. Models below the triplexes keep no timers: their table cannot
/// be changed.
class RecordTimers : public EditorPage {
 public:
  /// `grid` becomes the table; `statuses` are what a timer can be, the first of them of a new one.
  /// Where 2, to be deleted, is among them, OK takes such timers out and moves later ones up.
  RecordTimers(Editor& editor, Grid& grid, const Choices& statuses, bool exists = true);
  /// The controls beside the table.
  [[nodiscard]] Layout Controls();

 private:
  void AddColumns(const Choices& statuses);
  [[nodiscard]] Choices Days() const;
  /// Of the next column, in which a new timer stands at `value`.
  [[nodiscard]] ColumnRules RulesOfNew(int value);
  void FillRestOf(int row, int written_column);

  const bool kept_;
  Grid& grid_;
  Label lbRTDays{*this, "lbRTDays", Text(txt::kDay)};
  ComboBox cbRTDays{*this, "cbRTDays"};
  Label lbRTstart{*this, "lbRTstart", Text(txt::kStartTime)};
  TimePicker dtRTstart{*this, "dtRTstart"};
  Label lbRTstop{*this, "lbRTstop", Text(txt::kStopTime)};
  TimePicker dtRTstop{*this, "dtRTstop"};
  Label lbRTmacrolnk{*this, "lbRTmacrolnk", Text(txt::kMacroLink)};
  ComboBox cbRTmacrolnk{*this, "cbRTmacrolnk"};
  Label lbRTstatus{*this, "lbRTstatus", Text(txt::kStatus)};
  ComboBox cbRTstatus{*this, "cbRTstatus"};
  std::optional<LineGrid> timers_;
  std::vector<int> of_new_timer_;  ///< column by column
};

}  // namespace quorvel
