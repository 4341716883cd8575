#pragma once

#include "resources/text_table.h"
#include "ui/editing/editor_page.h"

namespace quorvel {

/// PLAY/RECORD Link of a multiplexer.
class PlayRecordPage : public EditorPage {
 public:
  PlayRecordPage(Editor& editor, bool exists);
  [[nodiscard]] Layout Contents();

 private:
  Label Label6{*this, "Label6", Text(txt::kAlwaysCoupleToSubmacros)};
  ControlArray<OptionButton> optRecPl{*this, "optRecPl", 2};
};

}  // namespace quorvel
