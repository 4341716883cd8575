#pragma once

#include <array>
#include <span>

#include "quorvel/byte.h"

namespace quorvel::muxhost {

/// The cells of a camera's activity grid: 16 rows of 16 over the picture, in 32 bytes. Bytes 2r and
/// 2r + 1 hold the left and the right half of row r, the most significant bit leftmost. The device
/// keeps bytes 0 to 15, the upper half of the picture, in one block and the lower half in the next.
class ZoneCells {
 public:
  static constexpr int kSide = 16;
  static constexpr int kCount = kSide * kSide;

  /// No cell is active.
  ZoneCells() = default;
  /// Bytes after the 32nd are left out; those that are missing are 0.
  explicit ZoneCells(std::span<const Byte> bytes);

  /// Rows and columns count from 0. Throws std::out_of_range for others; so does Set.
  [[nodiscard]] bool Active(int row, int column) const;
  void Set(int row, int column, bool active);
  void Fill(bool active);
  [[nodiscard]] int ActiveCount() const;
  [[nodiscard]] std::span<const Byte> Bytes() const { return bytes_; }
  bool operator==(const ZoneCells&) const = default;

 private:
  std::array<Byte, kCount / 8> bytes_{};
};

}  // namespace quorvel::muxhost
