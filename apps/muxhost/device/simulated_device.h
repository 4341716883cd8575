#pragma once

#include <optional>
#include <span>
#include <vector>

#include "muxhost/device/device_setup.h"
#include "quorvel/block_image.h"

namespace quorvel::muxhost {

/// A multiplexer or recorder that lives in memory: it holds its configuration as numbered blocks,
/// which a host reads and writes one by one. One that speaks the combined exchange has macro data,
/// too, and gives and takes both in one array.
class SimulatedDevice {
 public:
  enum class Written {
    kBlock,    ///< the block was stored
    kEnd,      ///< the packet ended the send
    kRefused,  ///< the device has no such block, or the packet is broken
  };

  /// A device fresh from the factory, its macro bytes counting from 0. Throws
  /// std::invalid_argument, naming the value, for a setup that no device has.
  explicit SimulatedDevice(const DeviceSetup& setup = {});
  /// A device that holds these bytes, block 1 first. Throws std::invalid_argument unless they are 1
  /// to 255 whole blocks. Bytes that make no sense as a configuration are taken as they are.
  explicit SimulatedDevice(std::vector<Byte> image,
                           const std::optional<CombinedSetup>& combined = {});

  [[nodiscard]] int BlockCount() const { return static_cast<int>(image_.Size()) / kBlockSize; }
  [[nodiscard]] std::span<const Byte> Bytes() const { return image_.Bytes(); }
  /// The 16 bytes of block `n` (from 1); nothing when the device has no such block.
  [[nodiscard]] std::optional<std::vector<Byte>> ReadBlock(int n) const;
  /// Takes a packet of 18 bytes: block number, 16 bytes, 0. See EndsSend for the one that ends a
  /// send.
  Written WritePacket(std::span<const Byte> packet);
  /// True for a packet that would end the send: number 255, and zero bytes. A device that has a
  /// block 255 takes such a packet for that block when a send of all blocks has just brought block
  /// 254. It cannot know it in a send of chosen blocks, and takes it for the end there: zero bytes
  /// for block 255 do not reach it then.
  [[nodiscard]] bool EndsSend(std::span<const Byte> packet) const;

  /// True when it speaks the combined exchange.
  [[nodiscard]] bool IsCombined() const { return combined_.has_value(); }
  /// What a device that speaks the combined exchange says of its sizes: macro record size (16
  /// bits), macro records, blocks (16 bits), firmware version (2 bytes). Throws std::logic_error
  /// for one that does not; so does the next.
  [[nodiscard]] std::vector<Byte> Sizes() const;
  /// The whole configuration as one array: a header of 13 bytes, the blocks, the macro data.
  [[nodiscard]] std::vector<Byte> CombinedBytes() const;
  /// Takes an array. Parts that it leaves out stay as they are; so do blocks, macro records and the
  /// rest of each record beyond what it brings. False, and nothing is taken, when the array
  /// contradicts itself or brings more blocks or records than there are, or when the device does
  /// not speak the combined exchange.
  bool WriteCombined(std::span<const Byte> array);
  /// The macro data; empty without the combined exchange.
  [[nodiscard]] std::span<const Byte> Macros() const { return macros_; }

  /// What the device says when asked who it is: cameras, model code, 14 bytes of model name. It
  /// does not change when the identity block is overwritten.
  [[nodiscard]] const std::vector<Byte>& IdentityBytes() const { return identity_; }
  [[nodiscard]] int ModelCode() const { return identity_[1] & 0x7F; }

 private:
  void MakeMacros();
  [[nodiscard]] const CombinedSetup& Combined() const;

  BlockImage image_;
  std::vector<Byte> identity_;
  std::optional<CombinedSetup> combined_;
  std::vector<Byte> macros_;
  // The send that is under way, as far as it tells a block 255 from its end.
  int last_written_ = 0;  ///< block that came last
  int ascending_ = 0;     ///< blocks that came in ascending order up to it
};

}  // namespace quorvel::muxhost
