#pragma once

#include <cstddef>

namespace quorvel {

/// A settings file of so many bytes or more can be saved, but not restored. A backup of a larger
/// device is no use to command 12.
inline constexpr std::size_t kRestoreLimit = 32768;

}  // namespace quorvel
