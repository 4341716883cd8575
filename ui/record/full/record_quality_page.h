#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"
#include "ui/editing/line_grid.h"
#include "ui/record/full/record_features.h"

namespace quorvel {

/// Record Quality: that of each camera, in three levels or nine.
class RecordQualityPage : public EditorPage {
 public:
  RecordQualityPage(Editor& editor, const RecordFeatures& features);
  [[nodiscard]] Layout Contents() {
    return Row(MSFlGrid_RecQuality, Labelled(lbRQuality, lRQuality));
  }

 private:
  [[nodiscard]] Choices Levels() const;

  Grid MSFlGrid_RecQuality{*this, "MSFlGrid_RecQuality"};
  Label lbRQuality{*this, "lbRQuality", Text(txt::kRecordQuality)};
  ListBox lRQuality{*this, "lRQuality"};
  LineGrid cameras_{*this, MSFlGrid_RecQuality, Each(Id().MaxCam), Text(txt::kCameras),
                    GridEditing::Release::kSelects};
};

}  // namespace quorvel
