#include "ui/record/macro/play_record_page.h"

#include <algorithm>

namespace quorvel {

PlayRecordPage::PlayRecordPage(Editor& editor, bool exists) : EditorPage(editor, exists) {
  // Whatever is not 0 is YES, and stays what it is until the user changes it.
  const int yes = std::max<int>(Record().PlayRecLnk(), 1);
  Once().Options(optRecPl, {{0, Words().cnstrNo}, {yes, Words().cnstrYes}},
                 At(&MuxData::PlayRecLnk), Label6.Caption());
}

Layout PlayRecordPage::Contents() { return Column(Label6, optRecPl, Stretch()); }

}  // namespace quorvel
