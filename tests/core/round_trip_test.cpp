#include <gtest/gtest.h>

#include <random>

#include "tests/core/trip.h"

namespace quorvel {
namespace {

/// An image of random bytes, rich in the values at which something happens.
BlockImage RandomImage(std::mt19937& random, int code, int cameras, int blocks) {
  constexpr Byte kTelling[] = {0, 0, 0, 1, 1, ' ', 8, 255};
  BlockImage image;
  image.ResizeBlocks(blocks);
  for (int n = 1; n <= blocks; ++n) {
    for (Byte& byte : image.Block(n)) {
      const auto draw = random();
      byte = (draw & 0x300) == 0 ? kTelling[draw >> 10 & 7] : static_cast<Byte>(draw);
    }
  }
  image.Block(1)[15] = static_cast<Byte>(blocks);
  WriteIdentityBlock(image, static_cast<Byte>(cameras), static_cast<Byte>(code | (random() & 0x80)),
                     "TEST");
  return image;
}

/// One device after the other: 1104 trips pair every model code with every number of cameras and
/// of blocks.
void Trips(int count) {
  std::mt19937 random(20);
  constexpr int kCameras[] = {0, 1, 4, 9, 10, 16};
  constexpr int kBlocks[] = {185, 199, 200, 213, 217, 219, 225, 255};
  for (int trip = 0; trip < count && !::testing::Test::HasFailure(); ++trip) {
    const int code = trip % 23 == 22 ? 127 : trip % 23;
    const int cameras = kCameras[trip / 23 % 6];
    const int blocks = kBlocks[(trip + trip / 138) % 8];
    EXPECT_EQ(TripFault(RandomImage(random, code, cameras, blocks), trip % 16 == 0), "")
        << "trip " << trip << ", code " << code << ", cameras " << cameras << ", blocks " << blocks;
  }
}

TEST(RoundTrip, ChangesNothingButWhatIsListed) { Trips(1104); }

/// scripts/bench runs it, in a release build.
TEST(RoundTrip, DISABLED_AMillionTimes) { Trips(1'000'000); }

}  // namespace
}  // namespace quorvel
