#pragma once

#include <array>
#include <cassert>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/setting.h"
#include "quorvel/block_image.h"

namespace quorvel::layout {

/// One setting of every element of a collection, indexed by camera, alarm input or entry.
template <class Element, std::size_t N, class SettingType>
struct EachElement {
  static constexpr int kSize = static_cast<int>(N);
  std::array<Element, N>& elements;
  SettingType Element::*setting;
  SettingType& operator[](int k) const {
    assert(k >= 0 && k < kSize);
    return elements[static_cast<std::size_t>(k)].*setting;
  }
};

template <class Element, std::size_t N, class SettingType>
EachElement<Element, N, SettingType> Each(std::array<Element, N>& elements,
                                          SettingType Element::*setting) {
  return {elements, setting};
}

/// A run of entries of a setting array, the first at `first`.
template <class Array>
struct EachEntry {
  Array& array;
  int first = 0;
  auto operator[](int k) const { return array[first + k]; }
  /// The entries from the first on, `count` of them side by side.
  [[nodiscard]] auto* Run(int count) const {
    assert(first >= 0 && first + count <= Array::kSize);
    static_cast<void>(count);
    return array.Data() + first;
  }
};

/// Items that are bytes side by side, which can be copied at once.
template <class Items>
concept ByteRun = requires(const Items& items) {
  { items.Run(0) } -> std::same_as<std::uint8_t*>;
};

template <class Array>
EachEntry<Array> Each(Array& array, int first = 0) {
  return {array, first};
}

/// Type of the value that an item holds.
template <class Item>
using ValueOf = typename std::remove_cvref_t<Item>::Value;

/// Which state of a bit means "set": some device bits say "enabled" where the setting says
/// "disable".
enum class Sense : bool { kDirect, kInverted };

/// Throws unless bytes `at` to `at` + `length` - 1 lie in a block.
constexpr void CheckInBlock(int at, int length) {
  if (at < 0 || length < 0 || at + length > kBlockSize)
    throw ImageError("a byte outside its block");
}

}  // namespace quorvel::layout
