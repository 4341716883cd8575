#pragma once

#include <vector>

#include "quorvel/block_image.h"
#include "quorvel/export.h"

namespace quorvel {

/// The block numbers of a send of all blocks of the image, block by block, in the order in which
/// they are sent. Blocks 194 and 218 are never sent, the macro blocks 150 to 181 only when macros
/// are included, and no block that the image does not hold. Its last block is sent even when it is
/// a macro block: devices take the last block as the end of the data.
[[nodiscard]] QUORVEL_API std::vector<Byte> PlanAllBlocks(const BlockImage& image,
                                                          bool include_macros);

}  // namespace quorvel
