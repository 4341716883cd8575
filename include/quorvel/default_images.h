#pragma once

#include <string>

#include "quorvel/block_image.h"
#include "quorvel/export.h"

namespace quorvel {

/// The factory-default images, by resource number:
///   104: 185 blocks, model code 1 (multiplexers and DVRs)
///   301: 185 blocks, model code 2 (duplex recorders)
///   401: 200 blocks, model code 6 (triplex recorders)
/// All are for 16 cameras. Throws std::invalid_argument for another number.
[[nodiscard]] QUORVEL_API BlockImage LoadDefaultImage(int resource);

/// A model name as such devices have: "TX16" of a triplex recorder with 16 cameras.
[[nodiscard]] QUORVEL_API std::string UsualModelName(int model_code, int cameras);

}  // namespace quorvel
