#include "resources/default_images.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace quorvel {
namespace {

using Bytes = std::vector<int>;

Bytes BlockBytes(const BlockImage& image, int number) {
  const auto block = image.Block(number);
  return Bytes(block.begin(), block.end());
}

std::string_view Text(const BlockImage& image, std::size_t from, std::size_t length) {
  return std::string_view(reinterpret_cast<const char*>(image.Bytes().data()) + from, length);
}

TEST(DefaultImages, StateTheirSizeAndIdentity) {
  struct Expected {
    int resource;
    std::size_t size;
    Bytes identity;
    int kind;
  };
  const Expected table[] = {
      {104, 2960, {16, 1, 'M', 'X', '1', '6', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 0},
      {301, 2960, {16, 2, 'D', 'X', '1', '6', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 1},
      {401, 3200, {16, 6, 'T', 'X', '1', '6', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, 2},
  };
  for (const auto& expected : table) {
    SCOPED_TRACE(expected.resource);
    const BlockImage image = LoadDefaultImage(expected.resource);
    EXPECT_EQ(image.Size(), expected.size);
    EXPECT_EQ(image.BlkCount(), expected.size / 16);
    EXPECT_EQ(BlockBytes(image, 185), expected.identity);
    EXPECT_EQ(image.Block(182)[8], expected.kind);
    EXPECT_EQ(image.Block(183)[7], '4');
    EXPECT_EQ(image.Block(184)[12], 1);
  }
  EXPECT_THROW((void)LoadDefaultImage(0), std::invalid_argument);
}

TEST(DefaultImages, HoldTitlesAndAlarmTables) {
  for (const int resource : {104, 301, 401}) {
    SCOPED_TRACE(resource);
    const BlockImage image = LoadDefaultImage(resource);
    EXPECT_EQ(Text(image, 0, 15), std::string_view("Camera 01   \0\0\0", 15));
    EXPECT_EQ(Text(image, 8 * 16, 16), std::string_view("Camera 09   \0\0\0\0", 16));
    EXPECT_EQ(Text(image, 15 * 16, 16), std::string_view("Camera 16   \0\0\0\0", 16));
    const auto table = [&](int number) { return BlockBytes(image, number); };
    EXPECT_EQ(table(36), (Bytes{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}));
    EXPECT_EQ(table(38), (Bytes{15, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}));
    EXPECT_EQ(table(40), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0}));
    EXPECT_EQ(table(42), (Bytes{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0, 1}));
    EXPECT_EQ(table(54), (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
  }
}

TEST(DefaultImages, HoldWhatTheFamilyRecords) {
  const BlockImage dvr = LoadDefaultImage(104);
  EXPECT_EQ(BlockBytes(dvr, 56), (Bytes{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}));
  EXPECT_EQ(BlockBytes(dvr, 57), Bytes(16, 255));
  EXPECT_EQ(BlockBytes(dvr, 69), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 250, 251, 0, 0, 0}));
  for (const int resource : {301, 401}) {
    const BlockImage recorder = LoadDefaultImage(resource);
    EXPECT_EQ(BlockBytes(recorder, 56), Bytes(16, 210)) << resource;
    EXPECT_EQ(BlockBytes(recorder, 57), Bytes(16, 10)) << resource;
  }
  const BlockImage triplex = LoadDefaultImage(401);
  EXPECT_EQ(BlockBytes(triplex, 47), Bytes(16, 50));
  EXPECT_EQ(BlockBytes(triplex, 200), (Bytes{0, 0, 0, 0, 0, 0, 25, 0, 0, 0, 0, 0, 0, 4, 3, 0}));
}

}  // namespace
}  // namespace quorvel
