#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"

namespace quorvel {

/// Alarm Input: how each input is wired and whether it is enabled.
class AlarmInputPage : public EditorPage {
 public:
  explicit AlarmInputPage(Editor& editor);
  [[nodiscard]] Layout Contents();

 private:
  Grid MSFG_AlInput{*this, "MSFG_AlInput"};
  Label Label1{*this, "Label1", Text(txt::kInputConfiguration)};
  ListBox lst_AlInput{*this, "lst_AlInput"};
  Label Label2{*this, "Label2", Text(txt::kEnableOrDisable)};
  ListBox lst_AlEnable{*this, "lst_AlEnable"};
  LineGrid inputs_{*this, MSFG_AlInput, Each(Id().MaxCam), Objects().objstAlarm};
};

}  // namespace quorvel
