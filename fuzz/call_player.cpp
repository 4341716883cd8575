#include "fuzz/call_player.h"

#include <algorithm>

#include "fuzz/check.h"
#include "fuzz/device_host.h"
#include "fuzz/material.h"

namespace quorvel::fuzz {

namespace {

constexpr int kDeepest = 6;
constexpr int kMostSteps = 60;
/// A packet that has not been acknowledged for so many milliseconds counts as lost.
constexpr std::int64_t kPatience = 2000;

/// The menu locks the keyboard of some devices without asking the user.
bool ChangesWithoutEdit(std::string_view setting) { return setting == "LockKeyBoard"; }

}  // namespace

CallPlayer::CallPlayer(std::span<const Byte> input, bool thorough)
    : in_(input), thorough_(thorough), manner_(in_.Next()) {
  device_ = DefaultImage(Is(HostManner::kDuplex) ? 1 : 2);
  if (Is(HostManner::kShortImage)) {
    constexpr Byte kFewBlocks = 6;
    device_.ResizeBlocks(kFewBlocks);
    device_.Block(1)[kBlockCountByte] = kFewBlocks;
  }
  desk_.at_modal = [this](Dialog& dialog) { return AtModal(dialog); };
  desk_.answer = [this](const Message& message) { return AnswerBox(message); };
  desk_.answer_file = [this](const FileRequest&) { return AnswerFile(); };
  Create();
}

CallPlayer::~CallPlayer() = default;

void CallPlayer::Play() {
  while (CanStep()) {
    Step();
    CheckAtRest();
  }
  CheckNothingIsLost();
  End();
}

bool CallPlayer::CanStep() const {
  return !in_.Empty() && depth_ < kDeepest && steps_ < kMostSteps;
}

void CallPlayer::Step() noexcept {
  ++steps_;
  ++depth_;
  Make(static_cast<Call>(in_.Below(static_cast<int>(Call::kCount))));
  --depth_;
}

void CallPlayer::InEvent(bool may_fail) {
  if (!Is(HostManner::kActsInEvents)) return;
  constexpr Byte kGoOn = 0x80;
  constexpr Byte kFail = 0x40;
  const Byte choice = in_.Next();
  if ((choice & kGoOn) != 0 && CanStep()) Step();
  if (may_fail && (choice & kFail) != 0 && Is(HostManner::kFails)) throw HostFault();
}

bool CallPlayer::AtModal(Dialog& dialog) {
  if (!CanStep()) return dialog.CloseWindow() == Answer::kDone;
  Step();
  return true;
}

bool CallPlayer::AnswerBox(const Message& message) {
  InEvent(false);
  return message.buttons == Message::Buttons::kOk || in_.Next() % 2 == 0;
}

std::optional<std::string> CallPlayer::AnswerFile() {
  InEvent(false);
  switch (in_.Next() % 4) {
    case 0: return std::nullopt;
    case 1: {
      auto& file = desk_.files["plain"];
      if (file.empty()) file.assign(device_.Bytes().begin(), device_.Bytes().end());
      return "plain";
    }
    case 2: {
      auto& file = desk_.files["combined"];
      if (file.empty()) file = CombinedBytes(device_, 16, 2);
      return "combined";
    }
    default: return "missing";
  }
}

void CallPlayer::RequestComboBlocks() {
  Check(control_ != nullptr, "a destroyed control raises no event");
  if (Is(HostManner::kAnswersInside)) HandOverArray(0);
  InEvent();
}

void CallPlayer::SendComboBlocks(std::span<std::uint8_t> cb_data) {
  Check(control_ != nullptr, "a destroyed control raises no event");
  Check(cb_data.size() >= 13, "an array has a header");
  const auto word = [cb_data](std::size_t at) {
    return std::size_t{cb_data[at]} * 256 + cb_data[at + 1];
  };
  Check(cb_data.size() >= word(0) + word(2) + word(4), "an array has the bytes that it counts");
  std::ranges::fill(cb_data, Byte{0xDD});  // the bytes are the host's
  InEvent();
}

void CallPlayer::ULSucceededWithStr(std::string_view /*mname*/, std::uint8_t /*param1*/,
                                    std::uint8_t param2) {
  Check(param2 <= kMostCameras, "a device has 16 cameras at most");
  UploadSucceeded();
}

void CallPlayer::RequestBlk(std::uint8_t blknum) {
  Check(control_ != nullptr, "a destroyed control raises no event");
  Check(blknum != 0, "a block that exists is asked for");
  requested_ = blknum;
  if (Is(HostManner::kAnswersInside)) Reply(blknum, 0);
  InEvent();
}

void CallPlayer::UploadSucceeded() {
  Check(control_ != nullptr, "a destroyed control raises no event");
  if (!std::exchange(arrival_was_told_, false)) list_was_emptied_ = false;
  InEvent();
}

void CallPlayer::Progress(TransferKind which, int done, int total) {
  Check(control_ != nullptr, "a destroyed control tells no progress");
  Check(which != TransferKind::kNone && done >= 1 && done <= total, "a part is done");
  InEvent();
}

void CallPlayer::Ended(TransferKind which, TransferEnd end, std::string_view cause) {
  Check(control_ != nullptr, "a destroyed control tells no end");
  Check(cause.empty() == (end == TransferEnd::kFinished), "the cause is told");
  Check(end == TransferEnd::kRefused || control_->State().under_way != which, "it has ended");
  if (which == TransferKind::kReceive && end == TransferEnd::kFinished) {
    arrival_was_told_ = true;
    list_was_emptied_ = false;
  }
  InEvent();
}

void CallPlayer::DownLoadData(std::span<std::uint8_t> bdata) {
  Check(control_ != nullptr, "a destroyed control raises no event");
  CheckPacket(bdata, *control_);
  Check(Is(HostManner::kAcknowledgesAny) || outstanding_ == 0 ||
            desk_.Elapsed() - packet_time_ >= kPatience,
        "one packet is outstanding at most");
  outstanding_ = 1;
  packet_time_ = desk_.Elapsed();
  std::ranges::fill(bdata, Byte{0xDD});  // the bytes are the host's
  if (Is(HostManner::kAcknowledges)) Acknowledge();
  InEvent();
}

void CallPlayer::ActGridPop(std::uint8_t maxcam) {
  Check(control_ != nullptr, "a destroyed control raises no event");
  Check(maxcam <= kMostCameras, "a device has 16 cameras at most");
  InEvent();
}

void CallPlayer::ActGridData(std::span<const std::uint8_t> barray) {
  Check(control_ != nullptr, "a destroyed control raises no event");
  Check(barray.size() == 32, "a grid has 32 bytes");
  InEvent();
}

void CallPlayer::Click() {
  Check(control_ != nullptr, "a destroyed control raises no event");
  InEvent();
}

void CallPlayer::DblClick() { Click(); }

void CallPlayer::CheckAtRest() {
  if (control_ != nullptr) CheckModifiedBlocks(*control_);
}

/// What was edited since the image came is in a block that is listed.
void CallPlayer::CheckNothingIsLost() {
  if (control_ == nullptr || !thorough_) return;
  const auto image = control_->Image();
  const auto differences = control_->DifferencesFrom(image);
  if (!differences) {
    Check(control_->Settings().empty(), "an image with settings can be decoded again");
    return;
  }
  if (list_was_emptied_) return;
  const auto modified = control_->ModifiedBlocks();
  for (const SettingDifference& difference : *differences) {
    const bool listed = std::ranges::any_of(difference.blocks, [&modified](Byte block) {
      return std::ranges::find(modified, block) != modified.end();
    });
    if (listed || ChangesWithoutEdit(difference.name)) continue;
    Fail("not listed: " + difference.name + ", " + difference.value + " was " + difference.other);
  }
}

/// A control that is destroyed takes its windows along, and leaves nothing that still happens.
void CallPlayer::End() {
  control_.reset();
  desk_.Advance(10'000);
  Check(desk_.Windows().empty(), "a destroyed control leaves no window");
  Check(!desk_.MenuIsUp(), "a destroyed control leaves no menu");
}

}  // namespace quorvel::fuzz
