#include "quorvel/block_image.h"

#include <string>

namespace quorvel {

void BlockImage::Append(std::span<const Byte> bytes) {
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
}

bool BlockImage::Holds(int n) const {
  return n >= 1 && static_cast<std::size_t>(n) * kBlockSize <= bytes_.size();
}

std::size_t BlockImage::Offset(int n) const {
  if (!Holds(n)) throw ImageError("the configuration holds no block " + std::to_string(n));
  return static_cast<std::size_t>(n - 1) * kBlockSize;
}

std::span<Byte, kBlockSize> BlockImage::Block(int n) {
  return std::span<Byte, kBlockSize>(bytes_.data() + Offset(n), kBlockSize);
}

std::span<const Byte, kBlockSize> BlockImage::Block(int n) const {
  return std::span<const Byte, kBlockSize>(bytes_.data() + Offset(n), kBlockSize);
}

}  // namespace quorvel
