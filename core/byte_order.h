#pragma once

#include <span>

#include "quorvel/byte.h"

namespace quorvel {

/// The device keeps 16-bit values most significant byte first.

/// Writes `value` into two bytes in the device's order.
constexpr void ToDeviceOrder(std::span<Byte, 2> bytes, std::uint16_t value) {
  bytes[0] = static_cast<Byte>(value >> 8);
  bytes[1] = static_cast<Byte>(value & 0xFF);
}

/// The 16-bit value that two bytes hold in the device's order.
constexpr std::uint16_t FromDeviceOrder(std::span<const Byte, 2> bytes) {
  return static_cast<std::uint16_t>(bytes[0] << 8 | bytes[1]);
}

}  // namespace quorvel
