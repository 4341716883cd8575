#include "host/upload.h"

#include <algorithm>
#include <array>

#include "core/combined_fix_ups.h"
#include "host/combined_exchange.h"
#include "host/model_catalogue.h"
#include "host/send_plan.h"

namespace quorvel {

namespace {

constexpr int kSendingInterval = 50;  // milliseconds
constexpr int kEndedInterval = 500;
/// After STOP, START waits for the acknowledgement of the packet that is still on its way. A packet
/// that has not been acknowledged for this long is lost.
constexpr int kPatience = 2000;
constexpr Byte kEndPacket = 255;
constexpr std::size_t kPacketSize = 18;

}  // namespace

Upload::Upload(Context& context, HostEvents& host) : context_(context), host_(host) {
  Timer1 = context_.platform.NewTimer([this] { context_.Guard("Timer1", [this] { Tick(); }); });
  patience_ = context_.platform.NewTimer([this] {
    patience_->Stop();
    outstanding_ = false;
    if (start_waits_) Timer1->Start();
  });
  patience_->SetInterval(kPatience);
}

bool Upload::FamilyFits() const {
  const auto host = context_.HostType;
  if (context_.HostCommId != 0) return true;
  return context_.env.identity.IsTriplex() ? host != 16 : host != 48 && host != 112;
}

void Upload::RefuseData() {
  context_.platform.Ask({context_.GetText(267), context_.GetText(270), Message::Buttons::kOk});
}

void Upload::Send() {
  // A download that was stopped or refused left bytes behind that no device may be given.
  const bool usable = context_.ImageIsDecoded() || context_.BlkImage.Size() == 0;
  if (usable) context_.EncodeListedBlocks();
  if (!usable || !FamilyFits()) return RefuseData();
  if (!CheckLoadedIdentity(context_)) return;
  CloseDialog();
  const auto dialog = std::make_shared<frm_ToMux>(context_);
  dialog->StartDL = [this] { StartDL(); };
  dialog->StopDL = [this] { StopDL(); };
  frmDL = dialog;
  generation_ = context_.ImageGeneration();
  // The host's texts are host code, too: they may have destroyed the control.
  if (!context_.terminated) dialog->ShowModal();
}

void Upload::CloseDialog() {
  const auto dialog = std::move(frmDL);
  if (dialog != nullptr) dialog->Close();
}

/// Another image has been checked against nothing: neither is it sent, nor mixed into a send of
/// the one before.
bool Upload::ImageIsStillTheSame() {
  if (generation_ == context_.ImageGeneration()) return true;
  StopDL();
  CloseDialog();
  RefuseData();
  return false;
}

void Upload::StartDL() {
  if (!ImageIsStillTheSame()) return;
  if (context_.ComboMode) {
    StartCombined();
  } else {
    StartBlocks();
  }
}

void Upload::StartCombined() {
  if (!context_.ImageIsDecoded()) return RefuseData();
  const auto dialog = frmDL;
  const bool listed_only = context_.IncludeData && !dialog->AllBlocks();
  ProvideComboArray(context_);
  if (listed_only) {
    PutListedBlocks();
    dialog->ShowClearBlocks();
    // The device keeps its macros: it is given the listed blocks alone.
    if (!context_.IncludeMacros) return StartBlocks();
  } else if (context_.IncludeData) {
    FixUpForCombinedSend(context_.BlkImage, context_.env, context_.Record(), context_.UsePcTime);
    context_.ComboArray.PutImage(context_.BlkImage);
  }
  if (context_.IncludeMacros && !MacrosFit()) return;
  if (dialog != frmDL || !ImageIsStillTheSame()) return;  // while the user was asked
  // What is sent is a copy: the lengths of what is left out are 0 in it, and the host may write
  // into it.
  std::vector<Byte> array =
      context_.ComboArray.Outgoing(context_.IncludeData, context_.IncludeMacros);
  host_->SendComboBlocks(array);
  if (!context_.terminated) dialog->ShowFinished();
}

void Upload::PutListedBlocks() {
  const clsBlkSave& list = context_.env.blocks;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) {
    context_.ComboArray.PutBlock(context_.BlkImage, list.BlkNumSav(i));
  }
}

/// Macro data of another record size is sent only when the user agrees.
bool Upload::MacrosFit() {
  if (context_.combo_sizes.ComboMacroSize == context_.ComboArray.Header().MacroRecSize) return true;
  return context_.platform.Ask({context_.GetText(301) + "\r" + context_.GetText(306),
                                context_.GetText(32), Message::Buttons::kOkCancel});
}

void Upload::StartBlocks() {
  plan_ = frmDL->AllBlocks()
              ? PlanAllBlocks(context_.BlkImage, context_.IncludeMacros)
              : PlanListedBlocks(context_.env.blocks, context_.BlkImage, context_.IncludeMacros);
  next_ = 0;
  if (plan_.empty()) frmDL->ShowFinished();
  frmDL->ShowSending();
  Timer1->SetInterval(kSendingInterval);
  start_waits_ = outstanding_;
  if (!start_waits_) Timer1->Start();
}

void Upload::StopDL() {
  start_waits_ = false;
  Timer1->SetInterval(kEndedInterval);
  Timer1->Stop();
}

void Upload::TriggerTimer() {
  outstanding_ = false;
  patience_->Stop();
  if (Timer1->Interval() != kEndedInterval) Timer1->Start();
}

void Upload::Tick() {
  Timer1->Stop();
  start_waits_ = false;
  if (!ImageIsStillTheSame()) return;
  // The image's own count may have shrunk since the plan was made.
  while (next_ < plan_.size() && !context_.BlkImage.Holds(plan_[next_])) ++next_;
  if (next_ == plan_.size()) {
    SendEndPacket();
    return;
  }
  const Byte number = plan_[next_++];
  if (frmDL != nullptr) frmDL->ShowBlock(number, next_ == plan_.size());
  SendBlock(number);
}

void Upload::SendBlock(Byte number) {
  std::array<Byte, kPacketSize> packet{number};
  const auto block = context_.BlkImage.Block(number);
  std::copy(block.begin(), block.end(), packet.begin() + 1);
  SendPacket(packet);
}

void Upload::SendEndPacket() {
  StopDL();
  if (frmDL != nullptr) frmDL->ShowEnded();
  std::array<Byte, kPacketSize> packet{kEndPacket};
  SendPacket(packet);
}

void Upload::SendPacket(std::span<Byte> packet) {
  outstanding_ = true;
  patience_->Start();
  host_->DownLoadData(packet);
}

}  // namespace quorvel
