#pragma once

#include <cstdint>

#include "quorvel/byte.h"

namespace quorvel {

/// Sizes of the combined exchange, as the host states them.
struct ComboSizes {
  std::uint16_t ComboMacroSize = 0;
  Byte ComboMacroCount = 0;
  std::uint16_t ComboBlockCount = 0;
  Byte ComboExtraA = 0;  ///< firmware version: A * 100 + B
  Byte ComboExtraB = 0;
  bool operator==(const ComboSizes&) const = default;
};

}  // namespace quorvel
