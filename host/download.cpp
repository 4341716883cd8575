#include "host/download.h"

#include <algorithm>
#include <string>

#include "host/combined_exchange.h"
#include "host/settings_file.h"
#include "resources/default_images.h"

namespace quorvel {

namespace {

constexpr int kTextDownloadingBlock = 269;
constexpr int kTextFinished = 271;
constexpr int kTextDefaultsLoaded = 273;
constexpr int kTextMessage = 32;

constexpr int kVariantBlock = 183;
constexpr std::size_t kVariantAt = 8;  // in a reply, behind the block number
constexpr std::size_t kReplyLength = 1 + kBlockSize;
constexpr Byte kModelCodeMask = 0x7F;

}  // namespace

void Download::BeginAnew() {
  ++round_;
  expecting_ = Expecting::kNothing;
  StopReceive = false;
  progress_ = {};
}

void Download::Receive() {
  BeginAnew();
  const int round = round_;
  context_.InitGlobals();
  // A host may answer from inside its event handler, before there is a dialog. The dialog then
  // opens on what has been reached.
  if (context_.ComboMode) {
    expecting_ = Expecting::kComboArray;
    host_->RequestComboBlocks();
  } else {
    context_.BeginImage();
    received_combined_ = false;
    Request(Expecting::kBlock, 1);
  }
  if (context_.HostCommId == 0 && round == round_) OpenDialog(false);
}

void Download::Request(Expecting expecting, int number) {
  expecting_ = expecting;
  awaited_ = number;
  host_->RequestBlk(static_cast<Byte>(number));
}

void Download::OpenDialog(bool restored) {
  CloseDialog();
  const auto dialog = std::make_shared<frm_ULFrMux>(context_);
  dialog->StopUL = [this] { StopReceive = true; };
  dialog->SaveFile = [this] { SaveReceivedData(); };
  if (restored) dialog->ShowRestored();
  frmUL = dialog;
  ShowProgress();
  // The host's texts are host code, too: they may have destroyed the control.
  if (!context_.terminated) dialog->ShowModal();
}

void Download::CloseDialog() {
  const auto dialog = std::move(frmUL);
  if (dialog == nullptr) return;
  dialog->StopUL = nullptr;
  dialog->Close();
}

void Download::ShowProgress() {
  if (frmUL != nullptr) frmUL->ShowProgress(progress_);
}

void Download::TakeReply(std::span<const Byte> data) {
  if (data.empty()) throw ImageError("a reply without a byte");
  switch (expecting_) {
    case Expecting::kDefaultsProbe: return TakeProbe(data);
    case Expecting::kDefaultsIdentity: return TakeIdentity(data);
    default: break;
  }
  if (context_.HostCommId != 0) {
    TakeWholeImage(data);
  } else if (expecting_ == Expecting::kBlock) {
    TakeBlock(data);
  }
}

void Download::TakeBlock(std::span<const Byte> reply) {
  const int number = reply[0];
  if (number != awaited_) return;  // late or repeated: it belongs to no request
  // A longer block would push all that follow out of place.
  if (reply.size() > kReplyLength) throw ImageError("a block of more than 16 bytes");
  expecting_ = Expecting::kNothing;
  const auto payload = reply.subspan(1);
  context_.ImageByteCount += static_cast<std::int32_t>(payload.size());
  context_.BlkImage.Append(payload);
  const int count = context_.BlkImage.BlkCount();
  if (number == 1) {
    context_.env.blocks.SetMaxBlk(static_cast<Byte>(count));
    progress_.maximum = count;
  }
  progress_.bytes = context_.ImageByteCount;
  progress_.status = context_.GetText(kTextDownloadingBlock) + std::to_string(number);
  if (number <= count) progress_.value = number;
  ShowProgress();

  if (number >= count && context_.ImageByteCount >= count * kBlockSize) {
    context_.Adopt(context_.BlkImage, ImageSource::kDevice);
    FinishReception();
  } else if (number < count && !StopReceive) {
    Request(Expecting::kBlock, number + 1);
  }
}

/// A reply that comes late, or twice, must not undo what was edited since. While nothing is edited,
/// a host may hand over a configuration without having been asked.
bool Download::MayTakeUnasked() const {
  return expecting_ == Expecting::kNothing && context_.env.blocks.BlkSavIdx() == 0;
}

void Download::TakeWholeImage(std::span<const Byte> data) {
  if (expecting_ != Expecting::kBlock && !MayTakeUnasked()) return;
  expecting_ = Expecting::kNothing;
  const auto bytes = data.first(data.size() - 1);  // the last byte is not part of it
  context_.Adopt(BlockImage({bytes.begin(), bytes.end()}), ImageSource::kDevice);
  context_.ImageByteCount = static_cast<std::int32_t>(bytes.size());
  received_combined_ = false;
  TellArrival();
}

void Download::TakeComboArray(std::span<const Byte> data) {
  if (expecting_ != Expecting::kComboArray && !MayTakeUnasked()) return;
  expecting_ = Expecting::kNothing;
  auto array = CombinedArray::Parse(data, context_.ComboArray.Header());
  context_.ComboMode = true;
  const std::int32_t length = array.Header().TotalLength();
  if (array.HoldsImage()) {
    context_.Adopt(array.Image(), ImageSource::kDevice);
    context_.ComboArray = std::move(array);
    received_combined_ = true;
  } else {
    // It contradicts itself: the present image stays, with its array, and is decoded anew.
    if (!context_.ImageIsDecoded()) throw ImageError("there is no image to fall back on");
    context_.Adopt(context_.BlkImage,
                   context_.LoadedFromFile ? ImageSource::kSettingsFile : ImageSource::kDevice);
  }
  context_.ImageByteCount = length;
  FinishReception();
}

/// The dialog says "Finished" only of an image that could be decoded.
void Download::FinishReception() {
  const int count = context_.BlkImage.BlkCount();
  progress_ = {count, count, context_.GetText(kTextFinished), context_.ImageByteCount, true};
  ShowProgress();
  TellArrival();
}

void Download::TellArrival() {
  if (context_.HostCommId == 0) {
    host_->UploadSucceeded();
    return;
  }
  host_->ULSucceededWithStr(context_.Record().MuxModelName(), context_.env.identity.ModelCode,
                            context_.env.identity.MaxCam);
}

void Download::SaveReceivedData() {
  // What is on screen is what is saved, also when another image begins to arrive meanwhile.
  const auto received =
      received_combined_ ? context_.ComboArray.Bytes() : context_.BlkImage.Bytes();
  SaveBytes(context_, "*.bin", std::vector<Byte>(received.begin(), received.end()));
}

void Download::RestoreImageFromFile() {
  context_.InitGlobals();
  // Also when nothing comes of it: what is sent next is compared with the device.
  context_.LoadedFromFile = true;
  const auto bytes = AskForSettings(context_);
  if (!bytes || context_.terminated) return;
  SettingsFile file = ReadSettingsFile(context_, *bytes);
  context_.Adopt(std::move(file.image), ImageSource::kSettingsFile);
  context_.ImageByteCount = static_cast<std::int32_t>(bytes->size());
  if (file.array) context_.ComboArray = std::move(*file.array);
  if (file.combined) context_.ComboMode = true;
  received_combined_ = file.combined;
  BeginAnew();
  const int round = round_;
  FinishReception();
  if (round == round_) OpenDialog(true);
}

void Download::BuildDefaults() {
  BeginAnew();
  CloseDialog();  // what it waited for does not come any more
  context_.InitGlobals();
  Request(Expecting::kDefaultsProbe, kVariantBlock);
}

void Download::TakeProbe(std::span<const Byte> reply) {
  if (reply[0] != awaited_) return;
  if (reply.size() <= kVariantAt) throw ImageError("a block without a variant character");
  defaults_.DefProbeByte = reply[kVariantAt];
  Request(Expecting::kDefaultsIdentity, kIdentityBlock);
}

void Download::TakeIdentity(std::span<const Byte> reply) {
  if (reply[0] != awaited_) return;
  expecting_ = Expecting::kNothing;
  if (reply.size() < kReplyLength) throw ImageError("a block without an identity");
  defaults_.DefChannels = reply[1];
  defaults_.DefModelCode = reply[2] & kModelCodeMask;
  std::copy_n(reply.begin() + 3, defaults_.DefModelName.size(), defaults_.DefModelName.begin());
  context_.Guard("LoadDefaultData", [this] { LoadDefaultData(); });
}

void Download::LoadDefaultData() {
  BlockImage image = LoadDefaultImage(FactoryImageOf(defaults_.DefModelCode));
  AdaptToDevice(image, defaults_, context_.combo_sizes.ComboBlockCount);
  context_.ImageByteCount = static_cast<std::int32_t>(image.Size());
  context_.Adopt(std::move(image), ImageSource::kFactory);
  received_combined_ = false;
  const int round = round_;
  const std::string name = context_.platform.ToUtf8(context_.Record().MuxModelName());
  context_.platform.Ask({context_.GetText(kTextDefaultsLoaded) + name,
                         context_.GetText(kTextMessage), Message::Buttons::kOk});
  if (round == round_) host_->UploadSucceeded();
}

}  // namespace quorvel
