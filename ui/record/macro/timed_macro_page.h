#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// Timed Macro Start: the day, the time and the number of each macro that starts by itself.
class TimedMacroPage : public EditorPage {
 public:
  explicit TimedMacroPage(Editor& editor);
  [[nodiscard]] Layout Contents();

 private:
  Grid MSFG_TimeMacro{*this, "MSFG_TimeMacro"};
  Label Label1{*this, "Label1", Text(txt::kDay)};
  ListBox lstDay{*this, "lstDay"};
  Label Label2{*this, "Label2", Text(txt::kTime)};
  TimePicker DTPicker1{*this, "DTPicker1"};
  Label Label3{*this, "Label3", Text(txt::kMacro)};
  ListBox lstMacro{*this, "lstMacro"};
  LineGrid starts_{*this, MSFG_TimeMacro, Each(MuxData::kTimedMacros), Text(txt::kEvent),
                   GridEditing::Release::kSelects};
};

}  // namespace quorvel
