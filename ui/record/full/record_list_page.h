#pragma once

#include <optional>

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"
#include "ui/record/full/record_features.h"
#include "ui/record/record_timers.h"

namespace quorvel {

/// Record List: the sequence in which cameras are recorded, or on recorders the record timers.
class RecordListPage : public EditorPage {
 public:
  RecordListPage(Editor& editor, const RecordFeatures& features);
  [[nodiscard]] Layout Contents();

 private:
  void BindList();

  Grid MSFlGrid_RecList{*this, "MSFlGrid_RecList"};
  Label lbCamera{*this, "lbCamera", Text(txt::kAssignedCamera)};
  ListBox lCamera{*this, "lCamera"};
  std::optional<LineGrid> list_;
  RecordTimers timers_;
};

}  // namespace quorvel
