#include "apps/muxhost/simulated_device.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "core/identity.h"
#include "resources/default_images.h"

namespace quorvel::muxhost {

namespace {

constexpr int kMostBlocks = 255;
constexpr int kMostModels = 21;
constexpr int kFirstDuplexModel = 2;
constexpr int kFirstTriplexModel = 6;
constexpr std::size_t kNameLength = 14;
constexpr std::size_t kPacketSize = 18;
constexpr Byte kEndNumber = 255;
constexpr int kVariantBlock = 183;
constexpr int kVariantByte = 7;

void Check(bool good, const std::string& rule) {
  if (!good) throw std::invalid_argument(rule);
}

void CheckSetup(const DeviceSetup& setup) {
  constexpr std::array kCameraCounts{4, 9, 10, 16};
  Check(setup.model >= 0 && setup.model < kMostModels,
        "model must be 0 to 20, not " + std::to_string(setup.model));
  Check(std::find(kCameraCounts.begin(), kCameraCounts.end(), setup.cameras) != kCameraCounts.end(),
        "cameras must be 4, 9, 10 or 16, not " + std::to_string(setup.cameras));
  const int blocks = setup.blocks.value_or(1);
  Check(blocks >= 1 && blocks <= kMostBlocks,
        "blocks must be 1 to 255, not " + std::to_string(blocks));
  Check(setup.name.value_or("").size() <= kNameLength, "name must be at most 14 characters");
}

int FactoryImage(int model) {
  if (model >= kFirstTriplexModel) return 401;
  return model >= kFirstDuplexModel ? 301 : 104;
}

int UsualBlocks(int model) { return model >= kFirstTriplexModel ? 225 : 185; }

std::string UsualName(const DeviceSetup& setup) {
  const std::string cameras = std::to_string(setup.cameras);
  if (setup.model >= kFirstTriplexModel) return "TX" + cameras;
  if (setup.model >= kFirstDuplexModel) return "DX" + cameras;
  return (setup.model == 1 ? "DR" : "MX") + cameras;
}

/// What an alarm shows on the displays 1 to 3 are the cameras around its own; on a small device
/// they wrap at its last camera.
void WrapDisplays(BlockImage& image, int cameras) {
  struct Display {
    int block;
    int offset;
  };
  for (const Display display : {Display{38, -1}, Display{40, 1}, Display{42, 2}}) {
    const auto block = image.Block(display.block);
    for (int k = 0; k < cameras; ++k) {
      block[static_cast<std::size_t>(k)] =
          static_cast<Byte>((k + display.offset + cameras) % cameras);
    }
  }
}

BlockImage MakeImage(const DeviceSetup& setup) {
  CheckSetup(setup);
  BlockImage image = LoadDefaultImage(FactoryImage(setup.model));
  WriteIdentityBlock(image, static_cast<Byte>(setup.cameras), static_cast<Byte>(setup.model),
                     setup.name.value_or(UsualName(setup)));
  if (setup.variant) image.Block(kVariantBlock)[kVariantByte] = static_cast<Byte>(*setup.variant);
  if (setup.cameras < kMostCameras) WrapDisplays(image, setup.cameras);
  return image;
}

std::vector<Byte> BytesOfBlock(const BlockImage& image, int n) {
  const auto block = image.Block(n);
  return {block.begin(), block.end()};
}

}  // namespace

SimulatedDevice::SimulatedDevice(const DeviceSetup& setup)
    : image_(MakeImage(setup)), identity_(BytesOfBlock(image_, kIdentityBlock)) {
  const int blocks = setup.blocks.value_or(UsualBlocks(setup.model));
  image_.Block(1)[kBlockCountByte] = static_cast<Byte>(blocks);
  image_.ResizeBlocks(blocks);
}

SimulatedDevice::SimulatedDevice(std::vector<Byte> image) : image_(std::move(image)) {
  const std::size_t size = image_.Size();
  Check(size > 0 && size % kBlockSize == 0 && size <= std::size_t{kMostBlocks} * kBlockSize,
        "an image must be 1 to 255 blocks of 16 bytes, not " + std::to_string(size) + " bytes");
  if (image_.Holds(kIdentityBlock)) {
    identity_ = BytesOfBlock(image_, kIdentityBlock);
  } else {
    identity_.assign(kBlockSize, 0);
    identity_[0] = kMostCameras;
  }
}

std::optional<std::vector<Byte>> SimulatedDevice::ReadBlock(int n) const {
  if (!image_.Holds(n)) return std::nullopt;
  return BytesOfBlock(image_, n);
}

SimulatedDevice::Written SimulatedDevice::WritePacket(std::span<const Byte> packet) {
  if (packet.size() != kPacketSize) return Written::kRefused;
  const auto data = packet.subspan(1, kBlockSize);
  const bool all_zero = std::all_of(data.begin(), data.end(), [](Byte byte) { return byte == 0; });
  if (packet[0] == kEndNumber && all_zero) return Written::kEnd;
  if (!image_.Holds(packet[0])) return Written::kRefused;
  std::copy(data.begin(), data.end(), image_.Block(packet[0]).begin());
  return Written::kBlock;
}

}  // namespace quorvel::muxhost
