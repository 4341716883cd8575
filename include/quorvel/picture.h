#pragma once

#include <cstdint>
#include <vector>

namespace quorvel {

/// A small picture: rows from the top, four bytes a pixel, red, green, blue, opacity.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgba;
};

}  // namespace quorvel
