#pragma once

/// The version of these headers. A change of the first number may need changes in a host's sources;
/// before 1.0 the second number does the same.
#define QUORVEL_VERSION_MAJOR 0
#define QUORVEL_VERSION_MINOR 1
#define QUORVEL_VERSION_PATCH 0

#ifdef __cplusplus
#include <string_view>

#include "quorvel/export.h"

namespace quorvel {

/// The version of the library that is linked, as "0.1.0".
[[nodiscard]] QUORVEL_API std::string_view Version();

}  // namespace quorvel

#endif  // __cplusplus
