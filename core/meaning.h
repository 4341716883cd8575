#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <span>

#include "quorvel/identity.h"

namespace quorvel {

/// A text as a template argument.
template <std::size_t N>
struct Literal {
  char text[N];
  consteval Literal(const char (&literal)[N]) {
    std::copy_n(literal, N, text);
  }  // NOLINT: converts
};

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

/// The numbers that a setting can have: those of the range, and the codes; with `codes_only` the
/// codes alone.
struct AllowedNumbers {
  Range range;
  std::span<const Code> codes;
  bool codes_only = false;

  [[nodiscard]] constexpr bool Holds(int value) const {
    return (!codes_only && range.Holds(value)) ||
           std::ranges::find(codes, value, &Code::value) != codes.end();
  }
  /// The range, or from the least of the codes alone to the largest.
  [[nodiscard]] constexpr Range Reach() const {
    if (!codes_only) return range;
    const auto [least, most] = std::ranges::minmax(codes, {}, &Code::value);
    return {least.value, most.value};
  }
};

// What a setting's number means to an installer stands beside the setting as a type. It has
//   kUnit           the unit, as " s"
//   kFirst          what is added to a number on screen: 1 where the device counts from 0
// and may have
//   Limits(id)      the Range that the numbers have on a device
//   Codes(id)       the Codes among them; those alone where there are no limits, and none where
//                   what is kept means nothing of its own on a device
// or, instead of both,
//   Allowed(id, storable)   the AllowedNumbers, where the place in the block can hold `storable`
// Without any, a setting can have whatever its place can hold. Nothing is refused that an editor
// offers, and nothing that a device holds from the factory.

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

template <class Meaning>
concept HasLimits = requires(const Identity& id) {
  { Meaning::Limits(id) } -> std::same_as<Range>;
};
template <class Meaning>
concept HasCodes = requires(const Identity& id) {
  { Meaning::Codes(id) } -> std::same_as<std::span<const Code>>;
};
template <class Meaning>
concept HasAllowed = requires(const Identity& id) {
  { Meaning::Allowed(id, Range()) } -> std::same_as<AllowedNumbers>;
};

/// The numbers of a setting whose place can hold those of `storable`.
template <class Meaning>
[[nodiscard]] AllowedNumbers AllowedBy(const Identity& id, Range storable) {
  if constexpr (HasAllowed<Meaning>) {
    return Meaning::Allowed(id, storable);
  } else {
    AllowedNumbers allowed{storable, {}, false};
    if constexpr (HasCodes<Meaning>) {
      allowed.codes = Meaning::Codes(id);
      allowed.codes_only = !allowed.codes.empty() && !HasLimits<Meaning>;
    }
    if constexpr (HasLimits<Meaning>) allowed.range = Meaning::Limits(id);
    return allowed;
  }
}

// Of these most meanings are made.

/// The same meaning with limits that are those of all devices.
template <int least, int most, class Meaning = NoUnit>
struct Within : Meaning {
  static constexpr Range Limits(const Identity& /*id*/) { return {least, most}; }
};

/// Numbers from `first` on that read so, and no others.
template <int first, Literal... words>
struct WordsFrom : NoUnit {
  static constexpr auto kCodes = [] {
    int value = first;
    return std::array{Code{value++, words.text}...};
  }();
  static constexpr std::span<const Code> Codes(const Identity& /*id*/) { return kCodes; }
};
template <Literal... words>
struct Words : WordsFrom<0, words...> {};

/// One number more than a meaning with limits has, and how it reads.
template <int value, Literal word, class Meaning>
struct Besides : Meaning {
  static constexpr std::array kCodes{Code{value, word.text}};
  static constexpr std::span<const Code> Codes(const Identity& /*id*/) { return kCodes; }
};

/// One meaning on the devices of which `holds` is true, a member of Identity or a function; another
/// on the rest. The unit is that of the first.
template <auto holds, class Then, class Else = NoUnit>
struct Where : Then {
  static AllowedNumbers Allowed(const Identity& id, Range storable) {
    return Is(holds, id) ? AllowedBy<Then>(id, storable) : AllowedBy<Else>(id, storable);
  }

 private:
  static bool Is(bool (*says)(const Identity&), const Identity& id) { return says(id); }
  static bool Is(bool (Identity::*says)() const, const Identity& id) { return (id.*says)(); }
  static bool Is(bool Identity::*flag, const Identity& id) { return id.*flag; }
};

}  // namespace quorvel
