#pragma once

#include "core/block_image.h"
#include "core/record_environment.h"

namespace quorvel {

class MuxData;

/// Sets the bytes that a device expects in an image that it takes as a whole: whether the clock in
/// it is the computer's, how its lists are laid out, and where a rate index means the turbo rate.
/// Blocks that the image does not hold are passed over. The clock's byte is that of PlayDwell below
/// model code 6: such a device takes 0 or 1 for it from a send of all blocks.
void FixUpForCombinedSend(BlockImage& image, const RecordEnvironment& env, MuxData& rec,
                          bool use_pc_time);

}  // namespace quorvel
