#include "resources/default_images.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quorvel {
namespace {

TEST(DefaultImages, StateTheirSizeAndIdentity) {
  const struct {
    int resource;
    std::size_t size;
    std::vector<int> identity;
    int kind;
  } table[] = {
      {104, 2960, {16, 1, 'M', 'X', '1', '6', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 0},
      {301, 2960, {16, 2, 'D', 'X', '1', '6', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 1},
      {401, 3200, {16, 6, 'T', 'X', '1', '6', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 2},
  };
  for (const auto& expected : table) {
    SCOPED_TRACE(expected.resource);
    const BlockImage image = LoadDefaultImage(expected.resource);
    EXPECT_EQ(image.Size(), expected.size);
    EXPECT_EQ(image.BlkCount(), expected.size / 16);
    EXPECT_TRUE(std::ranges::equal(image.Block(185), expected.identity));
    EXPECT_EQ(image.Block(182)[8], expected.kind);
    EXPECT_EQ(image.Block(183)[7], '4');
    EXPECT_EQ(image.Block(184)[12], 1);
  }
  EXPECT_THROW((void)LoadDefaultImage(0), std::invalid_argument);
}

}  // namespace
}  // namespace quorvel
