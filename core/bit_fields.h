#pragma once

#include <stdexcept>

#include "quorvel/byte.h"

namespace quorvel {

/// Packed fields inside one byte. Bits count from 0 (least significant); 2-bit fields and nibbles
/// count from the low end. Getters clamp the index, setters clamp the value; neither clamps the
/// other argument. Setters throw std::out_of_range for an index that would leave the byte.

/// Bit `bit` (0 to 7) of `value`: 0 or 1.
constexpr Byte GetBit(Byte value, int bit) { return static_cast<Byte>((value >> bit) & 1); }

/// 2-bit field `index` (0 to 3, higher is taken as 3) of `value`: 0 to 3.
constexpr Byte Get2Bits(Byte value, int index) {
  return static_cast<Byte>((value >> (2 * (index > 3 ? 3 : index))) & 3);
}

/// Nibble `index` (0 or 1, higher is taken as 1) of `value`: 0 to 15.
constexpr Byte GetNibble(Byte value, int index) {
  return static_cast<Byte>((value >> (4 * (index > 1 ? 1 : index))) & 15);
}

/// Sets bit `bit` of `target` to `on`; a bit above 7 changes nothing.
constexpr void SetBit(Byte& target, int bit, bool on) {
  if (bit < 0 || bit > 7) return;
  const int mask = 1 << bit;
  target = static_cast<Byte>(on ? (target | mask) : (target & ~mask));
}

/// Clears bit `bit` of `target`.
constexpr void ClearBit(Byte& target, int bit) { SetBit(target, bit, false); }

/// Stores `field` (above 3 is taken as 3) in 2-bit field `index` (0 to 3) of `target`.
constexpr void Set2Bits(Byte& target, int index, int field) {
  if (index < 0 || index > 3) throw std::out_of_range("Set2Bits: index above 3");
  const int shift = 2 * index;
  target = static_cast<Byte>((target & ~(3 << shift)) | ((field > 3 ? 3 : field) << shift));
}

/// Stores `field` (above 15 is taken as 15) in nibble `index` (0 or 1) of `target`.
constexpr void SetNibble(Byte& target, int index, int field) {
  if (index < 0 || index > 1) throw std::out_of_range("SetNibble: index above 1");
  const int shift = 4 * index;
  target = static_cast<Byte>((target & ~(15 << shift)) | ((field > 15 ? 15 : field) << shift));
}

}  // namespace quorvel
