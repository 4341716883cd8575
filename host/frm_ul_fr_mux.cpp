#include "host/frm_ul_fr_mux.h"

#include "resources/icon.h"

namespace quorvel {

frm_ULFrMux::frm_ULFrMux(Context& context)
    : Dialog(context.platform, "frm_ULFrMux"), context_(context) {
  KeepAliveWith(context.life);
  SetIcon(&Icon101());
  SetCaption(context.GetText(268) + context.CaptionSuffix());
  Label1.SetCaption(context.GetText(256));
  Label2.SetCaption(context.GetText(220) + ":");
  cmdOK.SetCaption(context.texts.Constants().cnstrOK);
  cmdSaveFile.SetCaption(context.GetText(255));
  SetLayout(Column(Row(Label1, Label3, Stretch()), Row(Label2, Label4, Stretch()), prgBar1,
                   Row(Stretch(), cmdSaveFile, cmdOK)));
  SetKeyButtons(&cmdOK, nullptr);

  cmdOK.on_click = [this] { Close(); };
  cmdSaveFile.on_click = [this] {
    if (SaveFile) SaveFile();
  };
  on_closed = [this] {
    if (StopUL) StopUL();
  };
}

void frm_ULFrMux::ShowProgress(const ReceiveProgress& progress) {
  prgBar1.SetMaximum(progress.maximum);
  prgBar1.SetValue(progress.value);
  Label3.SetCaption(std::to_string(progress.bytes));
  Label4.SetCaption(progress.status);
  cmdOK.SetEnabled(progress.finished);
  cmdSaveFile.SetEnabled(progress.finished);
}

void frm_ULFrMux::ShowRestored() {
  SetCaption(context_.GetText(272));
  cmdSaveFile.SetVisible(false);
}

}  // namespace quorvel
