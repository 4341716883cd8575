#pragma once

#include <span>
#include <stdexcept>
#include <vector>

#include "quorvel/byte.h"
#include "quorvel/export.h"

namespace quorvel {

/// A block or byte was asked for that the image does not hold, or an image cannot be decoded.
class QUORVEL_API ImageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

inline constexpr int kBlockSize = 16;
/// Byte 15 of block 1 holds the number of blocks.
inline constexpr int kBlockCountByte = 15;
/// The identity block: cameras, model code, model name.
inline constexpr int kIdentityBlock = 185;

/// Video loss and identity: blocks that only the device writes.
constexpr bool IsDeviceBlock(int n) { return n == 182 || n == kIdentityBlock; }

/// The device's configuration as numbered 16-byte blocks, block 1 first, without gaps.
class QUORVEL_API BlockImage {
 public:
  BlockImage() = default;
  explicit BlockImage(std::vector<Byte> bytes) : bytes_(std::move(bytes)) {}

  void Clear() { bytes_.clear(); }
  /// Appends the bytes of a block that has arrived, whatever their number.
  void Append(std::span<const Byte> bytes);
  /// Extends with zero bytes, or cuts, to `count` blocks.
  void ResizeBlocks(int count) { bytes_.resize(static_cast<std::size_t>(count) * kBlockSize); }

  [[nodiscard]] std::span<const Byte> Bytes() const { return bytes_; }
  [[nodiscard]] std::size_t Size() const { return bytes_.size(); }
  /// True when all 16 bytes of block `n` (from 1) are here.
  [[nodiscard]] bool Holds(int n) const;

  /// True when block `n` is here and within the image's own count: bytes beyond it belong to no
  /// block.
  [[nodiscard]] bool Counts(int n) const { return Holds(n) && n <= BlkCount(); }

  /// The 16 bytes of block `n`; throws ImageError when the image does not hold it.
  [[nodiscard]] std::span<Byte, kBlockSize> Block(int n);
  [[nodiscard]] std::span<const Byte, kBlockSize> Block(int n) const;

  /// Number of blocks by the image's own count; throws ImageError without a block 1.
  [[nodiscard]] Byte BlkCount() const { return Block(1)[kBlockCountByte]; }
  /// The same, 0 when nothing has arrived yet.
  [[nodiscard]] Byte BlkCountOrZero() const { return Holds(1) ? BlkCount() : Byte{0}; }

 private:
  [[nodiscard]] std::size_t Offset(int n) const;

  std::vector<Byte> bytes_;
};

}  // namespace quorvel
