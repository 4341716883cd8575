#pragma once

#include <cstddef>

namespace quorvel::bench {

/// Number of times this program has asked operator new for memory.
[[nodiscard]] std::size_t AllocationCount();

}  // namespace quorvel::bench
