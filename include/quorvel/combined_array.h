#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "quorvel/block_image.h"
#include "quorvel/byte.h"
#include "quorvel/export.h"

namespace quorvel {

/// The fields that a combined array begins with, in this order and without gaps; the 16-bit ones
/// most significant byte first.
struct ComboHeader {
  static constexpr int kSize = 13;

  std::uint16_t HdrLen = 0;        ///< bytes before the block data, kSize or more
  std::uint16_t DataLen = 0;       ///< bytes of block data
  std::uint16_t MacroLen = 0;      ///< bytes of macro data, which follow the block data
  std::uint16_t MacroRecSize = 0;  ///< bytes of one macro record
  Byte MacroCount = 0;             ///< macro records
  std::uint16_t BlockCount = 0;    ///< blocks
  Byte ExtraA = 0;                 ///< firmware version of the device, 5 of 5.06
  Byte ExtraB = 0;                 ///< 6 of 5.06

  /// The firmware version as one number: 506; 0 without a header.
  [[nodiscard]] int Firmware() const { return ExtraA * 100 + ExtraB; }
  /// Bytes of the whole array.
  [[nodiscard]] std::int32_t TotalLength() const { return HdrLen + DataLen + MacroLen; }
  /// True when the fields can all be right: whole blocks, and a header that has room for itself.
  [[nodiscard]] bool Agrees() const {
    return HdrLen >= kSize && BlockCount * kBlockSize == DataLen;
  }
};

/// A device's configuration in one piece: header, block image, macro data. The component does not
/// read the macro data and passes it on unchanged.
class QUORVEL_API CombinedArray {
 public:
  CombinedArray() = default;

  /// The bytes of a device or a file. Fields beyond their end are taken from `previous`.
  static CombinedArray Parse(std::span<const Byte> bytes, const ComboHeader& previous);
  /// An array of this header and image, and of zero bytes where the image is shorter than DataLen.
  static CombinedArray Build(const ComboHeader& header, const BlockImage& image);

  [[nodiscard]] const ComboHeader& Header() const { return header_; }
  /// Header, block data and macro data as the header counts them, as far as they are here.
  [[nodiscard]] std::span<const Byte> Bytes() const;

  /// True when the fields agree and all block data that they count is here. Only then is there an
  /// image.
  [[nodiscard]] bool HoldsImage() const;
  /// True when all macro data that is counted is here as well.
  [[nodiscard]] bool HoldsMacros() const;
  /// Throws ImageError, which says why, unless HoldsImage.
  void RequireImage() const;
  /// The block data; throws ImageError unless HoldsImage.
  [[nodiscard]] BlockImage Image() const;
  /// True when it has an image, and room for every block of this one.
  [[nodiscard]] bool Carries(const BlockImage& image) const;

  /// Copies an image, or one block of it, into the block data, as far as both reach.
  void PutImage(const BlockImage& image);
  void PutBlock(const BlockImage& image, int number);
  /// Sets byte `at` of block `number` (from 1), if the block data reaches so far.
  void PutByte(int number, std::size_t at, Byte value);

  /// The bytes to send. What is not included, and macro data that is not all here, has length 0 in
  /// the header; its bytes stay in place.
  [[nodiscard]] std::vector<Byte> Outgoing(bool include_data, bool include_macros) const;

 private:
  /// The block data that is here, at most DataLen bytes.
  [[nodiscard]] std::span<Byte> Data();

  ComboHeader header_;
  std::vector<Byte> bytes_;
};

}  // namespace quorvel
