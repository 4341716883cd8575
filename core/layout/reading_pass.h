#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "core/bit_fields.h"
#include "core/layout/items.h"
#include "quorvel/block_image.h"

namespace quorvel::layout {

/// Takes the settings of one block out of its 16 bytes; WritingPass is its mirror image,
/// SettingPass tells where they are. Byte numbers count within the block. Camera words cover the
/// cameras of the model; other loops say how many entries there are.
class ReadingPass {
 public:
  static constexpr bool kReading = true;
  static constexpr bool kWriting = false;
  static constexpr bool kHasImage = true;

  ReadingPass(BlockImage& image, int block, int cameras)
      : image_(image), bytes_(image.Block(block)), cameras_(cameras) {}

  /// One whole byte.
  template <class Item>
  void Byte(int at, Item&& item) {
    item.Load(static_cast<ValueOf<Item>>(Raw(at)));
  }

  /// One whole byte; the device cannot mean a value of `limit` or more, which is passed over.
  template <class Item>
  void ByteBelow(int limit, int at, Item&& item) {
    if (Raw(at) < limit) Byte(at, item);
  }

  /// The bits of `mask` in a byte, in a coding of their own: `decode` makes the value of the byte,
  /// `encode` the bits of the value.
  template <class Item, class Decode, class Encode>
  void Coded(int at, std::uint8_t mask, Item& item, Decode decode, Encode /*encode*/) {
    item.Load(static_cast<ValueOf<Item>>(decode(Raw(at) & mask)));
  }

  /// The same bits of `count` bytes from byte `at`.
  template <class Items, class Decode, class Encode>
  void CodedBytes(int at, int count, std::uint8_t mask, Items items, Decode decode, Encode encode) {
    for (int k = 0; k < count; ++k) Coded(at + k, mask, items[k], decode, encode);
  }

  /// A byte of another block that says how this one is to be read: never written.
  template <class Item>
  void Elsewhere(int block, int at, Item& item) {
    CheckInBlock(at, 1);
    item.Load(image_.Block(block)[static_cast<std::size_t>(at)]);
  }

  /// A byte that tells about the device itself: read, never written.
  void Device(int at, std::uint8_t& value, const char* /*name*/) { value = Raw(at); }

  /// A byte that tells the device what changed: written, never read.
  template <class Item>
  void ChangeMask(int /*at*/, Item& /*item*/) {}

  /// Bytes that the encoder clears before it packs settings into them.
  void Rebuilt(int /*at*/, int /*length*/) {}

  /// A byte that is true when it holds 1.
  template <class Item>
  void Flag(int at, Item& item) {
    item.Load(Raw(at) == 1);
  }

  /// A byte whose bits 0, 1, ... are settings of their own.
  template <class... Items>
  void BitFlags(int at, Items&... items) {
    int bit = 0;
    (items.Load(GetBit(Raw(at), bit++) == 1), ...);
  }

  /// Bits 0 to `written` - 1 of a byte are entries 0, 1, ... of an array. Reading takes all of the
  /// array's entries, as some models ignore the rest without clearing it.
  template <class Array>
  void Bits(int at, Array& array, int /*written*/ = Array::kSize) {
    for (int i = 0; i < Array::kSize; ++i) array[i].Load(GetBit(Raw(at), i));
  }

  /// One bit a camera: cameras 0 to 7 in byte `at`, 8 to 15 in the next byte.
  template <class Items>
  void CameraBits(int at, Items items, Sense sense = Sense::kDirect) {
    const unsigned inverted = sense == Sense::kInverted ? 0xFFFF : 0;
    unsigned bits = (Raw(at) | static_cast<unsigned>(Raw(at + 1)) << 8) ^ inverted;
    for (int k = 0; k < cameras_; ++k, bits >>= 1) Store(items[k], bits & 1U);
  }

  /// One 2-bit field a camera, four cameras a byte from byte `at`.
  template <class Items>
  void CameraPairs(int at, Items items) {
    const std::uint8_t* const run = Run(at, (cameras_ + 3) / 4);
    for (int k = 0; k < cameras_; ++k) Store(items[k], Get2Bits(run[k / 4], k % 4));
  }

  /// One nibble a camera, two cameras a byte from byte `at`.
  template <class Items>
  void CameraNibbles(int at, Items items) {
    const std::uint8_t* const run = Run(at, (cameras_ + 1) / 2);
    for (int k = 0; k < cameras_; ++k) Store(items[k], GetNibble(run[k / 2], k % 2));
  }

  /// One byte a camera from byte 0.
  template <class Items>
  void CameraBytes(Items items) {
    Bytes(0, cameras_, items);
  }

  /// `count` whole bytes from byte `at`.
  template <class Items>
  void Bytes(int at, int count, Items items) {
    const std::uint8_t* const run = Run(at, count);
    if constexpr (ByteRun<Items>) {
      std::copy_n(run, count, items.Run(count));
    } else {
      for (int k = 0; k < count; ++k) Store(items[k], run[k]);
    }
  }

  /// Two bytes, most significant first.
  template <class Item>
  void Word(int at, Item& item) {
    item.Load(Raw(at) * 256 + Raw(at + 1));
  }

  /// `length` characters, padded with blanks; the blanks at both ends are not part of the text.
  template <class Item>
  void PaddedText(int at, int length, Item& item) {
    std::string_view text = Characters(at, length);
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    item.Load(text);
  }

  /// Up to `length` characters, ended by a zero byte when there are fewer.
  template <class Item>
  void ZeroEndedText(int at, int length, Item&& item) {
    const std::string_view text = Characters(at, length);
    item.Load(text.substr(0, text.find('\0')));
  }

  /// One bit a camera by which the device says that an item that reads 0 means `marked`; the bits
  /// are the device's own and never written.
  template <class Items>
  void CameraMarks(int at, Items items, std::uint8_t marked) {
    const unsigned bits = Raw(at) | static_cast<unsigned>(Raw(at + 1)) << 8;
    for (int k = 0; k < cameras_; ++k) {
      if ((bits >> k & 1U) != 0 && items[k]() == 0) Store(items[k], marked);
    }
  }
  /// The same for a single item, in a byte.
  template <class Item>
  void Mark(int at, Item& item, std::uint8_t marked) {
    if (Raw(at) == 1 && item() == 0) item.Load(marked);
  }

  // For what only reading does.

  [[nodiscard]] std::uint8_t Raw(int at) const { return *Run(at, 1); }
  /// Rewrites a byte of the image that reading repairs.
  void Repair(int at, std::uint8_t value) {
    CheckInBlock(at, 1);
    bytes_[static_cast<std::size_t>(at)] = value;
  }
  [[nodiscard]] int Cameras() const { return cameras_; }

 private:
  template <class Item, class Number>
  static void Store(Item&& item, Number number) {
    item.Load(static_cast<ValueOf<Item>>(number));
  }
  [[nodiscard]] const std::uint8_t* Run(int at, int length) const {
    CheckInBlock(at, length);
    return bytes_.data() + at;
  }
  [[nodiscard]] std::string_view Characters(int at, int length) const {
    return {reinterpret_cast<const char*>(Run(at, length)), static_cast<std::size_t>(length)};
  }

  BlockImage& image_;
  std::span<std::uint8_t, kBlockSize> bytes_;
  int cameras_;
};

}  // namespace quorvel::layout
