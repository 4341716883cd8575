#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/block_image.h"

namespace quorvel::muxhost {

/// What a simulated device is made like. Values left out follow from the model.
struct DeviceSetup {
  int model = 6;                         ///< model code, 0 to 20
  int cameras = 16;                      ///< 4, 9, 10 or 16
  std::optional<int> blocks = {};        ///< 1 to 255; 185, or 225 from model 6 on
  std::optional<char> variant = {};      ///< the variant character; as in the factory image
  std::optional<std::string> name = {};  ///< at most 14 bytes; made from the family and the cameras
};

/// A multiplexer or recorder that lives in memory: it holds its configuration as numbered blocks,
/// which a host reads and writes one by one.
class SimulatedDevice {
 public:
  enum class Written {
    kBlock,    ///< the block was stored
    kEnd,      ///< the packet ended the send
    kRefused,  ///< the device has no such block, or the packet is broken
  };

  /// A device fresh from the factory. Throws std::invalid_argument, naming the value, for a setup
  /// that no device has.
  explicit SimulatedDevice(const DeviceSetup& setup = {});
  /// A device that holds these bytes, block 1 first. Throws std::invalid_argument unless they are 1
  /// to 255 whole blocks. Bytes that make no sense as a configuration are taken as they are.
  explicit SimulatedDevice(std::vector<Byte> image);

  [[nodiscard]] int BlockCount() const { return static_cast<int>(image_.Size()) / kBlockSize; }
  [[nodiscard]] std::span<const Byte> Bytes() const { return image_.Bytes(); }
  /// The 16 bytes of block `n` (from 1); nothing when the device has no such block.
  [[nodiscard]] std::optional<std::vector<Byte>> ReadBlock(int n) const;
  /// Takes a packet of 18 bytes: block number, 16 bytes, 0. Number 255 with zero bytes ends a send;
  /// on a device with 255 blocks such a packet cannot be told from a block of zeros and ends it
  /// too.
  Written WritePacket(std::span<const Byte> packet);

  /// What the device says when asked who it is: cameras, model code, 14 bytes of model name. It
  /// does not change when the identity block is overwritten.
  [[nodiscard]] const std::vector<Byte>& IdentityBytes() const { return identity_; }
  [[nodiscard]] int ModelCode() const { return identity_[1] & 0x7F; }

 private:
  BlockImage image_;
  std::vector<Byte> identity_;
};

}  // namespace quorvel::muxhost
