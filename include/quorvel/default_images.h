#pragma once

#include "quorvel/block_image.h"
#include "quorvel/export.h"

namespace quorvel {

/// The factory-default images, by resource number:
///   104: 185 blocks, model code 1 (multiplexers and DVRs)
///   301: 185 blocks, model code 2 (duplex recorders)
///   401: 200 blocks, model code 6 (triplex recorders)
/// All are for 16 cameras. Throws std::invalid_argument for another number.
[[nodiscard]] QUORVEL_API BlockImage LoadDefaultImage(int resource);

}  // namespace quorvel
