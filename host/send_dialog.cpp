#include "host/send_dialog.h"

#include <utility>

#include "core/change_marks.h"
#include "host/model_catalogue.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

void SendDialog::RefuseData() {
  const Message message{context_.GetText(txt::kDataDoesNotMatch),
                        context_.GetText(txt::kErrorMessage), Message::Buttons::kOk,
                        Message::Kind::kError};
  if (!context_.edges.terminated) context_.platform.Ask(message);
}

bool SendDialog::DataFits() {
  if (context_.device.HasImage() && FamilyFits(context_)) return CheckLoadedIdentity(context_);
  RefuseData();
  return false;
}

void SendDialog::Send() {
  const SendBasis basis = PresentBasis(context_);
  if (context_.device.HasImage()) context_.EncodeListedBlocks();
  if (!DataFits()) return;
  Over();
  upload_.Stop("Another send has begun.");
  if (context_.edges.terminated) return;
  // A text source of the host may do anything while the dialog asks it for texts.
  const auto dialog = std::make_shared<frm_ToMux>(context_);
  if (context_.edges.terminated || frmDL != nullptr) return;
  Bind(dialog, basis);
  frmDL = dialog;
  dialog->ShowModal();
}

void SendDialog::Bind(const std::shared_ptr<frm_ToMux>& dialog, const SendBasis& basis) {
  const std::weak_ptr<frm_ToMux> weak = dialog;
  dialog->StartDL = [this, weak, basis](const SendChoice& choice) {
    if (weak.lock() != frmDL) return;
    context_.edges.Guard("StartDL", [&] { upload_.Start(choice, basis, false); });
  };
  dialog->StopDL = [this, weak] {
    if (weak.lock() == frmDL) upload_.Stop("The user has stopped it.");
  };
  dialog->ClearBlk = [this] { ClearBlocks(); };
}

void SendDialog::Over() {
  const auto dialog = std::move(frmDL);
  if (dialog != nullptr) dialog->Close();
}

/// Empties the list and puts the marks that tell the device what changed to rest.
void SendDialog::ClearBlocks() {
  context_.device.env.blocks.BlkSavIdx(0);
  ClearChangeMarks(context_.device.BlkImage, context_.device.ComboArray, context_.device.env,
                   context_.device.Record());
}

void SendDialog::BlocksGo() {
  if (frmDL != nullptr) frmDL->ShowSending();
}

void SendDialog::ListedBlocksGo() {
  if (frmDL != nullptr) frmDL->ShowClearBlocks();
}

void SendDialog::BlockGoes(int number, int done, int total) {
  if (frmDL != nullptr) frmDL->ShowBlock(number, done, total);
}

void SendDialog::EndPacketGoes() {
  if (frmDL != nullptr) frmDL->ShowEnded();
}

void SendDialog::AllIsSent() {
  if (frmDL != nullptr) frmDL->ShowFinished();
}

void SendDialog::DoesNotMatch() {
  Over();
  RefuseData();
}

/// Macro data of another record size is sent only when the user agrees.
bool SendDialog::AcceptMacroSize() {
  const Message question{context_.GetText(txt::kMacroSizeDifference) + "\r" +
                             context_.GetText(txt::kSomeVariablesNotUpdated),
                         context_.GetText(txt::kMessage), Message::Buttons::kOkCancel,
                         Message::Kind::kQuestion};
  return !context_.edges.terminated && context_.platform.Ask(question);
}

}  // namespace quorvel
