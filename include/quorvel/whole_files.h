#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "quorvel/export.h"

namespace quorvel {

// Paths are UTF-8. What is thrown says what failed and why, as in "cannot write x.bin: No space
// left on device".

/// All bytes of a file; throws PlatformError.
[[nodiscard]] QUORVEL_PLATFORM_API std::vector<std::uint8_t> ReadWholeFile(const std::string& path);

/// Writes beside the target, into "x.bin.new" for "x.bin", and moves the result into place, so that
/// a full disk or a crash leaves the old file whole. A ".new" that a crash has left is removed by
/// the next write. Throws PlatformError.
QUORVEL_PLATFORM_API void ReplaceWholeFile(const std::string& path,
                                           std::span<const std::uint8_t> bytes);

}  // namespace quorvel
