#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "quorvel/byte.h"

namespace quorvel::fuzz {

/// The input of one execution, read from the front. After its end it gives zeros.
class ByteSource {
 public:
  explicit ByteSource(std::span<const Byte> bytes) : bytes_(bytes) {}

  [[nodiscard]] bool Empty() const { return bytes_.empty(); }
  Byte Next() {
    if (bytes_.empty()) return 0;
    const Byte byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }
  /// A number from 0 to `count` - 1; 0 when there is nothing to choose from.
  int Below(int count) {
    const int byte = Next();
    return count > 0 ? byte % count : 0;
  }
  /// The next bytes, as far as they are there, `count` at most.
  std::span<const Byte> Take(std::size_t count) {
    const auto taken = bytes_.first(std::min(count, bytes_.size()));
    bytes_ = bytes_.subspan(taken.size());
    return taken;
  }
  /// The next `count` bytes, zeros where there are no more.
  std::vector<Byte> Padded(std::size_t count) {
    const auto taken = Take(count);
    std::vector<Byte> bytes(taken.begin(), taken.end());
    bytes.resize(count);
    return bytes;
  }
  std::span<const Byte> Rest() { return Take(bytes_.size()); }

 private:
  std::span<const Byte> bytes_;
};

/// True for one input in `share`, always the same ones. Checks that take long are made for these:
/// whatever a mutation changes, the inputs that follow are spared again.
inline bool IsOneIn(std::uint32_t share, std::span<const Byte> input) {
  constexpr std::uint32_t kBasis = 2166136261U;
  constexpr std::uint32_t kPrime = 16777619U;
  std::uint32_t hash = kBasis;
  for (const Byte byte : input) hash = (hash ^ byte) * kPrime;
  return (hash >> 8) % share == 0;
}

}  // namespace quorvel::fuzz
