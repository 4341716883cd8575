#pragma once

#include "core/record_environment.h"
#include "quorvel/block_image.h"

namespace quorvel {

class MuxData;

/// Sets the bytes that a device expects in an image that it takes as a whole: whether it is to take
/// the clock (0), because that is the computer's or was edited, how its lists are laid out, and
/// where a rate index means the turbo rate. Blocks that the image does not hold are passed over.
/// Below model code 6 the clock's byte is the setting PlayDwell and stays as it is.
void FixUpForCombinedSend(BlockImage& image, const RecordEnvironment& env, MuxData& rec,
                          bool use_pc_time);

}  // namespace quorvel
