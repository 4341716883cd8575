#pragma once

#include <algorithm>
#include <concepts>
#include <span>

#include "quorvel/identity.h"

namespace quorvel {

/// Numbers from `least` to `most`, both among them.
struct Range {
  int least = 0;
  int most = 0;
  [[nodiscard]] constexpr bool Holds(int value) const { return least <= value && value <= most; }
  bool operator==(const Range&) const = default;
};

/// A number that stands for something, and for what: 0 "Disable".
struct Code {
  int value = 0;
  const char* text = "";
};

/// The numbers that a setting can have: those of the range, and the codes. With `codes_only` the
/// codes alone, from the least to the largest of which the range reaches.
struct AllowedNumbers {
  Range range;
  std::span<const Code> codes;
  bool codes_only = false;

  [[nodiscard]] constexpr bool Holds(int value) const {
    return (!codes_only && range.Holds(value)) ||
           std::ranges::find(codes, value, &Code::value) != codes.end();
  }
};

// What a setting's number means to an installer stands beside the setting as a type. It has
//   kUnit           the unit, as " s"
//   kFirst          what is added to a number on screen: 1 where the device counts from 0
// and may have
//   Limits(id)      the Range that the numbers have on a device
//   Codes(id)       the Codes among them; those alone where there are no limits, and none where
//                   what is kept means nothing of its own on a device
// Without either, a setting can have whatever its place in the block can hold. Nothing is refused
// that an editor offers.

struct NoUnit {
  static constexpr const char* kUnit = "";
  static constexpr int kFirst = 0;
};
struct Seconds : NoUnit {
  static constexpr const char* kUnit = " s";
};
struct SecondsFromOne : Seconds {
  static constexpr int kFirst = 1;
};
struct Minutes : NoUnit {
  static constexpr const char* kUnit = " min";
};

/// The same meaning with limits that are those of all devices.
template <int least, int most, class Meaning = NoUnit>
struct Within : Meaning {
  static constexpr Range Limits(const Identity& /*id*/) { return {least, most}; }
};

template <class Meaning>
concept HasLimits = requires(const Identity& id) {
  { Meaning::Limits(id) } -> std::same_as<Range>;
};
template <class Meaning>
concept HasCodes = requires(const Identity& id) {
  { Meaning::Codes(id) } -> std::same_as<std::span<const Code>>;
};

/// The numbers of a setting whose place can hold those of `storable`.
template <class Meaning>
[[nodiscard]] AllowedNumbers AllowedBy(const Identity& id, Range storable) {
  AllowedNumbers allowed{storable, {}, false};
  if constexpr (HasCodes<Meaning>) {
    allowed.codes = Meaning::Codes(id);
    if (!allowed.codes.empty() && !HasLimits<Meaning>) {
      const auto [least, most] = std::ranges::minmax(allowed.codes, {}, &Code::value);
      allowed.range = {least.value, most.value};
      allowed.codes_only = true;
    }
  }
  if constexpr (HasLimits<Meaning>) allowed.range = Meaning::Limits(id);
  return allowed;
}

}  // namespace quorvel
