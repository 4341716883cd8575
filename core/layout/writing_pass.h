#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "core/bit_fields.h"
#include "core/layout/items.h"
#include "quorvel/block_image.h"

namespace quorvel::layout {

/// Puts the settings of one block into its 16 bytes. Bytes that carry no setting stay; a byte that
/// packs several settings is rebuilt from 0. The words are those of ReadingPass.
class WritingPass {
 public:
  static constexpr bool kReading = false;
  static constexpr bool kWriting = true;
  static constexpr bool kHasImage = true;

  WritingPass(BlockImage& image, int block, int cameras)
      : bytes_(image.Block(block)), cameras_(cameras) {}

  template <class Item>
  void Byte(int at, Item&& item) {
    Put(at, item());
  }
  template <class Item>
  void ByteBelow(int /*limit*/, int at, Item&& item) {
    Put(at, item());
  }
  template <class Item, class Decode, class Encode>
  void Coded(int at, std::uint8_t mask, Item& item, Decode /*decode*/, Encode encode) {
    std::uint8_t& byte = *Run(at, 1);
    const unsigned bits = static_cast<unsigned>(encode(item())) & mask;
    byte = static_cast<std::uint8_t>((byte & ~mask) | bits);
  }
  template <class Items, class Decode, class Encode>
  void CodedBytes(int at, int count, std::uint8_t mask, Items items, Decode decode, Encode encode) {
    for (int k = 0; k < count; ++k) Coded(at + k, mask, items[k], decode, encode);
  }
  template <class Item>
  void Elsewhere(int /*block*/, int /*at*/, Item& /*item*/) {}
  void Device(int /*at*/, std::uint8_t& /*value*/, const char* /*name*/) {}
  template <class Item>
  void ChangeMask(int at, Item& item) {
    Put(at, item());
  }
  void Rebuilt(int at, int length) { std::fill_n(Run(at, length), length, std::uint8_t{0}); }
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
    unsigned bits = 0;
    for (int k = 0; k < cameras_; ++k) {
      const bool value = items[k]() != 0;
      bits |= static_cast<unsigned>(value != (sense == Sense::kInverted)) << k;
    }
    Put(at, bits);
    Put(at + 1, bits >> 8);
  }
  template <class Items>
  void CameraPairs(int at, Items items) {
    const int bytes = (cameras_ + 3) / 4;
    std::uint8_t* const run = Run(at, bytes);
    std::fill_n(run, bytes, std::uint8_t{0});
    for (int k = 0; k < cameras_; ++k) Set2Bits(run[k / 4], k % 4, items[k]());
  }
  template <class Items>
  void CameraNibbles(int at, Items items) {
    const int bytes = (cameras_ + 1) / 2;
    std::uint8_t* const run = Run(at, bytes);
    std::fill_n(run, bytes, std::uint8_t{0});
    for (int k = 0; k < cameras_; ++k) SetNibble(run[k / 2], k % 2, items[k]());
  }
  template <class Items>
  void CameraBytes(Items items) {
    Bytes(0, cameras_, items);
  }
  template <class Items>
  void Bytes(int at, int count, Items items) {
    std::uint8_t* const run = Run(at, count);
    if constexpr (ByteRun<Items>) {
      std::copy_n(items.Run(count), count, run);
    } else {
      for (int k = 0; k < count; ++k) run[k] = static_cast<std::uint8_t>(items[k]());
    }
  }
  template <class Item>
  void Word(int at, Item& item) {
    const auto number = static_cast<unsigned>(item());
    Put(at, number >> 8);
    Put(at + 1, number);
  }
  template <class Item>
  void PaddedText(int at, int length, Item& item) {
    PutCharacters(at, length, item(), ' ');
  }
  template <class Item>
  void ZeroEndedText(int at, int length, Item&& item) {
    PutCharacters(at, length, item(), '\0');
  }
  template <class Items>
  void CameraMarks(int /*at*/, Items /*items*/, std::uint8_t /*marked*/) {}
  template <class Item>
  void Mark(int /*at*/, Item& /*item*/, std::uint8_t /*marked*/) {}

 private:
  /// Stores the low 8 bits of a number.
  template <class Number>
  void Put(int at, Number number) {
    *Run(at, 1) = static_cast<std::uint8_t>(static_cast<unsigned>(number) & 0xFFU);
  }
  void PutCharacters(int at, int length, std::string_view text, char pad) {
    const auto used = text.substr(0, static_cast<std::size_t>(length));
    std::uint8_t* const end = std::copy(used.begin(), used.end(), Run(at, length));
    std::fill(end, Run(at, length) + length, static_cast<std::uint8_t>(pad));
  }
  [[nodiscard]] std::uint8_t* Run(int at, int length) {
    CheckInBlock(at, length);
    return bytes_.data() + at;
  }

  std::span<std::uint8_t, kBlockSize> bytes_;
  int cameras_;
};

}  // namespace quorvel::layout
