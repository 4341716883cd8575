#pragma once

#include <set>
#include <span>

#include "quorvel/byte.h"

namespace quorvel::muxhost {

/// The blocks of a configuration that show no change as a setting, such as those of the macros.
struct BareBlocks {
  std::set<Byte> sent;         ///< no layout puts anything into them, and an upload can bring them
  std::set<Byte> with_macros;  ///< blocks that are sent only together with the macros

  /// Of the bare blocks that both images hold, those with other bytes.
  [[nodiscard]] std::set<Byte> Differing(std::span<const Byte> image,
                                         std::span<const Byte> device) const;
};

/// Those of the image, for a device of either exchange; none of an image that cannot be decoded.
[[nodiscard]] BareBlocks FindBareBlocks(std::span<const Byte> image, bool combined);

}  // namespace quorvel::muxhost
