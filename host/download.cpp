#include "host/download.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr std::size_t kReplyLength = 1 + kBlockSize;

/// A reply that is not taken. The right one still is.
class RefusedReply : public ImageError {
 public:
  using ImageError::ImageError;
};

BlockImage Counted(BlockImage image) {
  if (image.BlkCount() == 0) throw ImageError("the configuration counts no blocks");
  return image;
}

}  // namespace

int Download::BeginAnew(std::string_view why) {
  expecting_ = Expecting::kNothing;
  arriving_.Clear();
  unusable_.reset();
  const int round = ++round_;
  dialog_.Over();  // what it waited for does not come any more
  run_.End(TransferEnd::kStopped, why);
  return round;
}

bool Download::GoesOn(int round) const { return round == round_ && !context_.edges.terminated; }

template <class Body>
void Download::Step(Body&& body) {
  const int round = round_;
  const bool quiet = run_.Quiet();
  try {
    body();
  } catch (const RefusedReply& refusal) {
    if (!quiet) throw;
    context_.edges.Log(LogLevel::kWarning, std::string("a reply was refused: ") + refusal.what());
  } catch (...) {
    if (!quiet) throw;
    const std::string why = FailureReason();
    if (!GoesOn(round) || !run_.UnderWay()) return context_.edges.Log(LogLevel::kError, why);
    expecting_ = Expecting::kNothing;
    run_.End(TransferEnd::kFailed, why);
  }
}

template <class Body>
void Download::LastStep(Body&& body) {
  const int round = round_;
  const bool quiet = run_.Quiet();
  try {
    body();
  } catch (...) {
    if (!quiet && GoesOn(round)) run_.End(TransferEnd::kFailed, FailureReason());
    throw;
  }
}

bool Download::Receive() {
  const int round = BeginAnew("Another receive has begun.");
  if (!GoesOn(round)) {
    run_.Refuse("Something else has begun meanwhile.");
    return false;
  }
  context_.device.UsePcTime = false;
  RequestImage(true);
  return true;
}

void Download::RequestImage(bool quiet) {
  run_.Begin(quiet);
  if (context_.host.ComboMode || context_.host.HostCommId != 0) run_.Expect(1);
  Step([this] {
    if (!context_.host.ComboMode) return Request(Expecting::kBlock, 1);
    expecting_ = Expecting::kComboArray;
    awaited_ = 1;
    host_->RequestComboBlocks();
  });
}

void Download::Request(Expecting expecting, int number) {
  expecting_ = expecting;
  awaited_ = number;
  host_->RequestBlk(static_cast<Byte>(number));
}

void Download::StopReceive(std::string_view why) {
  if (!ExpectsDevice() && !run_.UnderWay()) return;
  expecting_ = Expecting::kNothing;
  ++round_;
  run_.End(TransferEnd::kStopped, why);
}

void Download::Cancel() {
  if (run_.UnderWay()) BeginAnew("The host has cancelled it.");
}

void Download::TakeReply(std::span<const Byte> data) {
  Step([&] {
    if (data.empty()) throw RefusedReply("the reply is empty");
    switch (expecting_) {
      case Expecting::kDefaultsProbe: return TakeProbe(data);
      case Expecting::kDefaultsIdentity: return TakeIdentity(data);
      default: break;
    }
    if (context_.host.HostCommId != 0) {
      TakeWholeImage(data);
    } else {
      TakeBlock(data);
    }
  });
}

void Download::TakeBlock(std::span<const Byte> reply) {
  const int number = reply[0];
  if (!ExpectsDevice() || number != awaited_) {  // late or repeated: it belongs to no request
    return NoteIgnored("FillDataBlk: block " + std::to_string(number));
  }
  // A longer block would push all that follow out of place.
  if (reply.size() > kReplyLength) throw RefusedReply("the block has more than 16 bytes");
  const int round = round_;
  expecting_ = Expecting::kNothing;
  int count = 0;
  LastStep([&] {
    arriving_.Append(reply.subspan(1));
    count = arriving_.BlkCount();
    if (!run_.Quiet()) {
      dialog_.BlockHasCome(number, count, static_cast<std::int32_t>(arriving_.Size()));
    }
    run_.Advance(number, std::max(number, count));
    if (GoesOn(round) && number >= count) TakeAllBlocks();
  });
  if (GoesOn(round) && number < count) Request(Expecting::kBlock, number + 1);
}

void Download::TakeAllBlocks() {
  const auto bytes = static_cast<std::int32_t>(arriving_.Size());
  const int counted = arriving_.BlkCount() * kBlockSize;
  if (bytes < counted) {
    return run_.End(TransferEnd::kFailed, "The device has sent " + std::to_string(bytes) +
                                              " bytes of blocks that take " +
                                              std::to_string(counted) + ".");
  }
  Adopt(std::exchange(arriving_, {}), ImageSource::kDevice);
  FinishReception(bytes);
}

/// The device's configuration is on its way. The host chooses how: it may answer a request of one
/// exchange with a reply of the other.
bool Download::ExpectsDevice() const {
  return expecting_ == Expecting::kBlock || expecting_ == Expecting::kComboArray;
}

/// A reply that comes late, or twice, must not undo what was edited since, nor replace what was
/// loaded. While nothing is edited, a host may hand over a configuration without having been asked.
bool Download::MayTakeUnasked() const {
  return expecting_ == Expecting::kNothing && context_.device.env.blocks.BlkSavIdx() == 0 &&
         context_.device.IsDevicesOwn();
}

void Download::NoteIgnored(std::string_view what) const {
  std::string line(what);
  line += " was ignored: ";
  line += expecting_ == Expecting::kNothing ? "nothing is awaited"
                                            : "block " + std::to_string(awaited_) + " is awaited";
  context_.edges.Log(LogLevel::kWarning, line);
}

void Download::TakeWholeImage(std::span<const Byte> data) {
  if (!ExpectsDevice() && !MayTakeUnasked()) return NoteIgnored("FillDataBlk: an image");
  const int round = round_;
  LastStep([&] {
    run_.Advance(1, 1);
    if (!GoesOn(round)) return;
    const auto bytes = data.first(data.size() - 1);  // the last byte is not part of it
    Adopt(Counted(BlockImage({bytes.begin(), bytes.end()})), ImageSource::kDevice);
    context_.device.ImageByteCount = static_cast<std::int32_t>(bytes.size());
    TellArrival(TransferEnd::kFinished, {});
  });
}

void Download::TakeComboArray(std::span<const Byte> data) {
  Step([&] {
    if (!run_.Quiet()) dialog_.ArrayHasCome();
    if (!ExpectsDevice() && !MayTakeUnasked()) return NoteIgnored("FillComboBlk: an array");
    const int round = round_;
    LastStep([&] {
      run_.Advance(1, 1);
      if (!GoesOn(round)) return;
      auto array = CombinedArray::Parse(data, context_.device.ComboArray.Header());
      if (array.HoldsImage()) {
        TakeImageOf(std::move(array));
      } else {
        KeepUnusable(data, array);
      }
    });
  });
}

void Download::TakeImageOf(CombinedArray array) {
  const bool quiet = run_.Quiet();
  const bool lacks_macros = !array.HoldsMacros();
  const std::int32_t length = array.Header().TotalLength();
  BlockImage image = Counted(array.Image());
  Adopt(std::move(image), ImageSource::kDevice, std::move(array));
  received_combined_ = true;
  context_.host.ComboMode = true;
  FinishReception(length);
  if (lacks_macros) TellFlaw(ArrayFlaw::kMacrosMissing, quiet);
}

/// The present image stays, and what was edited in it; what came can be saved.
void Download::KeepUnusable(std::span<const Byte> data, const CombinedArray& array) {
  if (!context_.device.HasImage()) array.RequireImage();  // there is none to fall back on
  unusable_.emplace(data.begin(), data.end());
  expecting_ = Expecting::kNothing;
  context_.host.ComboMode = true;
  const std::string_view why = BuiltInText(kTextArrayNotUsed);
  if (run_.Quiet()) return run_.End(TransferEnd::kFailed, why);
  FinishReception(array.Header().TotalLength(), TransferEnd::kFailed, why);
  TellFlaw(ArrayFlaw::kNotUsed, false);
}

void Download::TellFlaw(ArrayFlaw flaw, bool quiet) {
  const int text = flaw == ArrayFlaw::kNotUsed ? kTextArrayNotUsed : kTextMacrosMissing;
  context_.edges.Log(LogLevel::kWarning, BuiltInText(text));
  if (!quiet && !context_.edges.terminated) dialog_.Flawed(flaw);
}

void Download::Adopt(BlockImage image, ImageSource source, CombinedArray array) {
  constexpr std::array kFrom{"the device", "a settings file", "the factory", "the factory"};
  const int step =
      source == ImageSource::kSettingsFile ? txt::kRestoreBlockData : kTextFactoryDefaults;
  context_.device.Adopt(std::move(image), source, std::move(array), {{}, step});
  expecting_ = Expecting::kNothing;
  received_combined_ = false;
  unusable_.reset();
  const int count = context_.device.BlkImage.BlkCount();
  context_.edges.Log(LogLevel::kInformation, "a configuration of " + std::to_string(count) +
                                                 " blocks is here, from " +
                                                 kFrom.at(static_cast<std::size_t>(source)));
}

/// The dialog says "Finished" only of an image that could be decoded.
void Download::FinishReception(std::int32_t bytes, TransferEnd end, std::string_view cause) {
  context_.device.ImageByteCount = bytes;
  if (!run_.Quiet()) dialog_.AllHasCome(context_.device.BlkImage.BlkCount(), bytes);
  TellArrival(end, cause);
}

/// The observer first: the receive is over when the host hears that its image is here. An image
/// that the observer has replaced is not told of.
void Download::TellArrival(TransferEnd end, std::string_view cause) {
  const int generation = context_.device.ImageGeneration();
  run_.End(end, cause);
  if (generation != context_.device.ImageGeneration()) return;
  if (context_.host.HostCommId == 0) {
    host_->UploadSucceeded();
    return;
  }
  host_->ULSucceededWithStr(context_.device.Record().MuxModelName(),
                            context_.device.env.identity.ModelCode,
                            context_.device.env.identity.MaxCam);
}

std::vector<Byte> Download::ReceivedBytes() const {
  if (unusable_) return *unusable_;
  const auto bytes =
      received_combined_ ? context_.device.ComboArray.Bytes() : context_.device.BlkImage.Bytes();
  return {bytes.begin(), bytes.end()};
}

}  // namespace quorvel
