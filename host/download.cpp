#include "host/download.h"

#include <utility>

#include "host/combined_exchange.h"
#include "host/settings_file.h"
#include "quorvel/default_images.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr int kVariantBlock = 183;
constexpr std::size_t kVariantAt = 8;  // in a reply, behind the block number
constexpr std::size_t kReplyLength = 1 + kBlockSize;

}  // namespace

int Download::BeginAnew() {
  expecting_ = Expecting::kNothing;
  arriving_.Clear();
  unusable_.reset();
  progress_ = {};
  const int round = ++round_;
  CloseDialog();  // what it waited for does not come any more
  return round;
}

bool Download::GoesOn(int round) const { return round == round_ && !context_.edges.terminated; }

/// A text source of the host may do anything while it is asked for a text, so texts are fetched
/// before the state is looked at.
void Download::FetchTexts() {
  block_text_ = context_.GetText(txt::kDownloadingBlock);
  finished_text_ = context_.GetText(txt::kFinished);
  not_used_text_ = context_.GetText(kTextArrayNotUsed);
  macros_missing_text_ = context_.GetText(kTextMacrosMissing);
  message_title_ = context_.GetText(txt::kMessage);
}

void Download::Receive() {
  const int round = BeginAnew();
  context_.InitGlobals();
  FetchTexts();
  if (!GoesOn(round)) return;
  // A host may answer from inside its event handler, before there is a dialog. The dialog then
  // shows how far the receive has come.
  if (context_.host.ComboMode) {
    expecting_ = Expecting::kComboArray;
    awaited_ = 1;
    host_->RequestComboBlocks();
  } else {
    Request(Expecting::kBlock, 1);
  }
  if (context_.host.HostCommId == 0) OpenDialog(round, false);
}

void Download::Request(Expecting expecting, int number) {
  expecting_ = expecting;
  awaited_ = number;
  host_->RequestBlk(static_cast<Byte>(number));
}

void Download::OpenDialog(int round, bool restored) {
  if (!GoesOn(round)) return;
  const auto dialog = std::make_shared<frm_ULFrMux>(context_);
  if (restored) dialog->ShowRestored();
  if (!GoesOn(round)) return;
  dialog->StopUL = [this] {
    // No further block is asked for, and a reply that still comes must not undo what is edited from
    // now on.
    if (ExpectsDevice()) expecting_ = Expecting::kNothing;
  };
  dialog->SaveFile = [this] {
    context_.edges.Guard("SaveReceivedData", [this] { SaveReceivedData(); });
  };
  frmUL = dialog;
  ShowProgress();
  dialog->ShowModal();
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
  if (data.empty()) throw ImageError("the reply is empty");
  switch (expecting_) {
    case Expecting::kDefaultsProbe: return TakeProbe(data);
    case Expecting::kDefaultsIdentity: return TakeIdentity(data);
    default: break;
  }
  if (context_.host.HostCommId != 0) {
    TakeWholeImage(data);
  } else if (ExpectsDevice()) {
    TakeBlock(data);
  }
}

void Download::TakeBlock(std::span<const Byte> reply) {
  const int number = reply[0];
  if (number != awaited_) return;  // late or repeated: it belongs to no request
  // A longer block would push all that follow out of place.
  if (reply.size() > kReplyLength) throw ImageError("the block has more than 16 bytes");
  expecting_ = Expecting::kNothing;
  arriving_.Append(reply.subspan(1));
  const int count = arriving_.BlkCount();
  const auto bytes = static_cast<std::int32_t>(arriving_.Size());
  progress_.maximum = count;
  if (number <= count) progress_.value = number;
  progress_.bytes = bytes;
  progress_.status = block_text_ + std::to_string(number);
  ShowProgress();

  if (number >= count && bytes >= count * kBlockSize) {
    Adopt(std::exchange(arriving_, {}), ImageSource::kDevice);
    FinishReception(bytes);
  } else if (number < count) {
    Request(Expecting::kBlock, number + 1);
  }
}

/// The device's configuration is on its way. The host chooses how: it may answer a request of one
/// exchange with a reply of the other.
bool Download::ExpectsDevice() const {
  return expecting_ == Expecting::kBlock || expecting_ == Expecting::kComboArray;
}

/// A reply that comes late, or twice, must not undo what was edited since. While nothing is edited,
/// a host may hand over a configuration without having been asked.
bool Download::MayTakeUnasked() const {
  return expecting_ == Expecting::kNothing && context_.device.env.blocks.BlkSavIdx() == 0;
}

void Download::TakeWholeImage(std::span<const Byte> data) {
  if (!ExpectsDevice() && !MayTakeUnasked()) return;
  const auto bytes = data.first(data.size() - 1);  // the last byte is not part of it
  BlockImage image({bytes.begin(), bytes.end()});
  if (image.BlkCount() == 0) throw ImageError("the configuration counts no blocks");
  Adopt(std::move(image), ImageSource::kDevice);
  context_.device.ImageByteCount = static_cast<std::int32_t>(bytes.size());
  TellArrival();
}

void Download::TakeComboArray(std::span<const Byte> data) {
  FetchTexts();
  if (!ExpectsDevice() && !MayTakeUnasked()) return;
  auto array = CombinedArray::Parse(data, context_.device.ComboArray.Header());
  const std::int32_t length = array.Header().TotalLength();
  std::string flaw;
  if (array.HoldsImage()) {
    if (!array.HoldsMacros()) flaw = macros_missing_text_;
    BlockImage image = array.Image();
    if (image.BlkCount() == 0) throw ImageError("the configuration counts no blocks");
    Adopt(std::move(image), ImageSource::kDevice, std::move(array));
    received_combined_ = true;
  } else {
    if (!context_.device.HasImage()) array.RequireImage();  // there is none to fall back on
    // The present image stays, and what was edited in it; what came can be saved.
    flaw = not_used_text_;
    unusable_.emplace(data.begin(), data.end());
    expecting_ = Expecting::kNothing;
  }
  context_.host.ComboMode = true;
  FinishReception(length);
  TellFlaw(flaw);
}

void Download::TellFlaw(const std::string& flaw) {
  if (flaw.empty() || context_.edges.terminated) return;
  context_.platform.Ask({flaw, message_title_, Message::Buttons::kOk, Message::Kind::kWarning});
}

void Download::Adopt(BlockImage image, ImageSource source, CombinedArray array) {
  context_.device.Adopt(std::move(image), source, std::move(array));
  expecting_ = Expecting::kNothing;
  received_combined_ = false;
  unusable_.reset();
}

/// The dialog says "Finished" only of an image that could be decoded.
void Download::FinishReception(std::int32_t bytes) {
  context_.device.ImageByteCount = bytes;
  const int count = context_.device.BlkImage.BlkCount();
  progress_ = {count, count, finished_text_, bytes, true};
  ShowProgress();
  TellArrival();
}

void Download::TellArrival() {
  if (context_.host.HostCommId == 0) {
    host_->UploadSucceeded();
    return;
  }
  host_->ULSucceededWithStr(context_.device.Record().MuxModelName(),
                            context_.device.env.identity.ModelCode,
                            context_.device.env.identity.MaxCam);
}

void Download::SaveReceivedData() {
  // What is on screen is what is saved, also when another image arrives meanwhile.
  auto received =
      received_combined_ ? context_.device.ComboArray.Bytes() : context_.device.BlkImage.Bytes();
  if (unusable_) received = *unusable_;
  SaveBytes(context_, "*.bin", std::vector<Byte>(received.begin(), received.end()));
}

void Download::RestoreImageFromFile() {
  context_.InitGlobals();
  // Also when no file is restored: what is sent next is compared with the device.
  context_.device.LoadedFromFile = true;
  const auto bytes = AskForSettings(context_);
  FetchTexts();
  if (!bytes || context_.edges.terminated) return;
  const Restored restored = AdoptFile(*bytes);
  const int round = BeginAnew();
  FinishReception(restored.bytes);
  if (restored.lacks_macros) TellFlaw(macros_missing_text_);
  OpenDialog(round, true);
}

Download::Restored Download::AdoptFile(std::span<const Byte> bytes) {
  SettingsFile file = ReadSettingsFile(context_.host, bytes);
  const Restored restored{
      file.combined ? file.array.Header().TotalLength() : static_cast<std::int32_t>(bytes.size()),
      file.combined && !file.array.HoldsMacros()};
  Adopt(std::move(file.image), ImageSource::kSettingsFile, std::move(file.array));
  if (file.combined) context_.host.ComboMode = true;
  received_combined_ = file.combined;
  return restored;
}

std::string Download::LoadSettings(std::span<const Byte> bytes) {
  std::string macros_missing(BuiltInText(kTextMacrosMissing));
  const Restored restored = AdoptFile(bytes);
  context_.device.ImageByteCount = restored.bytes;
  context_.device.UsePcTime = false;
  BeginAnew();
  return restored.lacks_macros ? std::move(macros_missing) : std::string();
}

void Download::BuildDefaults() {
  const int round = BeginAnew();
  context_.InitGlobals();
  if (GoesOn(round)) Request(Expecting::kDefaultsProbe, kVariantBlock);
}

void Download::TakeProbe(std::span<const Byte> reply) {
  if (reply[0] != awaited_) return;
  if (reply.size() <= kVariantAt) throw ImageError("block 183 has come without the variant");
  defaults_.DefProbeByte = reply[kVariantAt];
  Request(Expecting::kDefaultsIdentity, kIdentityBlock);
}

void Download::TakeIdentity(std::span<const Byte> reply) {
  if (reply[0] != awaited_) return;
  expecting_ = Expecting::kNothing;
  if (reply.size() < kReplyLength) throw ImageError("block 185 has come without the identity");
  const auto name_bytes = reply.subspan<3, 14>();
  defaults_ = NamedDevice(reply[1], reply[2], std::string(name_bytes.begin(), name_bytes.end()),
                          static_cast<char>(defaults_.DefProbeByte));
  context_.edges.Guard("LoadDefaultData", [this] { LoadDefaultData(); });
}

void Download::LoadDefaultData() {
  const int round = round_;
  const std::string loaded = context_.GetText(txt::kDefaultsLoadedForModel);
  const std::string title = context_.GetText(txt::kMessage);
  if (!GoesOn(round)) return;
  AdoptDefaults(defaults_, ImageSource::kFactory);
  const std::string name = context_.platform.ToUtf8(context_.device.Record().MuxModelName());
  context_.platform.Ask({loaded + name, title, Message::Buttons::kOk});
  if (GoesOn(round)) host_->UploadSucceeded();
}

void Download::AdoptDefaults(const DefaultsDevice& device, ImageSource source) {
  const ComboSizes& sizes = context_.host.combo_sizes;
  BlockImage image = LoadDefaultImage(FactoryImageOf(device.DefModelCode));
  // The sizes belong to the device only while it is one of the combined exchange.
  AdaptToDevice(image, device, context_.host.ComboMode ? sizes.ComboBlockCount : 0);
  const auto bytes = static_cast<std::int32_t>(image.Size());
  CombinedArray array = context_.host.ComboMode ? BuildComboArray(sizes, image) : CombinedArray();
  Adopt(std::move(image), source, std::move(array));
  context_.device.ImageByteCount = bytes;
}

void Download::LoadDefaults(const DefaultsDevice& device) {
  AdoptDefaults(device, ImageSource::kFactoryForAnother);
  context_.device.UsePcTime = false;
  BeginAnew();
}

}  // namespace quorvel
