#pragma once

#include <bit>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "core/layout/any_setting.h"
#include "core/layout/items.h"

namespace quorvel::layout {

/// Shows the settings of one block to a visitor, without an image. As `writing`, it sees what the
/// encoder writes, else what the decoder reads. The words are those of ReadingPass. A visitor has
///
///     visitor.Wants<Item>()               false: no item of that type is shown to it
///     visitor.WantsOf(owner)              false: none of the run of entries of this owner
///     visitor.Setting(slot, item, entry)  an item, and its index in an array or its block
///     visitor.Device(slot, name, value)   a byte about the device itself
///
/// A visitor that looks for one name passes over most words by one comparison. SettingVisitor is
/// the base of visitors that take each item as an AnySetting.
template <bool writing, class Visitor>
class SettingPass {
 public:
  static constexpr bool kReading = false;
  static constexpr bool kWriting = writing;
  static constexpr bool kHasImage = false;

  SettingPass(Visitor& visitor, int& word, int block, int cameras)
      : visitor_(visitor), word_(word), block_(block), cameras_(cameras) {}

  template <class Item>
  void Byte(int at, Item&& item) {
    Single(SlotAt(at), item);
  }
  template <class Item>
  void ByteBelow(int limit, int at, Item&& item) {
    Slot slot = SlotAt(at);
    slot.storable = {0, limit - 1};
    Single(slot, item);
  }
  template <class Item, class Decode, class Encode>
  void Coded(int at, std::uint8_t mask, Item& item, Decode /*decode*/, Encode /*encode*/) {
    Single(Masked(at, mask, std::popcount(mask)), item);
  }
  template <class Items, class Decode, class Encode>
  void CodedBytes(int at, int count, std::uint8_t mask, Items items, Decode /*decode*/,
                  Encode /*encode*/) {
    const int bits = std::popcount(mask);
    Many(count, items, [&](int k) { return Masked(at + k, mask, bits); });
  }
  template <class Item>
  void Elsewhere(int block, int at, Item& item) {
    Slot slot = SlotAt(at, Slot::Role::kElsewhere);
    slot.block = block;
    Single(slot, item);
  }
  void Device(int at, std::uint8_t& value, const char* name) {
    NextWord();
    CheckInBlock(at, 1);
    Slot slot = SlotAt(at, Slot::Role::kDevice);
    slot.word = word_;
    visitor_.Device(slot, name, value);
  }
  template <class Item>
  void ChangeMask(int at, Item& item) {
    Single(SlotAt(at, Slot::Role::kChangeMask), item);
  }
  void Rebuilt(int at, int length) { CheckInBlock(at, length); }
  template <class Item>
  void Flag(int at, Item& item) {
    Byte(at, item);
  }
  template <class... Items>
  void BitFlags(int at, Items&... items) {
    int bit = 0;
    (Single(Masked(at, Bit(bit++), 1), items), ...);
  }
  template <class Array>
  void Bits(int at, Array& array, int written = Array::kSize) {
    Many(writing ? written : Array::kSize, array, [&](int i) { return Masked(at, Bit(i), 1); });
  }
  template <class Items>
  void CameraBits(int at, Items items, Sense sense = Sense::kDirect) {
    Many(cameras_, items, [&](int k) {
      Slot slot = Masked(at + k / 8, Bit(k % 8), 1);
      slot.inverted = sense == Sense::kInverted;
      return slot;
    });
  }
  template <class Items>
  void CameraPairs(int at, Items items) {
    Many(cameras_, items, [&](int k) { return Masked(at + k / 4, Shifted(3, k % 4 * 2), 2); });
  }
  template <class Items>
  void CameraNibbles(int at, Items items) {
    Many(cameras_, items, [&](int k) { return Masked(at + k / 2, Shifted(15, k % 2 * 4), 4); });
  }
  template <class Items>
  void CameraBytes(Items items) {
    Bytes(0, cameras_, items);
  }
  template <class Items>
  void Bytes(int at, int count, Items items) {
    Many(count, items, [&](int k) { return SlotAt(at + k); });
  }
  template <class Item>
  void Word(int at, Item& item) {
    Slot slot = Long(at, 2);
    slot.storable = {0, 0xFFFF};
    Single(slot, item);
  }
  template <class Item>
  void PaddedText(int at, int length, Item& item) {
    Single(Long(at, length), item);
  }
  template <class Item>
  void ZeroEndedText(int at, int length, Item&& item) {
    Slot slot = Long(at, length);
    slot.zero_ended = true;
    // Text blocks are named by their block.
    Single(slot, item, item.EntryIndex() >= 0 ? block_ : item.EntryIndex());
  }
  template <class Items>
  void CameraMarks(int at, Items items, std::uint8_t /*marked*/) {
    Many(cameras_, items, [&](int k) {
      Slot slot = Masked(at + k / 8, Bit(k % 8), 1);
      slot.role = Slot::Role::kMark;
      return slot;
    });
  }
  template <class Item>
  void Mark(int at, Item& item, std::uint8_t /*marked*/) {
    Single(SlotAt(at, Slot::Role::kMark), item);
  }

 private:
  static std::uint8_t Shifted(unsigned bits, int by) {
    return static_cast<std::uint8_t>(bits << static_cast<unsigned>(by));
  }
  static std::uint8_t Bit(int number) { return Shifted(1, number); }
  void NextWord() { ++word_; }

  [[nodiscard]] Slot SlotAt(int at, Slot::Role role = Slot::Role::kSetting) const {
    return {block_, at, 1, 0xFF, role, false, word_, {0, 0xFF}, false};
  }
  /// `bits` of a byte, those of `mask`: counting them each time would be a fifth of a check.
  [[nodiscard]] Slot Masked(int at, std::uint8_t mask, int bits) const {
    Slot slot = SlotAt(at);
    slot.mask = mask;
    slot.storable = {0, (1 << bits) - 1};
    return slot;
  }
  [[nodiscard]] Slot Long(int at, int length) const {
    Slot slot = SlotAt(at);
    slot.length = length;
    slot.storable = {0, length};
    return slot;
  }

  template <class Item>
  void Single(const Slot& slot, Item& item) {
    Single(slot, item, item.EntryIndex());
  }
  template <class Item>
  void Single(Slot slot, Item& item, int entry) {
    NextWord();
    if (!visitor_.template Wants<Item>()) return;
    CheckInBlock(slot.at, slot.length);
    slot.word = word_;
    visitor_.Setting(slot, item, entry);
  }
  /// The items of one word; `slot_of` tells where item k is.
  template <class Items, class SlotOf>
  void Many(int count, Items&& items, SlotOf slot_of) {
    using Item = std::remove_cvref_t<decltype(items[0])>;
    NextWord();
    if (count == 0 || !visitor_.template Wants<Item>()) return;
    if constexpr (requires { items.array; }) {
      if (!visitor_.WantsOf(items.array.Owner())) return;
    }
    CheckInBlock(slot_of(0).at, 1);
    CheckInBlock(slot_of(count - 1).at, 1);
    visitor_.Settings(count, items, slot_of);
  }

  Visitor& visitor_;
  int& word_;
  int block_;
  int cameras_;
};

/// Base of a visitor that takes each item as an AnySetting: Derived has See(slot, setting).
template <class Derived>
class SettingVisitor {
 public:
  template <class Item>
  static bool Wants() {
    return true;
  }
  static bool WantsOf(const SettingOwner& /*owner*/) { return true; }
  template <class Item>
  void Setting(const Slot& slot, Item& item, int entry) {
    TypedSetting<std::remove_const_t<Item>> setting(item, entry);
    static_cast<Derived*>(this)->See(slot, setting);
  }
  /// The items of one word, of one type and storable range; `slot_of` tells where item k is.
  template <class Items, class SlotOf>
  void Settings(int count, Items& items, const SlotOf& slot_of) {
    for (int k = 0; k < count; ++k) {
      auto&& item = items[k];
      static_cast<Derived*>(this)->Setting(slot_of(k), item, item.EntryIndex());
    }
  }
  void Device(const Slot& /*slot*/, const char* /*name*/, std::uint8_t /*value*/) {}
};

/// Walks the blocks up to a number with a SettingPass.
template <bool writing, class Visitor>
class SettingWalk {
 public:
  SettingWalk(Visitor& visitor, int cameras, int blocks)
      : visitor_(visitor), cameras_(cameras), blocks_(blocks) {}

  template <class Visit>
  void Block(int number, const Visit& visit) {
    if (number > blocks_) return;
    SettingPass<writing, Visitor> pass(visitor_, word_, number, cameras_);
    visit(pass);
  }
  template <class Visit>
  void Blocks(int first, int count, const Visit& visit) {
    for (int i = 0; i < count; ++i) {
      Block(first + i, [&](SettingPass<writing, Visitor>& pass) { visit(pass, i); });
    }
  }

 private:
  Visitor& visitor_;
  int cameras_;
  int blocks_;
  int word_ = 0;
};

}  // namespace quorvel::layout
