#pragma once

#include "core/record/mux_data.h"
#include "core/record_environment.h"
#include "quorvel/block_image.h"
#include "quorvel/clock_time.h"

namespace quorvel {

/// Fills `rec` and the identity of `env` from the image, and lowers all commit flags. Settings that
/// the model does not have keep their values. Compression nibbles above 8 are repaired in the image
/// as well. Throws ImageError before anything changes when the image cannot be decoded (see
/// ReadIdentity).
void DecodeImage(BlockImage& image, RecordEnvironment& env, MuxData& rec);

/// Writes block `number` of the image anew from the record. Bytes that carry no setting keep their
/// content; blocks that hold no editable setting, or that the image does not hold, stay as they
/// are. Change marks are written as well, and stay in the record until the device has been told
/// (core/change_marks.h).
void EncodeBlock(int number, BlockImage& image, RecordEnvironment& env, MuxData& rec);

/// Writes every block that the image holds: for images made from scratch.
void EncodeImage(BlockImage& image, RecordEnvironment& env, MuxData& rec);

/// Encodes every listed block. With `pc_time`, block 61 takes the clock from it, where there is
/// one.
void EncodeModifiedBlocks(BlockImage& image, RecordEnvironment& env, MuxData& rec,
                          const ClockTime* pc_time = nullptr);

}  // namespace quorvel
