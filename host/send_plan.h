#pragma once

#include <vector>

#include "core/block_image.h"
#include "core/modified_blocks.h"

namespace quorvel {

/// The block numbers of a block-by-block send, in the order in which they are sent. Blocks 194 and
/// 218 are never sent, the macro blocks 150 to 181 only when macros are included, and no block that
/// the image does not hold.

/// All blocks of the image. Its last block is sent even when it is a macro block: devices take the
/// last block as the end of the data.
[[nodiscard]] std::vector<Byte> PlanAllBlocks(const BlockImage& image, bool include_macros);

/// Every listed block, in list order.
[[nodiscard]] std::vector<Byte> PlanListedBlocks(const clsBlkSave& list, const BlockImage& image,
                                                 bool include_macros);

}  // namespace quorvel
