#pragma once

#include "core/modified_blocks.h"
#include "quorvel/send_plan.h"

namespace quorvel {

/// The block numbers of a block-by-block send of every listed block, in list order, under the same
/// rules.
[[nodiscard]] std::vector<Byte> PlanListedBlocks(const clsBlkSave& list, const BlockImage& image,
                                                 bool include_macros);

}  // namespace quorvel
