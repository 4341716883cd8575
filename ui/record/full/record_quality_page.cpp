#include "ui/record/full/record_quality_page.h"

namespace quorvel {

RecordQualityPage::RecordQualityPage(Editor& editor, const RecordFeatures& features)
    : EditorPage(editor, features.quality_page) {
  MSFlGrid_RecQuality.SetSpokenName(lbRQuality.Caption());
  if (!Exists()) return;
  const Choices levels = Levels();
  lRQuality.SetRows(levels.Count());
  cameras_.NameByTitles();
  cameras_.Column(lbRQuality.Caption(), lRQuality, levels, OfCamera(&Cameras::Compress));
}

Choices RecordQualityPage::Levels() const {
  const std::string* const words[] = {&Words().cnstrSTD, &Words().cnstrMed, &Words().cnstrHigh};
  const bool nine = Record().Extra_Quality_Feature() != 0;
  Choices levels;
  for (const std::string* const word : words) {
    for (int step = 0; step < (nine ? 3 : 1); ++step) {
      const int level = levels.Count();
      levels.Add(level, nine ? *word + " " + std::to_string(level + 1) : *word);
    }
  }
  return levels;
}

}  // namespace quorvel
