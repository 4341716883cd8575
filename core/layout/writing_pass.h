#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "core/bit_fields.h"
#include "core/block_image.h"
#include "core/layout/items.h"

namespace quorvel::layout {

/// Puts the settings of one block into its 16 bytes. Bytes that carry no setting stay; a byte that
/// packs several settings is rebuilt from 0. ReadingPass is its mirror image.
class WritingPass {
 public:
  static constexpr bool kReading = false;

  WritingPass(BlockImage& image, int block, int cameras)
      : image_(image), bytes_(image.Block(block)), cameras_(cameras) {}

  template <class Item>
  void Byte(int at, Item&& item) {
    Put(at, item());
  }

  void Device(int /*at*/, std::uint8_t& /*value*/) {}

  template <class Item>
  void Flag(int at, Item& item) {
    Put(at, item() ? 1 : 0);
  }

  template <class... Items>
  void BitFlags(int at, Items&... items) {
    std::uint8_t packed = 0;
    int bit = 0;
    (SetBit(packed, bit++, items()), ...);
    Put(at, packed);
  }

  template <class Array>
  void Bits(int at, Array& array, int written = Array::kSize) {
    std::uint8_t packed = 0;
    for (int i = 0; i < written; ++i) SetBit(packed, i, array(i) != 0);
    Put(at, packed);
  }

  template <class Items>
  void CameraBits(int at, Items items, Sense sense = Sense::kDirect) {
    std::uint8_t packed[2] = {0, 0};
    for (int k = 0; k < cameras_; ++k) {
      const bool value = items[k]() != 0;
      SetBit(packed[k / 8], k % 8, value != (sense == Sense::kInverted));
    }
    Put(at, packed[0]);
    Put(at + 1, packed[1]);
  }

  template <class Items>
  void CameraPairs(int at, Items items) {
    for (int k = 0; k < cameras_; ++k) {
      std::uint8_t& byte = bytes_[Checked(at + k / 4)];
      if (k % 4 == 0) byte = 0;
      Set2Bits(byte, k % 4, items[k]());
    }
  }

  template <class Items>
  void CameraNibbles(int at, Items items) {
    for (int k = 0; k < cameras_; ++k) {
      std::uint8_t& byte = bytes_[Checked(at + k / 2)];
      if (k % 2 == 0) byte = 0;
      SetNibble(byte, k % 2, items[k]());
    }
  }

  template <class Items>
  void CameraBytes(Items items) {
    Bytes(0, cameras_, items);
  }

  template <class Items>
  void Bytes(int at, int count, Items items) {
    for (int k = 0; k < count; ++k) Put(at + k, items[k]());
  }

  template <class Item>
  void Word(int at, Item& item) {
    Put(at, item() / 256);
    Put(at + 1, item() % 256);
  }

  /// Writes `text`, cut to `length` characters, padded with `pad`.
  void PutCharacters(int at, int length, std::string_view text, char pad) {
    for (int i = 0; i < length; ++i) {
      const auto place = static_cast<std::size_t>(i);
      Put(at + i, static_cast<unsigned char>(place < text.size() ? text[place] : pad));
    }
  }

  /// Stores the low 8 bits of `value`.
  void Put(int at, int value) {
    bytes_[Checked(at)] = static_cast<std::uint8_t>(static_cast<unsigned>(value) & 0xFFU);
  }
  [[nodiscard]] std::uint8_t RawOf(int block, int at) const {
    return image_.Holds(block) ? image_.Block(block)[Checked(at)] : std::uint8_t{0};
  }
  [[nodiscard]] int Cameras() const { return cameras_; }

 private:
  static std::size_t Checked(int at) {
    if (at < 0 || at >= kBlockSize) throw ImageError("a byte outside its block");
    return static_cast<std::size_t>(at);
  }

  BlockImage& image_;
  std::span<std::uint8_t, kBlockSize> bytes_;
  int cameras_;
};

}  // namespace quorvel::layout
