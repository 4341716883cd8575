#include "ui/record/macro/frm_macro.h"

namespace quorvel {

frm_Macro::frm_Macro(Context& context) : Editor(context, "frm_Macro", txt::kMacro, {CommitMacro}) {
  SetLayout(Column(
      Tabs(SST_Macro, Page{Text(txt::kTimedMacroStart), timed_page_.Contents()},
           Page{Text(txt::kEditSubmacro), submacro_page_.Contents(), submacro_page_.Exists()},
           Page{Text(txt::kPlayRecordLink), link_page_.Contents(), link_page_.Exists()}),
      Row(Stretch(), cmdOK, cmdCancel)));
  Open(cmdOK, cmdCancel, &SST_Macro);
}

bool frm_Macro::EditsSubmacros() const {
  if (!Id().IsMultiplexer()) return !Id().LiteRecordModel;
  return Id().VariantChar != '0' || Id().RecorderKind == 2;
}

}  // namespace quorvel
