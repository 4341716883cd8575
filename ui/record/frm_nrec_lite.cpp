#include "ui/record/frm_nrec_lite.h"

namespace quorvel {

frm_NRecLite::frm_NRecLite(Context& context)
    : Editor(context, "frm_NRecLite", txt::kRecord, {CommitRecord}) {
  SetLayout(Column(
      Tabs(SSTab_RecLite, Page{Text(txt::kRecordTimer), Row(MSFG_RecTimer, timers_.Controls())},
           Page{Text(txt::kRecordSettings), settings_.Contents()}),
      Row(Stretch(), cmdOK, cmdCancel)));
  Open(cmdOK, cmdCancel, &SSTab_RecLite);
}

}  // namespace quorvel
