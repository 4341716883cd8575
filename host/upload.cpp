#include "host/upload.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/change_marks.h"
#include "core/combined_fix_ups.h"
#include "host/combined_exchange.h"
#include "host/send_plan.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr int kSendingInterval = 50;  // milliseconds
constexpr int kEndedInterval = 500;
/// A send waits for the acknowledgement of the packet of a stopped one that is still on its way. A
/// packet that has not been acknowledged for this long is lost.
constexpr int kPatience = 2000;
constexpr Byte kEndPacket = 255;
constexpr std::string_view kAnother = "Another send has begun.";

}  // namespace

Upload::Upload(Context& context, HostEvents& host, UploadListener& dialog)
    : context_(context), host_(host), dialog_(dialog) {
  Timer1 =
      context_.platform.NewTimer([this] { context_.edges.Guard("Timer1", [this] { Tick(); }); });
  patience_ = context_.platform.NewTimer(
      [this] { context_.edges.Guard("patience", [this] { LosePacket(); }); });
  patience_->SetInterval(kPatience);
}

bool Upload::GoesOn(int round) const { return round == round_ && !context_.edges.terminated; }

template <class Body>
void Upload::Step(bool ends, Body&& body) {
  const int round = round_;
  const bool quiet = quiet_;
  try {
    body();
  } catch (...) {
    if (quiet || ends) Fail(round, FailureReason());
    if (!quiet) throw;
  }
}

void Upload::Fail(int round, const std::string& why) {
  if (!GoesOn(round) || !run_.UnderWay()) return context_.edges.Log(LogLevel::kError, why);
  Halt();
  run_.End(TransferEnd::kFailed, why);
}

bool Upload::Send(const SendChoice& choice) {
  std::string why;
  try {
    why = WhyNotBegun(choice);
    if (why.empty()) {
      dialog_.Over();
      context_.EncodeListedBlocks();
      Start(choice, PresentBasis(context_), true);
      return true;
    }
  } catch (...) {
    why = FailureReason();
  }
  run_.Refuse(why);
  return false;
}

/// Stops what is under way when this send can follow. What the observer does meanwhile counts, too.
std::string Upload::WhyNotBegun(const SendChoice& choice) {
  std::string why = WhyNotSent(context_, choice);
  if (!why.empty()) return why;
  const int round = round_ + 1;
  Stop(kAnother);
  return GoesOn(round) ? WhyNotSent(context_, choice) : "Something else has begun meanwhile.";
}

void Upload::Start(const SendChoice& choice, const SendBasis& basis, bool quiet) {
  const int round = round_ + 1;
  Stop(kAnother);
  if (!GoesOn(round)) return;
  basis_ = basis;
  quiet_ = quiet;
  end_packet_went_ = false;
  if (!BasisHolds()) return;
  // What was edited since the dialog opened goes as it is now.
  context_.EncodeListedBlocks();
  run_.Begin(quiet);
  Step(true, [&] {
    if (context_.host.ComboMode) {
      StartCombined(choice);
    } else {
      StartBlocks(choice);
    }
  });
}

void Upload::Stop(std::string_view why) {
  ++round_;
  Halt();
  if (end_packet_went_) return run_.End(TransferEnd::kFinished);  // the host has it all
  run_.End(TransferEnd::kStopped, why);
}

void Upload::Cancel() {
  if (!run_.UnderWay()) return;
  const bool quiet = quiet_;
  const int round = round_ + 1;
  Stop("The host has cancelled it.");
  if (!quiet && GoesOn(round)) dialog_.Over();
}

/// An image that has come since, or another device, has not been compared: that image is not sent,
/// nor mixed into a send of the one before; that device is given no block.
bool Upload::BasisHolds() {
  if (basis_ == PresentBasis(context_)) return true;
  const bool quiet = quiet_;
  const int round = ++round_;
  Halt();
  const std::string why = std::string(BuiltInText(txt::kDataDoesNotMatch)) + ".";
  if (run_.UnderWay()) {
    run_.End(TransferEnd::kRefused, why);
  } else {
    run_.Refuse(why);
  }
  if (!quiet && GoesOn(round)) dialog_.DoesNotMatch();
  return false;
}

void Upload::StartCombined(const SendChoice& choice) {
  const bool listed_only = choice.IncludeData && !choice.all_blocks;
  ProvideComboArray(context_.device, context_.host.combo_sizes);
  if (listed_only) {
    PutListedBlocks();
    if (!quiet_) dialog_.ListedBlocksGo();
    // The device keeps its macros: it is given the listed blocks alone.
    if (!choice.IncludeMacros) return StartBlocks(choice);
  } else if (choice.IncludeData) {
    FixUpForCombinedSend(context_.device.BlkImage, context_.device.env, context_.device.Record(),
                         context_.device.UsePcTime);
    context_.device.ComboArray.PutImage(context_.device.BlkImage);
  }
  const int round = round_;
  // Without a dialog this was decided before.
  const bool asks = choice.IncludeMacros && !quiet_ && MacroSizeDiffers(context_);
  const bool agreed = !asks || dialog_.AcceptMacroSize();
  if (!GoesOn(round)) return;  // while the user was asked
  if (!agreed) return run_.End(TransferEnd::kStopped, "The user sends no macros of another size.");
  if (BasisHolds()) SendArray(choice);
}

void Upload::SendArray(const SendChoice& choice) {
  // What is sent is a copy: the lengths of what is left out are 0 in it, and the host may write
  // into it.
  std::vector<Byte> array =
      context_.device.ComboArray.Outgoing(choice.IncludeData, choice.IncludeMacros);
  const auto included = IncludedBlocks(choice);
  run_.Expect(1);
  const int round = round_;
  host_->SendComboBlocks(array);
  for (const HandedOver& block : included) NoteTaken(block);
  if (!GoesOn(round)) return;
  if (!quiet_) dialog_.AllIsSent();
  run_.Advance(1, 1);
  if (GoesOn(round)) run_.End(TransferEnd::kFinished);
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
  HandedOver block{context_.device.ImageGeneration(), context_.device.Moves(), number, {}};
  std::ranges::copy(context_.device.BlkImage.Block(number), block.bytes.begin());
  return block;
}

void Upload::NoteTaken(const HandedOver& block) {
  if (context_.edges.terminated) return;
  context_.device.NoteTaken(block.number, block.bytes);
  // A step back did not know yet that the device would have it.
  if (block.moves != context_.device.Moves()) return context_.device.CompareWithTaken();
  if (block.generation != context_.device.ImageGeneration()) return;
  SettleChangeMark(block.number, block.bytes, context_.device.BlkImage, context_.device.ComboArray,
                   context_.device.env, context_.device.Record());
}

void Upload::PutListedBlocks() {
  const clsBlkSave& list = context_.device.env.blocks;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) {
    context_.device.ComboArray.PutBlock(context_.device.BlkImage, list.BlkNumSav(i));
  }
}

std::vector<Byte> Upload::Plan(bool all_blocks, bool macros) const {
  return all_blocks
             ? PlanAllBlocks(context_.device.BlkImage, macros)
             : PlanListedBlocks(context_.device.env.blocks, context_.device.BlkImage, macros);
}

void Upload::StartBlocks(const SendChoice& choice) {
  plan_ = Plan(choice.all_blocks, choice.IncludeMacros);
  next_ = 0;
  run_.Expect(static_cast<int>(plan_.size()));
  if (!quiet_) {
    if (plan_.empty()) dialog_.AllIsSent();
    dialog_.BlocksGo();
  }
  Enter(outstanding_ ? State::kWaiting : State::kRunning);
  if (state_ == State::kRunning) Timer1->Start();
}

void Upload::Enter(State state) {
  state_ = state;
  Timer1->SetInterval(state == State::kEnded ? kEndedInterval : kSendingInterval);
}

void Upload::Halt() {
  Enter(State::kEnded);
  Timer1->Stop();
}

void Upload::LosePacket() {
  patience_->Stop();
  outstanding_ = false;
  if (state_ == State::kWaiting) Timer1->Start();
  if (!unacknowledged_) return;  // hosts need not acknowledge the end packet
  context_.edges.Log(LogLevel::kWarning, "block " + std::to_string(unacknowledged_->number) +
                                             " has not been acknowledged for two seconds");
}

void Upload::TriggerTimer() {
  if (!outstanding_) {
    context_.edges.Log(LogLevel::kWarning, "TriggerUploadTimer: no packet is outstanding");
  }
  outstanding_ = false;
  patience_->Stop();
  if (const auto block = std::exchange(unacknowledged_, std::nullopt)) {
    Step(false, [&] { NoteTaken(*block); });
  }
  if (state_ == State::kWaiting || state_ == State::kRunning) Timer1->Start();
  if (state_ == State::kRunning) {
    run_.Advance(static_cast<int>(next_), static_cast<int>(plan_.size()));
  }
}

void Upload::Tick() {
  Timer1->Stop();
  state_ = State::kRunning;
  if (!run_.UnderWay() || !BasisHolds()) return;
  if (next_ == plan_.size()) {
    Step(true, [this] { SendEndPacket(); });
  } else {
    Step(false, [this] { SendNextBlock(); });
  }
}

void Upload::SendNextBlock() {
  const Byte number = plan_[next_++];
  const HandedOver block = HandOver(number);
  std::array<Byte, kPacketSize> packet{number};
  std::ranges::copy(block.bytes, packet.begin() + 1);
  if (!quiet_) {
    dialog_.BlockGoes(number, static_cast<int>(next_), static_cast<int>(plan_.size()));
  }
  unacknowledged_ = block;
  context_.device.NoteHandedOver(number);
  SendPacket(packet);
}

void Upload::SendEndPacket() {
  Halt();
  if (!quiet_) dialog_.EndPacketGoes();
  std::array<Byte, kPacketSize> packet{kEndPacket};
  unacknowledged_.reset();
  end_packet_went_ = true;
  const int round = round_;
  SendPacket(packet);
  if (GoesOn(round)) run_.End(TransferEnd::kFinished);
}

void Upload::SendPacket(std::array<Byte, kPacketSize>& packet) {
  outstanding_ = true;
  patience_->Start();
  host_->DownLoadData(packet);
}

}  // namespace quorvel
