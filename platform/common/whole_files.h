#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quorvel {

/// All bytes of a file; throws PlatformError.
[[nodiscard]] std::vector<std::uint8_t> ReadWholeFile(const std::string& path);

/// Writes beside the target and moves the result into place, so that a full disk or a crash leaves
/// the old file whole; throws PlatformError.
void ReplaceWholeFile(const std::string& path, std::span<const std::uint8_t> bytes);

}  // namespace quorvel
