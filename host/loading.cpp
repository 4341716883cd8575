// What a Download brings from elsewhere than the device's image: settings files and the factory's
// defaults.
#include <string>
#include <utility>

#include "host/combined_exchange.h"
#include "host/download.h"
#include "host/settings_file.h"
#include "quorvel/default_images.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr int kVariantBlock = 183;
constexpr std::size_t kVariantAt = 8;  // in a reply, behind the block number
constexpr std::size_t kReplyLength = 1 + kBlockSize;
constexpr std::string_view kOtherDataLoaded = "Other data was loaded.";

}  // namespace

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
  BeginAnew(kOtherDataLoaded);
  return restored.lacks_macros ? std::move(macros_missing) : std::string();
}

void Download::LoadDefaults(const DefaultsDevice& device) {
  AdoptDefaults(device, ImageSource::kFactoryForAnother);
  context_.device.UsePcTime = false;
  BeginAnew(kOtherDataLoaded);
}

void Download::BuildDefaults() {
  const int round = BeginAnew("Factory defaults are asked for.");
  context_.device.KeepFlags();
  context_.InitGlobals();
  if (GoesOn(round)) Request(Expecting::kDefaultsProbe, kVariantBlock);
}

void Download::TakeProbe(std::span<const Byte> reply) {
  if (reply[0] != awaited_) return NoteIgnored("FillDataBlk: block " + std::to_string(reply[0]));
  if (reply.size() <= kVariantAt) throw ImageError("block 183 has come without the variant");
  defaults_.DefProbeByte = reply[kVariantAt];
  Request(Expecting::kDefaultsIdentity, kIdentityBlock);
}

void Download::TakeIdentity(std::span<const Byte> reply) {
  if (reply[0] != awaited_) return NoteIgnored("FillDataBlk: block " + std::to_string(reply[0]));
  expecting_ = Expecting::kNothing;
  if (reply.size() < kReplyLength) throw ImageError("block 185 has come without the identity");
  const auto name = reply.subspan<3, 14>();
  defaults_ = NamedDevice(reply[1], reply[2], std::string(name.begin(), name.end()),
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
  context_.platform.Ask({loaded + name, title, Message::Buttons::kOk, Message::Kind::kInformation});
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

}  // namespace quorvel
