#pragma once

#include "core/block_image.h"
#include "core/record_environment.h"

namespace quorvel {

class MuxData;

/// Sets the bytes that a device expects in an image that it takes as a whole. They are no settings:
/// whether the clock in it is the computer's, how its lists are laid out, and where a rate index
/// means the turbo rate. Blocks that the image does not hold are passed over.
void FixUpForCombinedSend(BlockImage& image, const RecordEnvironment& env, MuxData& rec,
                          bool use_pc_time);

}  // namespace quorvel
