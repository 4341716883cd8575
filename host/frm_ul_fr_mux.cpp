#include "host/frm_ul_fr_mux.h"

#include "resources/icon.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {
constexpr int kPatience = 5000;  // milliseconds without a reply
}

frm_ULFrMux::frm_ULFrMux(Context& context)
    : Dialog(context.platform, "frm_ULFrMux"), context_(context) {
  KeepAliveWith(context.edges.life);
  SetIcon(&Icon101());
  SetCaption(context.GetText(txt::kDownloadingDataFrom) + context.host.CaptionSuffix());
  Label1.SetCaption(context.GetText(txt::kByteCount));
  Label2.SetCaption(context.GetText(txt::kStatus) + ":");
  lblSilent.SetCaption(context.GetText(kTextDeviceSilent));
  lblSilent.SetVisible(false);
  lblPace.SetKeepsPlace(true);
  lblSilent.SetKeepsPlace(true);
  cmdOK.SetCaption(context.texts.Constants().cnstrOK);
  cmdCancel.SetCaption(context.texts.Constants().cnstrCancel);
  cmdSaveFile.SetCaption(context.GetText(txt::kSaveFile));
  SetLayout(Column(Row(Label1, Label3, Stretch()), Row(Label2, Label4, Stretch()), prgBar1, lblPace,
                   lblSilent, Row(Stretch(), cmdSaveFile, cmdOK, cmdCancel)));
  SetKeyButtons(&cmdOK, nullptr);
  tmSilence = context.platform.NewTimer([this] {
    RunHandler("tmSilence", [this] {
      tmSilence->Stop();
      lblSilent.SetVisible(true);
    });
  });
  tmSilence->SetInterval(kPatience);

  cmdOK.on_click = [this] { Close(); };
  cmdCancel.on_click = [this] { Close(); };
  cmdSaveFile.on_click = [this] {
    if (SaveFile) SaveFile();
  };
  on_closed = [this] {
    ListenFor(false);
    if (StopUL) StopUL();
  };
}

void frm_ULFrMux::ShowProgress(const ReceiveProgress& progress) {
  prgBar1.SetMaximum(progress.maximum);
  prgBar1.SetValue(progress.value);
  lblPace.SetCaption(progress.finished ? "" : words_.Of(progress.value, progress.maximum));
  Label3.SetCaption(std::to_string(progress.bytes));
  Label4.SetCaption(progress.status);
  cmdOK.SetEnabled(progress.finished);
  cmdSaveFile.SetEnabled(progress.finished);
  cmdCancel.SetEnabled(!progress.finished);
  ListenFor(!progress.finished);
}

/// Starts the wait for a reply anew, or ends it.
void frm_ULFrMux::ListenFor(bool more) {
  lblSilent.SetVisible(false);
  tmSilence->Stop();
  if (more) tmSilence->Start();
}

void frm_ULFrMux::ShowRestored() {
  SetCaption(context_.GetText(txt::kRestoreBlockData));
  cmdSaveFile.SetVisible(false);
  cmdCancel.SetVisible(false);
}

}  // namespace quorvel
