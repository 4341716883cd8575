#pragma once

#include <cstdint>
#include <limits>

#include "quorvel/block_image.h"

namespace quorvel::bench {

/// A small random engine that starts at no cost, so that every image can have a seed of its own.
class ImageRandom {
 public:
  using result_type = std::uint64_t;
  explicit ImageRandom(std::uint64_t seed) : state_(seed) {}
  static constexpr result_type min() { return 0; }
  static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
  result_type operator()();

 private:
  std::uint64_t state_;
};

/// What an image says of its device. `blocks` is at least 185.
struct ImageShape {
  Byte model_code;
  Byte cameras;
  int blocks;
};

/// An image with random bytes wherever decoding and encoding keep them: see sample_images.cpp for
/// the few that they do not.
[[nodiscard]] BlockImage RandomImage(const ImageShape& shape, ImageRandom& random);

/// A triplex recorder's factory image, extended to 225 blocks whose texts are full.
[[nodiscard]] BlockImage TriplexImage();

}  // namespace quorvel::bench
