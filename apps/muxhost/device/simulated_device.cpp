#include "muxhost/device/simulated_device.h"

#include <algorithm>
#include <stdexcept>

#include "muxhost/device/combined_parts.h"
#include "quorvel/combined_array.h"
#include "quorvel/identity.h"

namespace quorvel::muxhost {

namespace {

constexpr std::size_t kPacketSize = 18;
constexpr Byte kEndNumber = 255;
/// Blocks up to 254 that a send of all blocks brings at least: without macros it passes over 34.
constexpr int kFewestOfAllBlocks = 220;

std::vector<Byte> BytesOfBlock(const BlockImage& image, int n) {
  const auto block = image.Block(n);
  return {block.begin(), block.end()};
}

}  // namespace

SimulatedDevice::SimulatedDevice(const DeviceSetup& setup)
    : image_(FactoryImage(setup)),
      identity_(BytesOfBlock(image_, kIdentityBlock)),
      combined_(setup.combined) {
  const int blocks = BlocksOf(setup);
  image_.Block(1)[kBlockCountByte] = static_cast<Byte>(blocks);
  image_.ResizeBlocks(blocks);
  MakeMacros();
}

SimulatedDevice::SimulatedDevice(std::vector<Byte> image,
                                 const std::optional<CombinedSetup>& combined)
    : image_(std::move(image)), combined_(combined) {
  const std::size_t size = image_.Size();
  CheckSetup(
      size > 0 && size % kBlockSize == 0 && size <= std::size_t{kMostDeviceBlocks} * kBlockSize,
      "an image must be 1 to 255 blocks of 16 bytes, not " + std::to_string(size) + " bytes");
  if (image_.Holds(kIdentityBlock)) {
    identity_ = BytesOfBlock(image_, kIdentityBlock);
  } else {
    identity_.assign(kBlockSize, 0);
    identity_[0] = kMostCameras;
  }
  MakeMacros();
}

void SimulatedDevice::MakeMacros() {
  if (!combined_) return;
  CheckSetup(*combined_);
  const int size = combined_->macros * combined_->macro_size;
  for (int i = 0; i < size; ++i) macros_.push_back(static_cast<Byte>(i));
}

const CombinedSetup& SimulatedDevice::Combined() const {
  if (!combined_) throw std::logic_error("the device does not speak the combined exchange");
  return *combined_;
}

std::optional<std::vector<Byte>> SimulatedDevice::ReadBlock(int n) const {
  if (!image_.Holds(n)) return std::nullopt;
  return BytesOfBlock(image_, n);
}

bool SimulatedDevice::EndsSend(std::span<const Byte> packet) const {
  if (packet.size() != kPacketSize || packet[0] != kEndNumber) return false;
  if (std::any_of(packet.begin() + 1, packet.end(), [](Byte byte) { return byte != 0; })) {
    return false;
  }
  const bool all_before = last_written_ == kEndNumber - 1 && ascending_ >= kFewestOfAllBlocks;
  return !(image_.Holds(kEndNumber) && all_before);
}

SimulatedDevice::Written SimulatedDevice::WritePacket(std::span<const Byte> packet) {
  if (EndsSend(packet)) {
    last_written_ = 0;
    ascending_ = 0;
    return Written::kEnd;
  }
  if (packet.size() != kPacketSize || !image_.Holds(packet[0])) return Written::kRefused;
  const auto data = packet.subspan(1, kBlockSize);
  std::copy(data.begin(), data.end(), image_.Block(packet[0]).begin());
  ascending_ = packet[0] > last_written_ ? ascending_ + 1 : 1;
  last_written_ = packet[0];
  return Written::kBlock;
}

std::vector<Byte> SimulatedDevice::Sizes() const {
  const auto array = CombinedBytes();
  // The header has the same fields in the same order, behind three lengths.
  constexpr int kLengths = 6;
  return {array.begin() + kLengths, array.begin() + ComboHeader::kSize};
}

std::vector<Byte> SimulatedDevice::CombinedBytes() const {
  const CombinedSetup& setup = Combined();
  ComboHeader header;
  header.HdrLen = ComboHeader::kSize;
  header.DataLen = static_cast<std::uint16_t>(image_.Size());
  header.MacroLen = static_cast<std::uint16_t>(macros_.size());
  header.MacroRecSize = static_cast<std::uint16_t>(setup.macro_size);
  header.MacroCount = static_cast<Byte>(setup.macros);
  header.BlockCount = static_cast<std::uint16_t>(BlockCount());
  header.ExtraA = static_cast<Byte>(setup.firmware_major);
  header.ExtraB = static_cast<Byte>(setup.firmware_minor);
  const CombinedArray array = CombinedArray::Build(header, image_);
  std::vector<Byte> bytes(array.Bytes().begin(), array.Bytes().end());
  std::copy(macros_.begin(), macros_.end(),
            bytes.end() - static_cast<std::ptrdiff_t>(macros_.size()));
  return bytes;
}

bool SimulatedDevice::WriteCombined(std::span<const Byte> array) {
  const auto parts = TakeApart(array);
  if (!combined_ || !parts || parts->block_count > BlockCount() ||
      parts->macro_count > combined_->macros) {
    return false;
  }
  for (std::size_t n = 0; n < parts->blocks.size() / kBlockSize; ++n) {
    const auto block = parts->blocks.subspan(n * kBlockSize, kBlockSize);
    std::copy(block.begin(), block.end(), image_.Block(static_cast<int>(n) + 1).begin());
  }
  if (parts->macros.empty()) return true;
  const auto theirs = static_cast<std::size_t>(parts->macro_size);
  const auto ours = static_cast<std::size_t>(combined_->macro_size);
  for (std::size_t n = 0; n < static_cast<std::size_t>(parts->macro_count); ++n) {
    const auto record = parts->macros.subspan(n * theirs, std::min(theirs, ours));
    std::copy(record.begin(), record.end(),
              macros_.begin() + static_cast<std::ptrdiff_t>(n * ours));
  }
  return true;
}

}  // namespace quorvel::muxhost
