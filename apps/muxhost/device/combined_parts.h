#pragma once

#include <optional>
#include <span>

#include "quorvel/byte.h"

namespace quorvel::muxhost {

/// What a combined array brings. A part that it leaves out is empty.
struct CombinedParts {
  std::span<const Byte> blocks;  ///< whole blocks, block 1 first
  std::span<const Byte> macros;  ///< whole macro records
  int block_count = 0;           ///< blocks that the array has places for
  int macro_count = 0;           ///< macro records that it has places for
  int macro_size = 0;            ///< bytes of a macro record
};

/// Takes a combined array apart; its bytes must outlive the result. A part whose length is 0 is
/// left out, but the places of left-out blocks are still there when macros follow them. Bytes
/// after the last part are not read. Nothing when the header contradicts itself, or names more
/// than there is.
[[nodiscard]] std::optional<CombinedParts> TakeApart(std::span<const Byte> array);

}  // namespace quorvel::muxhost
