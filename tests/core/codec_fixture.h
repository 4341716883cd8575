#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdio>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "core/codec.h"
#include "core/layout/survey_pass.h"
#include "tests/core/setting_walk.h"

namespace quorvel {

/// Values by full name, numbers as the record holds them, texts in quotes.
struct SettingValues {
  std::map<std::string, std::string, std::less<>> by_name;

  template <class Item>
  void Setting(int block, Item&& item) {
    using Value = layout::ValueOf<Item>;
    if constexpr (std::integral<Value>) {
      by_name[layout::FullName(item.Owner(), item.Name(), item.EntryIndex())] =
          std::to_string(+item());
    } else {
      const int entry = item.EntryIndex() < 0 ? -1 : block;  // text blocks go by their block
      by_name[layout::FullName(item.Owner(), item.Name(), entry)] = '"' + std::string(item()) + '"';
    }
  }
  void Device(const char* name, Byte value) { by_name[name] = std::to_string(value); }
};

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
  /// What the decoder has read: the device's settings, and its bytes about itself.
  SettingValues Values() {
    SettingValues values;
    SettingWalk<SettingValues, false> walk{values, env_.identity.MaxCam};
    layout::DescribeBlocks(walk, *rec_, env_.identity);
    return values;
  }

  BlockImage image_;
  RecordEnvironment env_;
  std::unique_ptr<MuxData> rec_;
};

}  // namespace quorvel
