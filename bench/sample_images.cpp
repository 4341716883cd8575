#include "bench/sample_images.h"

#include <algorithm>
#include <string_view>

#include "core/record/cls_email_notify.h"
#include "quorvel/default_images.h"
#include "quorvel/identity.h"

namespace quorvel::bench {

namespace {

constexpr int kYearsOfTwoDigits = 160;  // a byte of 160 and more means a year beyond 2059
constexpr Byte kMonitorsAAndB = 0x03;

void FillRandomly(std::span<Byte> bytes, ImageRandom& random) {
  std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<Byte>(random()); });
}

/// The identity that a shape asks for, whatever the name and the top bit of the model code.
void PutIdentity(BlockImage& image, const ImageShape& shape) {
  image.Block(1)[kBlockCountByte] = static_cast<Byte>(shape.blocks);
  const auto identity = image.Block(kIdentityBlock);
  identity[0] = shape.cameras;
  identity[1] = static_cast<Byte>((identity[1] & 0x80) | shape.model_code);
}

}  // namespace

ImageRandom::result_type ImageRandom::operator()() {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t z = state_;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
  return z ^ (z >> 31);
}

BlockImage RandomImage(const ImageShape& shape, ImageRandom& random) {
  BlockImage image;
  image.ResizeBlocks(shape.blocks);
  for (int block = 1; block <= shape.blocks; ++block) FillRandomly(image.Block(block), random);
  PutIdentity(image, shape);
  image.Block(61)[5] %= kYearsOfTwoDigits;
  // Monitors C to E are read for every model and written for a matrix only.
  if (ReadIdentity(image).MatrixModel == 0) {
    image.Block(59)[0] &= kMonitorsAAndB;
    image.Block(59)[8] &= kMonitorsAAndB;
  }
  return image;
}

BlockImage TriplexImage() {
  constexpr int kBlocks = 225;
  constexpr int kFirstExtended = 200;
  constexpr std::string_view kText = "sixteen.letters.";
  static_assert(kText.size() == kBlockSize);

  BlockImage image = LoadDefaultImage(401);
  image.ResizeBlocks(kBlocks);
  PutIdentity(image, {6, kMostCameras, kBlocks});
  ImageRandom random(1);
  for (int block = kFirstExtended; block <= kBlocks; ++block) {
    if (clsEmailNotify::TextIndex(block)) {
      std::copy(kText.begin(), kText.end(), image.Block(block).begin());
    } else {
      FillRandomly(image.Block(block), random);
    }
  }
  return image;
}

}  // namespace quorvel::bench
