#include "ui/menu/frm_msg.h"

#include "resources/icon.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

frmMsg::frmMsg(Context& context) : Dialog(context.platform, "frmMsg") {
  KeepAliveWith(context.edges.life);
  SetCaption(context.GetText(txt::kInformationMessage));
  SetIcon(&Icon101());
  Label1.SetCaption(context.GetText(txt::kEstablishEthernetFirst));
  cmdOK.SetCaption(context.texts.Constants().cnstrOK);
  cmdOK.on_click = [this] { Close(); };
  SetKeyButtons(&cmdOK, &cmdOK);
  SetLayout(Column(Label1, Row(Stretch(), cmdOK, Stretch())));
}

}  // namespace quorvel
