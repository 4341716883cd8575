#pragma once

#include <algorithm>
#include <span>
#include <string_view>
#include <type_traits>

#include "core/bit_fields.h"
#include "core/block_image.h"
#include "core/layout/items.h"

namespace quorvel::layout {

/// Takes the settings of one block out of its 16 bytes. WritingPass is its mirror image.
/// Byte numbers count within the block; camera loops run over the cameras of the model unless a
/// call says how many entries there are.
class ReadingPass {
 public:
  static constexpr bool kReading = true;

  ReadingPass(BlockImage& image, int block, int cameras)
      : image_(image), bytes_(image.Block(block)), cameras_(cameras) {}

  /// One whole byte.
  template <class Item>
  void Byte(int at, Item&& item) {
    item.Load(As<Item>(Raw(at)));
  }

  /// A byte that tells about the device itself: read, never written.
  void Device(int at, std::uint8_t& value) { value = Raw(at); }

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
    for (int i = 0; i < Array::kSize; ++i) array.Load(i, GetBit(Raw(at), i));
  }

  /// One bit a camera: cameras 0 to 7 in byte `at`, 8 to 15 in the next byte.
  template <class Items>
  void CameraBits(int at, Items items, Sense sense = Sense::kDirect) {
    for (int k = 0; k < cameras_; ++k) {
      const bool bit = GetBit(Raw(at + k / 8), k % 8) == 1;
      Store(items[k], bit != (sense == Sense::kInverted));
    }
  }

  /// One 2-bit field a camera, four cameras a byte from byte `at`.
  template <class Items>
  void CameraPairs(int at, Items items) {
    for (int k = 0; k < cameras_; ++k) Store(items[k], Get2Bits(Raw(at + k / 4), k % 4));
  }

  /// One nibble a camera, two cameras a byte from byte `at`.
  template <class Items>
  void CameraNibbles(int at, Items items) {
    for (int k = 0; k < cameras_; ++k) Store(items[k], GetNibble(Raw(at + k / 2), k % 2));
  }

  /// One byte a camera from byte 0.
  template <class Items>
  void CameraBytes(Items items) {
    Bytes(0, cameras_, items);
  }

  /// `count` whole bytes from byte `at`.
  template <class Items>
  void Bytes(int at, int count, Items items) {
    for (int k = 0; k < count; ++k) Store(items[k], Raw(at + k));
  }

  /// Two bytes, most significant first.
  template <class Item>
  void Word(int at, Item& item) {
    item.Load(As<Item>(Raw(at) * 256 + Raw(at + 1)));
  }

  /// The characters of bytes `at` to `at` + `length` - 1.
  [[nodiscard]] std::string_view Characters(int at, int length) const {
    return std::string_view(reinterpret_cast<const char*>(&bytes_[Checked(at)]),
                            static_cast<std::size_t>(length));
  }

  /// The byte itself, and the same in another block; 0 where the image holds no such block.
  [[nodiscard]] std::uint8_t Raw(int at) const { return bytes_[Checked(at)]; }
  [[nodiscard]] std::uint8_t RawOf(int block, int at) const {
    return image_.Holds(block) ? image_.Block(block)[Checked(at)] : std::uint8_t{0};
  }
  /// Rewrites a byte of the image whose content is repaired on the way in.
  void Repair(int at, std::uint8_t value) { bytes_[Checked(at)] = value; }

  /// Cameras of the model.
  [[nodiscard]] int Cameras() const { return cameras_; }

 private:
  template <class Item, class Raw>
  static auto As(Raw raw) {
    return static_cast<typename std::remove_cvref_t<Item>::Value>(raw);
  }
  template <class Item, class Raw>
  static void Store(Item&& item, Raw raw) {
    item.Load(As<Item>(raw));
  }
  static std::size_t Checked(int at) {
    if (at < 0 || at >= kBlockSize) throw ImageError("a byte outside its block");
    return static_cast<std::size_t>(at);
  }

  BlockImage& image_;
  std::span<std::uint8_t, kBlockSize> bytes_;
  int cameras_;
};

}  // namespace quorvel::layout
