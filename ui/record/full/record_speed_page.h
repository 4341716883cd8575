#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"
#include "ui/record/full/record_features.h"

namespace quorvel {

/// Other Settings of multiplexers and DVRs: the record speeds, each an interval in fields and the
/// hours of a recorder's mode, and the record lock or the record mode.
class RecordSpeedPage : public EditorPage {
 public:
  RecordSpeedPage(Editor& editor, const RecordFeatures& features);
  [[nodiscard]] Layout Contents();

 private:
  void BindSpeeds(bool of_modes);
  void BindOptions(const RecordFeatures& features);
  void ListBlocks(MuxData& record) const;

  Grid MSFlGd_RecSp{*this, "MSFlGd_RecSp"};
  Label lbFields{*this, "lbFields", Words().cnstrField};
  ListBox lstFields{*this, "lstFields"};
  Label lbHours{*this, "lbHours", Text(txt::kHour)};
  ListBox lstHours{*this, "lstHours"};
  Label lbRecLock{*this, "lbRecLock", Text(txt::kRecordLock)};
  ControlArray<OptionButton> opt_RecLock{*this, "opt_RecLock", 2};

  FieldGroup& speeds_ = Each(2);
  LineGrid rows_{*this, MSFlGd_RecSp, speeds_, "", GridEditing::Release::kSelects};
};

}  // namespace quorvel
