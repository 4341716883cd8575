#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

#include "core/layout/items.h"

namespace quorvel::layout {

/// Where a setting is kept, and what it holds.
struct Place {
  enum class Role {
    kSetting,     ///< read, and written unless the block is the device's own
    kDevice,      ///< a byte about the device itself
    kMark,        ///< the device's note about a setting that is kept elsewhere
    kElsewhere,   ///< a setting that another block's layout depends on
    kChangeMask,  ///< written only: tells the device what changed
  };
  int block = 0;
  int at = 0;      ///< byte in the block
  int length = 1;  ///< bytes
  Byte mask = 0xFF;
  Role role = Role::kSetting;
  bool inverted = false;  ///< the bit is set when the setting is not
  int word = 0;  ///< places of one layout word, such as all cameras' bits, have the same number
  std::string name;
  std::string value;
};

/// A text in quotes; characters that are not printable ASCII as \xHH.
[[nodiscard]] std::string QuotedText(std::string_view text);

/// "CamInfo(3).SignalGain", "TelEnable(3)", "AlarmMode".
[[nodiscard]] std::string FullName(const SettingOwner& owner, std::string_view name, int entry);

/// The value of an item in an installer's terms.
template <class Item>
std::string ValueText(const Item& item) {
  using Value = ValueOf<Item>;
  if constexpr (std::same_as<Value, bool>) {
    return item() ? "yes" : "no";
  } else if constexpr (std::integral<Value>) {
    using Unit = typename std::remove_cvref_t<Item>::UnitType;
    return std::to_string(item() + Unit::kFirst) + Unit::kUnit;
  } else {
    return QuotedText(std::string_view(item()));
  }
}

/// Tells where the settings of one block are, without an image. As `writing`, it sees what the
/// encoder writes, else what the decoder reads. The words are those of ReadingPass.
template <bool writing>
class SurveyPass {
 public:
  static constexpr bool kReading = false;
  static constexpr bool kWriting = writing;
  static constexpr bool kHasImage = false;

  SurveyPass(std::vector<Place>& places, int& word, int block, int cameras)
      : places_(places), word_(word), block_(block), cameras_(cameras) {}

  template <class Item>
  void Byte(int at, Item&& item) {
    NextWord();
    Add(at, 0xFF, item);
  }
  template <class Item>
  void ByteBelow(int /*limit*/, int at, Item&& item) {
    Byte(at, item);
  }
  template <class Item, class Decode, class Encode>
  void Coded(int at, std::uint8_t mask, Item& item, Decode /*decode*/, Encode /*encode*/) {
    NextWord();
    Add(at, mask, item);
  }
  template <class Items, class Decode, class Encode>
  void CodedBytes(int at, int count, std::uint8_t mask, Items items, Decode /*decode*/,
                  Encode /*encode*/) {
    NextWord();
    for (int k = 0; k < count; ++k) Add(at + k, mask, items[k]);
  }
  template <class Item>
  void Elsewhere(int block, int at, Item& item) {
    NextWord();
    Place& place = Add(at, 0xFF, item, Place::Role::kElsewhere);
    place.block = block;
  }
  void Device(int at, std::uint8_t& value, const char* name) {
    NextWord();
    CheckInBlock(at, 1);
    places_.push_back(
        {block_, at, 1, 0xFF, Place::Role::kDevice, false, word_, name, std::to_string(value)});
  }
  template <class Item>
  void ChangeMask(int at, Item& item) {
    NextWord();
    Add(at, 0xFF, item, Place::Role::kChangeMask);
  }
  void Rebuilt(int at, int length) { CheckInBlock(at, length); }
  template <class Item>
  void Flag(int at, Item& item) {
    Byte(at, item);
  }
  template <class... Items>
  void BitFlags(int at, Items&... items) {
    int bit = 0;
    ((NextWord(), Add(at, Bit(bit++), items)), ...);
  }
  template <class Array>
  void Bits(int at, Array& array, int written = Array::kSize) {
    NextWord();
    const int count = writing ? written : Array::kSize;
    for (int i = 0; i < count; ++i) Add(at, Bit(i), array[i]);
  }
  template <class Items>
  void CameraBits(int at, Items items, Sense sense = Sense::kDirect) {
    NextWord();
    for (int k = 0; k < cameras_; ++k) {
      Add(at + k / 8, Bit(k % 8), items[k]).inverted = sense == Sense::kInverted;
    }
  }
  template <class Items>
  void CameraPairs(int at, Items items) {
    NextWord();
    for (int k = 0; k < cameras_; ++k) Add(at + k / 4, Shifted(3, k % 4 * 2), items[k]);
  }
  template <class Items>
  void CameraNibbles(int at, Items items) {
    NextWord();
    for (int k = 0; k < cameras_; ++k) Add(at + k / 2, Shifted(15, k % 2 * 4), items[k]);
  }
  template <class Items>
  void CameraBytes(Items items) {
    Bytes(0, cameras_, items);
  }
  template <class Items>
  void Bytes(int at, int count, Items items) {
    NextWord();
    for (int k = 0; k < count; ++k) Add(at + k, 0xFF, items[k]);
  }
  template <class Item>
  void Word(int at, Item& item) {
    NextWord();
    Add(at, 0xFF, item).length = 2;
    CheckInBlock(at, 2);
  }
  template <class Item>
  void PaddedText(int at, int length, Item& item) {
    NextWord();
    Add(at, 0xFF, item).length = length;
    CheckInBlock(at, length);
  }
  template <class Item>
  void ZeroEndedText(int at, int length, Item&& item) {
    PaddedText(at, length, item);
    // Text blocks are named by their block.
    if (item.EntryIndex() >= 0) places_.back().name = FullName(item.Owner(), item.Name(), block_);
  }
  template <class Items>
  void CameraMarks(int at, Items items, std::uint8_t /*marked*/) {
    NextWord();
    for (int k = 0; k < cameras_; ++k) {
      Add(at + k / 8, Bit(k % 8), items[k], Place::Role::kMark);
    }
  }
  template <class Item>
  void Mark(int at, Item& item, std::uint8_t /*marked*/) {
    NextWord();
    Add(at, 0xFF, item, Place::Role::kMark);
  }

 private:
  static std::uint8_t Shifted(unsigned bits, int by) {
    return static_cast<std::uint8_t>(bits << static_cast<unsigned>(by));
  }
  static std::uint8_t Bit(int number) { return Shifted(1, number); }
  void NextWord() { ++word_; }

  template <class Item>
  Place& Add(int at, std::uint8_t mask, const Item& item,
             Place::Role role = Place::Role::kSetting) {
    CheckInBlock(at, 1);
    places_.push_back({block_, at, 1, mask, role, false, word_,
                       FullName(item.Owner(), item.Name(), item.EntryIndex()), ValueText(item)});
    return places_.back();
  }

  std::vector<Place>& places_;
  int& word_;
  int block_;
  int cameras_;
};

}  // namespace quorvel::layout
