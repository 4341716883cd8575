#include "resources/icon.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(Icon, IsAnOpaqueMonitorOnATransparentGround) {
  const Picture& icon = Icon101();
  ASSERT_EQ(icon.width, 32);
  ASSERT_EQ(icon.height, 32);
  ASSERT_EQ(icon.rgba.size(), 4096U);
  const auto opacity = [&](int x, int y) {
    return icon.rgba[static_cast<std::size_t>((y * 32 + x) * 4 + 3)];
  };
  for (const int corner : {0, 31}) {
    EXPECT_EQ(opacity(corner, 0), 0);
    EXPECT_EQ(opacity(corner, 31), 0);
  }
  for (int x = 3; x < 29; ++x) {
    for (int y = 4; y < 24; ++y) EXPECT_EQ(opacity(x, y), 255) << x << ", " << y;
  }
}

}  // namespace
}  // namespace quorvel
