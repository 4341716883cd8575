#include "core/modified_blocks.h"

#include <algorithm>

namespace quorvel {

void clsBlkSave::AddBlk(Byte blk) {
  const auto end = entries_.begin() + count_;
  if (blk == 0 || count_ == 255 || std::find(entries_.begin(), end, blk) != end) return;
  entries_[count_++] = blk;
}

void clsBlkSave::SetMaxBlk(Byte /*max*/) {
  entries_.fill(0);
  count_ = 0;
}

}  // namespace quorvel
