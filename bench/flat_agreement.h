#pragma once

#include <string>

#include "quorvel/block_image.h"

namespace quorvel::bench {

/// Decodes a 225-block image of model code 6 both ways, compares values that are only read, encodes
/// both ways over alien bytes and compares the images. Empty when the two agree, else what differs.
[[nodiscard]] std::string FlatDisagreement(const BlockImage& image);

}  // namespace quorvel::bench
