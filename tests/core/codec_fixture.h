#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "core/codec.h"

namespace quorvel {

/// The blocks of a list, in its order.
inline std::vector<int> Listed(const clsBlkSave& list) {
  std::vector<int> numbers;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) numbers.push_back(list.BlkNumSav(i));
  return numbers;
}

/// An empty image of a device, and a record decoded from it.
class Codec : public ::testing::Test {
 protected:
  void Make(int model_code, int cameras = 16, int blocks = 225) {
    image_ = BlockImage();
    image_.ResizeBlocks(blocks);
    image_.Block(1)[15] = static_cast<Byte>(blocks);
    if (blocks >= 185) {
      WriteIdentityBlock(image_, static_cast<Byte>(cameras), static_cast<Byte>(model_code), "TEST");
    }
    rec_ = std::make_unique<MuxData>(env_);
    Decode();
  }
  void Decode() { DecodeImage(image_, env_, *rec_); }
  void Encode(int block) { EncodeBlock(block, image_, env_, *rec_); }

  void Put(int block, const std::string& hex) {
    std::istringstream digits(hex);
    digits >> std::hex;
    for (Byte& byte : image_.Block(block)) {
      unsigned value = 0;
      digits >> value;
      byte = static_cast<Byte>(value);
    }
    ASSERT_TRUE(digits) << "fewer than 16 bytes: " << hex;
  }
  std::string Hex(int block) const {
    std::string text;
    for (const Byte byte : image_.Block(block)) {
      std::array<char, 4> digits{};
      std::snprintf(digits.data(), digits.size(), "%02x", byte);
      text += (text.empty() ? "" : " ") + std::string(digits.data());
    }
    return text;
  }
  /// What the encoder makes of a block whose bytes were all 0xEE.
  std::string Rewritten(int block) {
    std::ranges::fill(image_.Block(block), Byte{0xEE});
    Encode(block);
    return Hex(block);
  }

  BlockImage image_;
  RecordEnvironment env_;
  std::unique_ptr<MuxData> rec_;
};

}  // namespace quorvel
