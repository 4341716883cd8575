#pragma once

#include <array>

#include "quorvel/byte.h"

namespace quorvel {

/// The modified-block list: numbers of the blocks that hold changed values, distinct, in the order
/// in which they were first changed. It has room for every block number a byte can name, so a
/// change is remembered even before the first image tells how many blocks the device holds.
class clsBlkSave {
 public:
  /// Lists block `blk` (1 to 255) unless it is listed already. 0 is no block and is not listed.
  void AddBlk(Byte blk);

  /// Number of listed blocks.
  [[nodiscard]] Byte BlkSavIdx() const { return count_; }

  /// Sets the number of listed blocks; 0 empties the list without clearing its entries.
  void BlkSavIdx(Byte count) { count_ = count; }

  /// The listed block at place `idx` (0-based); 0 at and after the end.
  [[nodiscard]] Byte BlkNumSav(Byte idx) const { return idx < count_ ? entries_[idx] : Byte{0}; }

  /// Empties the list and clears its entries: a new image of `max` blocks has arrived.
  void SetMaxBlk(Byte max);

 private:
  std::array<Byte, 256> entries_{};
  Byte count_ = 0;
};

}  // namespace quorvel
