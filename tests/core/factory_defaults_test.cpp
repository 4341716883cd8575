#include "core/factory_defaults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

namespace quorvel {
namespace {

constexpr std::array<Byte, 14> kName = {'A', 'B', ' ', 0, 'C', 'D', 'E', 'F', 'G'};

auto Device(int code, int cameras, char variant) {
  const auto byte = [](int value) { return static_cast<Byte>(value); };
  return DefaultsDevice{byte(variant), byte(cameras), byte(code), kName};
}

/// An image of which every byte but the count tells that nobody wrote it.
BlockImage Unwritten(int blocks) {
  BlockImage image(std::vector<Byte>(static_cast<std::size_t>(blocks) * 16, 0xEE));
  image.Block(1)[15] = static_cast<Byte>(blocks);
  return image;
}

/// "BLOCK.BYTE HEX... xN" or "BLOCK=VALUE", as factory_defaults.txt has them.
void Put(BlockImage& image, const std::string& piece) {
  std::istringstream words(piece);
  int block = 0;
  std::size_t at = 0;
  char sign = 0;
  words >> block >> sign >> at;
  if (sign == '=') {
    std::ranges::fill(image.Block(block), static_cast<Byte>(at));
    return;
  }
  Byte last = 0;
  for (std::string word; words >> word;) {
    const std::size_t count = word[0] == 'x' ? std::stoul(word.substr(1)) - 1 : 1;
    if (word[0] != 'x') last = static_cast<Byte>(std::stoul(word, nullptr, 16));
    for (std::size_t i = 0; i < count; ++i) image.Block(block)[at++] = last;
  }
}

TEST(FactoryDefaults, WriteTheseBytesAndNoOthers) {
  std::ifstream file(QUORVEL_SOURCE_DIR "/tests/core/factory_defaults.txt");
  std::multimap<std::string, std::string> pieces;
  int rows = 0;
  for (std::string line; std::getline(file, line);) {
    const auto colon = line.find(": ");
    if (line.empty() || line[0] == '#') continue;
    std::istringstream row(line);
    int code = 0, cameras = 0, combo_blocks = 0, blocks = 0;
    char variant = 0, sign = 0;
    if (!(row >> code >> cameras >> variant >> combo_blocks >> sign >> blocks >> sign)) {
      pieces.emplace(line.substr(0, colon), line.substr(colon + 2));
      continue;
    }
    SCOPED_TRACE(line);
    ++rows;
    BlockImage image = Unwritten(code < 6 ? 185 : 200);
    BlockImage expected = image;
    expected.ResizeBlocks(blocks);
    expected.Block(1)[15] = static_cast<Byte>(blocks);
    expected.Block(183)[7] = static_cast<Byte>(variant);
    expected.Block(185)[0] = static_cast<Byte>(cameras);
    expected.Block(185)[1] = static_cast<Byte>(code);
    for (std::string name = "every"; !name.empty(); name.clear(), row >> name) {
      if (name.find('=') != std::string::npos) Put(expected, name);
      const auto [begin, end] = pieces.equal_range(name);
      for (auto piece = begin; piece != end; ++piece) Put(expected, piece->second);
    }
    AdaptToDevice(image, Device(code, cameras, variant), combo_blocks);
    ASSERT_EQ(image.Size(), expected.Size());
    for (int n = 1; n <= blocks; ++n) {
      EXPECT_TRUE(std::ranges::equal(image.Block(n), expected.Block(n))) << "block " << n;
    }
  }
  EXPECT_GT(rows, 20);
}

TEST(FactoryDefaults, FillTheBlocksOfAnAddressToTheirEnd) {
  BlockImage image = Unwritten(225);
  BlockImage expected = image;
  for (int n = 201; n <= 212; ++n) std::ranges::fill(expected.Block(n), Byte{0});
  for (const char* text :
       {"201.0 55 73 65 72 31", "207.0 55 73 65 72 32", "204.0 65 78 61 6d 70 6c 65 2e 63 6f 6d",
        "210.0 65 78 61 6d 70 6c 65 2e 63 6f 6d"}) {
    Put(expected, text);
  }
  AdaptToDevice(image, Device(6, 16, '1'), 0);
  for (int n = 201; n <= 225; ++n) {
    EXPECT_TRUE(std::ranges::equal(image.Block(n), expected.Block(n))) << "block " << n;
  }
}

TEST(FactoryDefaults, RefuseBeforeAnythingChanges) {
  const struct {
    int code, cameras, blocks;
  } cases[] = {{6, 17, 200}, {2, 17, 185}, {6, 16, 199}, {2, 16, 184}};
  for (const auto& it : cases) {
    BlockImage image = Unwritten(it.blocks);
    EXPECT_THROW(AdaptToDevice(image, Device(it.code, it.cameras, '1'), 224), ImageError);
    EXPECT_TRUE(std::ranges::equal(image.Bytes(), Unwritten(it.blocks).Bytes())) << it.blocks;
  }
  BlockImage nothing;
  EXPECT_THROW(AdaptToDevice(nothing, Device(2, 16, '1'), 0), ImageError);
}

}  // namespace
}  // namespace quorvel
