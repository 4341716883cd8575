#pragma once

#include <span>
#include <vector>

#include "fuzz/byte_source.h"
#include "quorvel/block_image.h"

namespace quorvel::fuzz {

/// An image out of an input: a byte of blocks, of cameras and of model code, then the image's
/// bytes, with those three put where they belong, so that most inputs can be decoded. `raw`: the
/// bytes just as they are.
BlockImage TakeImage(ByteSource& in, bool raw);

/// A factory-default image, 0 to 2, made once.
const BlockImage& DefaultImage(int which);

/// A combined array of an image, with macro data.
std::vector<Byte> CombinedBytes(const BlockImage& image, int macro_size, int macro_count);

/// True when `image` can be decoded; the repairs of decoding are then made in it.
bool DecodeAlone(BlockImage& image);

}  // namespace quorvel::fuzz
