#pragma once

#include <cstdint>

namespace quorvel {

/// One byte of a block, and the width of most settings: unsigned, 8 bits.
using Byte = std::uint8_t;

/// Most cameras, alarm inputs and submacros that any device has; record arrays hold this many.
inline constexpr int kMostCameras = 16;

}  // namespace quorvel
