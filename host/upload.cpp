#include "host/upload.h"

#include <algorithm>
#include <utility>

#include "core/change_marks.h"
#include "core/combined_fix_ups.h"
#include "host/combined_exchange.h"
#include "host/model_catalogue.h"
#include "host/send_plan.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr int kSendingInterval = 50;  // milliseconds
constexpr int kEndedInterval = 500;
/// After STOP, START waits for the acknowledgement of the packet that is still on its way. A packet
/// that has not been acknowledged for this long is lost.
constexpr int kPatience = 2000;
constexpr Byte kEndPacket = 255;

}  // namespace

Upload::Upload(Context& context, HostEvents& host) : context_(context), host_(host) {
  Timer1 =
      context_.platform.NewTimer([this] { context_.edges.Guard("Timer1", [this] { Tick(); }); });
  patience_ = context_.platform.NewTimer([this] {
    context_.edges.Guard("patience", [this] {
      patience_->Stop();
      outstanding_ = false;
      if (state_ == State::kWaiting) Timer1->Start();
    });
  });
  patience_->SetInterval(kPatience);
}

bool Upload::FamilyFits() const {
  const auto host = context_.host.HostType;
  if (context_.host.HostCommId != 0) return true;
  return context_.device.env.identity.IsTriplex() ? host != 16 : host != 48 && host != 112;
}

void Upload::RefuseData() {
  context_.platform.Ask({context_.GetText(txt::kDataDoesNotMatch),
                         context_.GetText(txt::kErrorMessage), Message::Buttons::kOk,
                         Message::Kind::kError});
}

Upload::Basis Upload::PresentBasis() const {
  return {context_.device.ImageGeneration(), context_.host.ComboMode, context_.host.HostType,
          context_.host.HostCommId, context_.host.connected};
}

bool Upload::DataFits() {
  if (context_.device.HasImage() && FamilyFits()) return CheckLoadedIdentity(context_);
  RefuseData();
  return false;
}

void Upload::Send() {
  const Basis basis = PresentBasis();
  if (context_.device.HasImage()) context_.EncodeListedBlocks();
  if (!DataFits()) return;
  CloseDialog();
  // A text source of the host may do anything while the dialog asks it for texts.
  const auto dialog = std::make_shared<frm_ToMux>(context_);
  if (context_.edges.terminated || frmDL != nullptr) return;
  basis_ = basis;
  const std::weak_ptr<frm_ToMux> weak = dialog;
  dialog->StartDL = [this, weak](const SendChoice& choice) {
    const auto started = weak.lock();
    if (started == nullptr || started != frmDL) return;
    context_.edges.Guard("StartDL", [&] { StartDL(started, choice); });
  };
  dialog->StopDL = [this, weak] {
    if (weak.lock() == frmDL) StopDL();
  };
  dialog->ClearBlk = [this] { ClearBlocks(); };
  frmDL = dialog;
  dialog->ShowModal();
}

void Upload::CloseDialog() {
  const auto dialog = std::move(frmDL);
  if (dialog == nullptr) return;
  StopDL();
  dialog->Close();
}

/// An image that has come since, or another device, has not been compared: that image is not sent,
/// nor mixed into a send of the one before; that device is given no block.
bool Upload::BasisHolds() {
  if (basis_ == PresentBasis()) return true;
  CloseDialog();
  RefuseData();
  return false;
}

void Upload::StartDL(const std::shared_ptr<frm_ToMux>& dialog, const SendChoice& choice) {
  if (!BasisHolds()) return;
  if (context_.host.ComboMode) {
    StartCombined(dialog, choice);
  } else {
    StartBlocks(*dialog, choice);
  }
}

void Upload::StartCombined(const std::shared_ptr<frm_ToMux>& dialog, const SendChoice& choice) {
  const bool listed_only = choice.IncludeData && !choice.all_blocks;
  ProvideComboArray(context_.device, context_.host.combo_sizes);
  if (listed_only) {
    PutListedBlocks();
    dialog->ShowClearBlocks();
    // The device keeps its macros: it is given the listed blocks alone.
    if (!choice.IncludeMacros) return StartBlocks(*dialog, choice);
  } else if (choice.IncludeData) {
    FixUpForCombinedSend(context_.device.BlkImage, context_.device.env, context_.device.Record(),
                         context_.device.UsePcTime);
    context_.device.ComboArray.PutImage(context_.device.BlkImage);
  }
  if (choice.IncludeMacros && !MacrosFit()) return;
  if (dialog != frmDL || !BasisHolds()) return;  // while the user was asked
  // What is sent is a copy: the lengths of what is left out are 0 in it, and the host may write
  // into it.
  std::vector<Byte> array =
      context_.device.ComboArray.Outgoing(choice.IncludeData, choice.IncludeMacros);
  const auto included = IncludedBlocks(choice);
  host_->SendComboBlocks(array);
  for (const HandedOver& block : included) NoteTaken(block);
  dialog->ShowFinished();
}

/// The blocks that a combined send brings up to date. There is no acknowledgement: what was sent
/// counts as taken.
std::vector<Upload::HandedOver> Upload::IncludedBlocks(const SendChoice& choice) const {
  if (!choice.IncludeData) return {};
  std::vector<HandedOver> blocks;
  for (const Byte number : Plan(choice.all_blocks, true)) blocks.push_back(HandOver(number));
  return blocks;
}

Upload::HandedOver Upload::HandOver(int number) const {
  HandedOver block{context_.device.ImageGeneration(), number, {}};
  std::ranges::copy(context_.device.BlkImage.Block(number), block.bytes.begin());
  return block;
}

void Upload::NoteTaken(const HandedOver& block) {
  if (context_.edges.terminated || block.generation != context_.device.ImageGeneration()) return;
  SettleChangeMark(block.number, block.bytes, context_.device.BlkImage, context_.device.ComboArray,
                   context_.device.env, context_.device.Record());
}

void Upload::PutListedBlocks() {
  const clsBlkSave& list = context_.device.env.blocks;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) {
    context_.device.ComboArray.PutBlock(context_.device.BlkImage, list.BlkNumSav(i));
  }
}

/// Macro data of another record size is sent only when the user agrees.
bool Upload::MacrosFit() {
  if (context_.host.combo_sizes.ComboMacroSize == context_.device.ComboArray.Header().MacroRecSize)
    return true;
  return context_.platform.Ask({context_.GetText(txt::kMacroSizeDifference) + "\r" +
                                    context_.GetText(txt::kSomeVariablesNotUpdated),
                                context_.GetText(txt::kMessage), Message::Buttons::kOkCancel,
                                Message::Kind::kQuestion});
}

std::vector<Byte> Upload::Plan(bool all_blocks, bool macros) const {
  return all_blocks
             ? PlanAllBlocks(context_.device.BlkImage, macros)
             : PlanListedBlocks(context_.device.env.blocks, context_.device.BlkImage, macros);
}

void Upload::StartBlocks(frm_ToMux& dialog, const SendChoice& choice) {
  plan_ = Plan(choice.all_blocks, choice.IncludeMacros);
  next_ = 0;
  if (plan_.empty()) dialog.ShowFinished();
  dialog.ShowSending();
  Enter(outstanding_ ? State::kWaiting : State::kRunning);
  if (state_ == State::kRunning) Timer1->Start();
}

void Upload::Enter(State state) {
  state_ = state;
  Timer1->SetInterval(state == State::kEnded ? kEndedInterval : kSendingInterval);
}

void Upload::StopDL() {
  Enter(State::kEnded);
  Timer1->Stop();
}

/// Empties the list and puts the marks that tell the device what changed to rest.
void Upload::ClearBlocks() {
  context_.device.env.blocks.BlkSavIdx(0);
  ClearChangeMarks(context_.device.BlkImage, context_.device.ComboArray, context_.device.env,
                   context_.device.Record());
}

void Upload::TriggerTimer() {
  outstanding_ = false;
  patience_->Stop();
  if (const auto block = std::exchange(unacknowledged_, std::nullopt)) NoteTaken(*block);
  if (state_ == State::kWaiting || state_ == State::kRunning) Timer1->Start();
}

void Upload::Tick() {
  Timer1->Stop();
  state_ = State::kRunning;
  if (frmDL == nullptr || !BasisHolds()) return;
  if (next_ == plan_.size()) {
    SendEndPacket();
    return;
  }
  const Byte number = plan_[next_++];
  const HandedOver block = HandOver(number);
  std::array<Byte, kPacketSize> packet{number};
  std::ranges::copy(block.bytes, packet.begin() + 1);
  frmDL->ShowBlock(number, next_ == plan_.size());
  unacknowledged_ = block;
  SendPacket(packet);
}

void Upload::SendEndPacket() {
  StopDL();
  frmDL->ShowEnded();
  std::array<Byte, kPacketSize> packet{kEndPacket};
  unacknowledged_.reset();
  SendPacket(packet);
}

void Upload::SendPacket(std::array<Byte, kPacketSize>& packet) {
  outstanding_ = true;
  patience_->Start();
  host_->DownLoadData(packet);
}

}  // namespace quorvel
