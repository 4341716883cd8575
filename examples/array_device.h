#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "quorvel/default_images.h"
#include "quorvel/identity.h"

/// The device of the examples: an image in memory, of a recorder as it left the factory.
class ArrayDevice {
 public:
  static constexpr std::uint8_t kCameras = 4, kModelCode = 6;
  static constexpr std::string_view kName = "EXAMPLE";

  ArrayDevice() { quorvel::WriteIdentityBlock(image_, kCameras, kModelCode, kName); }

  /// Who it is, as SaveConnectedInfo takes it.
  [[nodiscard]] static std::vector<std::uint8_t> Identity() {
    std::vector<std::uint8_t> identity{0, kCameras, kModelCode};
    identity.insert(identity.end(), kName.begin(), kName.end());
    return identity;
  }
  /// A block, as FillDataBlk takes it.
  [[nodiscard]] std::vector<std::uint8_t> Read(std::uint8_t number) const {
    std::vector<std::uint8_t> reply{number};
    const auto block = image_.Block(number);
    reply.insert(reply.end(), block.begin(), block.end());
    return reply;
  }
  /// A packet, as DownLoadData brings it. One for block 255 ends a send.
  void Write(std::span<const std::uint8_t> packet) {
    if (!image_.Holds(packet[0])) return;
    std::ranges::copy(packet.subspan(1, quorvel::kBlockSize), image_.Block(packet[0]).begin());
  }
  [[nodiscard]] std::span<const std::uint8_t> Image() const { return image_.Bytes(); }

 private:
  quorvel::BlockImage image_ = quorvel::LoadDefaultImage(401);
};
