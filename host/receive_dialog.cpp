#include "host/receive_dialog.h"

#include <utility>

#include "host/settings_file.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

/// A text source of the host may do anything while it is asked for a text, so texts are fetched
/// before the state is looked at.
void ReceiveDialog::FetchTexts() {
  block_text_ = context_.GetText(txt::kDownloadingBlock);
  finished_text_ = context_.GetText(txt::kFinished);
  not_used_text_ = context_.GetText(kTextArrayNotUsed);
  macros_missing_text_ = context_.GetText(kTextMacrosMissing);
  message_title_ = context_.GetText(txt::kMessage);
}

void ReceiveDialog::Receive() {
  const int round = download_.BeginAnew("Another receive has begun.");
  context_.InitGlobals();
  FetchTexts();
  if (!download_.GoesOn(round)) return;
  // A host may answer from inside its event handler, before there is a dialog. The dialog then
  // shows how far the receive has come.
  download_.RequestImage(false);
  if (context_.host.HostCommId == 0) Open(round, false);
}

void ReceiveDialog::RestoreImageFromFile() {
  context_.device.KeepFlags();
  context_.InitGlobals();
  // Also when no file is restored: what is sent next is compared with the device.
  context_.device.LoadedFromFile = true;
  const auto bytes = AskForSettings(context_);
  FetchTexts();
  if (!bytes || context_.edges.terminated) return context_.device.DropFlags();
  const Download::Restored restored = download_.AdoptFile(*bytes);
  const int round = download_.BeginAnew("A settings file was restored.");
  if (!download_.GoesOn(round)) return;
  download_.FinishReception(restored.bytes);
  if (restored.lacks_macros && !context_.edges.terminated) Flawed(ArrayFlaw::kMacrosMissing);
  Open(round, true);
}

void ReceiveDialog::Open(int round, bool restored) {
  if (!download_.GoesOn(round)) return;
  const auto dialog = std::make_shared<frm_ULFrMux>(context_);
  if (restored) dialog->ShowRestored();
  if (!download_.GoesOn(round)) return;
  dialog->StopUL = [this] { download_.StopReceive("The user has closed its dialog."); };
  dialog->SaveFile = [this] {
    // What is on screen is what is saved, also when another image arrives meanwhile.
    context_.edges.Guard("SaveReceivedData",
                         [this] { SaveBytes(context_, "*.bin", download_.ReceivedBytes()); });
  };
  frmUL = dialog;
  ShowProgress();
  dialog->ShowModal();
}

void ReceiveDialog::Close() {
  const auto dialog = std::move(frmUL);
  if (dialog == nullptr) return;
  dialog->StopUL = nullptr;
  dialog->Close();
}

void ReceiveDialog::ShowProgress() {
  if (frmUL != nullptr) frmUL->ShowProgress(progress_);
}

void ReceiveDialog::Over() {
  progress_ = {};
  Close();
}

void ReceiveDialog::BlockHasCome(int number, int count, std::int32_t bytes) {
  progress_.maximum = count;
  if (number <= count) progress_.value = number;
  progress_.bytes = bytes;
  progress_.status = block_text_ + std::to_string(number);
  ShowProgress();
}

void ReceiveDialog::AllHasCome(int count, std::int32_t bytes) {
  progress_ = {count, count, finished_text_, bytes, true};
  ShowProgress();
}

void ReceiveDialog::Flawed(ArrayFlaw flaw) {
  context_.platform.Ask({flaw == ArrayFlaw::kNotUsed ? not_used_text_ : macros_missing_text_,
                         message_title_, Message::Buttons::kOk, Message::Kind::kWarning});
}

}  // namespace quorvel
