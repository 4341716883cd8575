#include "host/upload.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "host/model_catalogue.h"
#include "host/send_plan.h"

namespace quorvel {

namespace {

constexpr int kSendingInterval = 50;  // milliseconds
constexpr int kEndedInterval = 500;
constexpr Byte kEndPacket = 255;
constexpr std::size_t kPacketSize = 18;

}  // namespace

Upload::Upload(Context& context, HostEvents& host) : context_(context), host_(host) {
  Timer1 = context_.platform.NewTimer([this] { context_.Guard("Timer1", [this] { Tick(); }); });
}

void Upload::EncodeListedBlocks() {
  const LocalTime now = context_.platform.Now();
  const TimeOfDay pc_time{now.hour, now.minute, now.second};
  EncodeModifiedBlocks(context_.BlkImage, context_.env, context_.Record(),
                       context_.UsePcTime ? &pc_time : nullptr);
}

bool Upload::FamilyFits() const {
  const auto host = context_.HostType;
  if (context_.HostCommId != 0) return true;
  return context_.env.identity.IsTriplex() ? host != 16 : host != 48 && host != 112;
}

void Upload::Send() {
  // A download that was stopped or refused left bytes behind that no device may be given.
  const bool usable = context_.ImageIsDecoded() || context_.BlkImage.Size() == 0;
  if (usable) EncodeListedBlocks();
  if (!usable || !FamilyFits()) {
    context_.platform.Ask({context_.GetText(267), context_.GetText(270), Message::Buttons::kOk});
    return;
  }
  if (!CheckLoadedIdentity(context_)) return;
  CloseDialog();
  const auto dialog = std::make_shared<frm_ToMux>(context_);
  dialog->StartDL = [this] { StartDL(); };
  dialog->StopDL = [this] { StopDL(); };
  frmDL = dialog;
  // The host's texts are host code, too: they may have destroyed the control.
  if (!context_.terminated) dialog->ShowModal();
}

void Upload::CloseDialog() {
  const auto dialog = std::move(frmDL);
  if (dialog != nullptr) dialog->Close();
}

void Upload::StartDL() {
  if (context_.ComboMode) throw std::logic_error("the combined exchange is not served");
  plan_ = frmDL->AllBlocks()
              ? PlanAllBlocks(context_.BlkImage, context_.IncludeMacros)
              : PlanListedBlocks(context_.env.blocks, context_.BlkImage, context_.IncludeMacros);
  next_ = 0;
  if (plan_.empty()) frmDL->ShowFinished();
  frmDL->ShowSending();
  Timer1->SetInterval(kSendingInterval);
  Timer1->Start();
}

void Upload::StopDL() {
  Timer1->SetInterval(kEndedInterval);
  Timer1->Stop();
}

void Upload::TriggerTimer() {
  if (Timer1->Interval() != kEndedInterval) Timer1->Start();
}

void Upload::Tick() {
  Timer1->Stop();
  // The image may have been replaced since the plan was made.
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
  host_->DownLoadData(packet);
}

void Upload::SendEndPacket() {
  StopDL();
  if (frmDL != nullptr) frmDL->ShowEnded();
  std::array<Byte, kPacketSize> packet{kEndPacket};
  host_->DownLoadData(packet);
}

}  // namespace quorvel
