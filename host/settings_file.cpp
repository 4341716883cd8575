#include "host/settings_file.h"

#include "host/combined_exchange.h"
#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr const char* kFileName = "MuxMenuSave.bin";
constexpr const char* kFilter = "*.bin";

/// The block count that a plain image states, as a length in bytes.
std::size_t LengthByItsCount(std::span<const Byte> bytes) {
  return bytes.size() > kBlockCountByte ? std::size_t{bytes[kBlockCountByte]} * kBlockSize : 0;
}

/// In the combined exchange a file with more than the device's blocks is a combined array. Where
/// the host has stated no number of blocks, a file is a plain image when it is short, or as long as
/// its own count says.
bool IsCombinedFile(const HostStatements& host, std::span<const Byte> bytes) {
  constexpr std::size_t kLongestImage = 3488;
  if (host.ComboMode && host.combo_sizes.ComboBlockCount > 0) {
    return bytes.size() > std::size_t{host.combo_sizes.ComboBlockCount} * kBlockSize;
  }
  return bytes.size() > kLongestImage && bytes.size() != LengthByItsCount(bytes);
}

/// A combined file of a device with fewer blocks is as short as a plain image. As one it would be
/// read 13 bytes out of place.
void RefuseMisplaced(std::span<const Byte> bytes) {
  if (bytes.size() == LengthByItsCount(bytes)) return;
  const auto array = CombinedArray::Parse(bytes, {});
  if (array.HoldsImage() && array.Bytes().size() == bytes.size() &&
      array.Header().TotalLength() == static_cast<std::int32_t>(bytes.size())) {
    throw ImageError("the file holds the combined array of a device with fewer blocks");
  }
}

/// Restored data of a multiplexer or duplex recorder locks the keyboard, as its factory defaults
/// do. A model byte with its mark bit set does not count as one of them.
void LockOldKeyboards(BlockImage& image, Byte host_comm_id) {
  constexpr Byte kFirstTriplexModel = 6;
  constexpr int kLockBlock = 60;
  constexpr std::size_t kLockByte = 5;
  if (host_comm_id != 0 || !image.Holds(kIdentityBlock)) return;
  if (image.Block(kIdentityBlock)[1] < kFirstTriplexModel) image.Block(kLockBlock)[kLockByte] = 1;
}

FileRequest SaveRequest(const std::string& default_name) {
  FileRequest request;
  request.purpose = FileRequest::Purpose::kSave;
  request.default_name = default_name;
  request.filter = kFilter;
  request.default_extension = "bin";
  request.ask_before_overwriting = true;
  return request;
}

void Write(Context& context, const std::string& path, std::span<const Byte> bytes) {
  context.platform.StoreFile(path, bytes);
  if (bytes.size() < kRestoreLimit) return;
  const Message message{context.GetText(kTextTooLongToRestore), context.GetText(txt::kMessage),
                        Message::Buttons::kOk, Message::Kind::kWarning};
  if (!context.edges.terminated) context.platform.Ask(message);
}

FileRequest RestoreRequest() {
  FileRequest request;
  request.purpose = FileRequest::Purpose::kOpen;
  request.default_name = kFilter;
  request.filter = kFilter;
  request.must_exist = true;
  request.read_only_box = true;
  return request;
}

}  // namespace

SettingsFile ReadSettingsFile(const HostStatements& host, std::span<const Byte> bytes) {
  if (bytes.size() >= kRestoreLimit) {
    throw ImageError("the file has " + std::to_string(bytes.size()) +
                     " bytes; files of 32768 bytes or more cannot be restored");
  }
  SettingsFile file;
  file.combined = IsCombinedFile(host, bytes);
  if (file.combined) {
    file.array = CombinedArray::Parse(bytes, {});
    file.image = file.array.Image();
  } else {
    RefuseMisplaced(bytes);
    file.image = BlockImage({bytes.begin(), bytes.end()});
    if (host.ComboMode) file.array = BuildComboArray(host.combo_sizes, file.image);
  }
  if (file.image.BlkCountOrZero() == 0) {
    throw ImageError("this is no configuration: it counts no blocks");
  }
  LockOldKeyboards(file.image, host.HostCommId);
  return file;
}

std::optional<std::vector<Byte>> AskForSettings(Context& context) {
  const auto path = context.platform.AskFile(RestoreRequest());
  if (!path) return std::nullopt;
  return context.platform.ReadFile(*path);
}

void SaveBytes(Context& context, const std::string& default_name, std::span<const Byte> bytes) {
  const auto path = context.platform.AskFile(SaveRequest(default_name));
  if (path) Write(context, *path, bytes);
}

std::vector<Byte> SettingsToSave(Context& context) {
  DeviceState& device = context.device;
  if (!device.HasImage()) return {};
  context.EncodeListedBlocks();
  auto bytes = device.BlkImage.Bytes();
  if (context.host.ComboMode) {
    ProvideComboArray(device, context.host.combo_sizes);
    device.ComboArray.PutImage(device.BlkImage);
    bytes = device.ComboArray.Bytes();
  }
  return {bytes.begin(), bytes.end()};
}

void SaveImageToFile(Context& context) {
  if (!context.device.HasImage()) return;
  const auto path = context.platform.AskFile(SaveRequest(kFileName));
  if (!path || context.edges.terminated) return;
  Write(context, *path, SettingsToSave(context));
}

}  // namespace quorvel
