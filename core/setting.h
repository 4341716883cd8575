#pragma once

#include <algorithm>
#include <array>
#include <cassert>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "core/bit_fields.h"
#include "core/meaning.h"
#include "core/record_environment.h"

namespace quorvel {

/// Base of every record class. It knows the record's surroundings and, for a member of a
/// collection, the collection's name and the member's index. Assigning and comparing records
/// copies and compares settings only; each record keeps its own surroundings.
class SettingOwner {
 public:
  /// The record itself has no collection name; single records in it have index -1.
  explicit SettingOwner(RecordEnvironment& env, const char* collection = "", int index = -1)
      : env_(&env), collection_(collection), index_(index) {}
  SettingOwner(const SettingOwner&) = delete;
  SettingOwner& operator=(const SettingOwner&) { return *this; }
  ~SettingOwner() = default;
  bool operator==(const SettingOwner&) const { return true; }

  [[nodiscard]] const char* Collection() const { return collection_; }
  [[nodiscard]] int Index() const { return index_; }
  [[nodiscard]] const Identity& identity() const { return env_->identity; }

  /// Lists `block` if the editor of `flag` is committing; true when it is.
  bool Record(CommitFlag flag, int block) const {
    if (!env_->commit.Raised(flag)) return false;
    env_->blocks.AddBlk(static_cast<Byte>(block));
    return true;
  }

 protected:
  void SetIndex(int index) { index_ = index; }
  [[nodiscard]] RecordEnvironment& env() const { return *env_; }

 private:
  RecordEnvironment* env_;
  const char* collection_;
  int index_;
};

/// What a changed setting lists. The usual rule: one block under one commit flag.
template <Byte block, CommitFlag flag>
struct In {
  static void Changed(SettingOwner& owner, int /*index*/) { owner.Record(flag, block); }
};
/// A change lists nothing.
struct Untracked {
  static void Changed(SettingOwner& /*owner*/, int /*index*/) {}
};
/// Only the decoder fills the setting; no editor changes it.
struct ReadOnly {};

/// A rule whose setting has an upper limit: a larger number is taken as `kMost`.
template <class Rule>
concept Limiting = requires {
  Rule::kMost;
};

/// For a block that tells the device, in a mask of its own, which of several values changed: lists
/// the block and marks bit `bit` of the mask. The encoder writes the mask.
template <class Mask>
void RecordInMask(SettingOwner& owner, CommitFlag flag, int block, Mask& mask, int bit) {
  if (!owner.Record(flag, block)) return;
  Byte bits = mask();
  SetBit(bits, bit, true);
  mask.Load(bits);
}

namespace setting_detail {

/// Finds a setting's owner by its distance, at 2 bytes a setting. A record has some 900 settings,
/// and a pointer in each would be most of what a fresh record costs.
///
/// The language does not promise that a pointer to a member leads to the object around it. It does
/// on the compilers that build this, g++ 12 and clang 14 to 19, for these reasons:
/// - Setting and owner are parts of one complete object. Both compilers bound pointer arithmetic by
///   the complete object, never by the member that the pointer came from: stepping from a member to
///   the struct around it is common in C, and their optimisers allow for it.
/// - Where the step ends there is a SettingOwner, and it is used as one, so that the rules of
///   aliasing by type hold. It has no virtual functions and no const or reference members, so that
///   no compiler may keep an old value of it.
/// - The distance is measured, on addresses as integers, and owes nothing to the layout of the
///   class. It stays: a setting cannot be copied or moved, and assigning leaves its link alone.
/// - Address sanitizers guard the space between allocations, and object-size checks the complete
///   object; neither guards members.
/// Pointers that carry the bounds of a member in hardware would end it. The tests that each setting
/// finds its owner, in the record and in the tracking, notice where it does not hold; they run
/// under sanitizers and optimised.
class OwnerLink {
 public:
  OwnerLink(const void* setting, const SettingOwner& owner)
      : distance_(static_cast<std::uint16_t>(Address(setting) - Address(&owner))) {
    assert(Address(setting) - Address(&owner) == distance_);  // a member of its owner
  }
  [[nodiscard]] SettingOwner& Of(void* setting) const {
    return *reinterpret_cast<SettingOwner*>(static_cast<std::byte*>(setting) - distance_);
  }
  [[nodiscard]] const SettingOwner& Of(const void* setting) const {
    return *reinterpret_cast<const SettingOwner*>(static_cast<const std::byte*>(setting) -
                                                  distance_);
  }

 private:
  static_assert(!std::is_polymorphic_v<SettingOwner>);
  static std::uintptr_t Address(const void* place) {
    return reinterpret_cast<std::uintptr_t>(place);
  }
  std::uint16_t distance_;
};

/// Fills the gap behind a one-byte value, so that a compiler can set many settings with one store.
template <bool one_byte>
struct Filler {};
template <>
struct Filler<true> {
  std::uint8_t zero = 0;
};

}  // namespace setting_detail

/// One setting: `rec.AlarmMode()` reads, `rec.AlarmMode(2)` sets, and so does
/// `rec.AlarmMode.Set(2)`, which cannot be mistaken for the reader of an array. A set that changes
/// the value lists what the rule says (a block, while the commit flag of its editor is raised);
/// then the value is stored. What is special about a setting is its rule's: a class derived from it
/// could let a setter in that its own was to replace.
template <Literal name, class T, class Rule = Untracked, class TheMeaning = NoUnit>
class Setting final {
 public:
  using Value = T;
  using Meaning = TheMeaning;
  static constexpr bool kReadOnly = std::same_as<Rule, ReadOnly>;

  explicit Setting(const SettingOwner& owner) : owner_(this, owner) {}
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting& other) {
    value_ = other.value_;
    return *this;
  }
  ~Setting() = default;
  bool operator==(const Setting& other) const { return value_ == other.value_; }

  [[nodiscard]] const T& operator()() const { return value_; }
  void Set(T value) requires(!std::same_as<Rule, ReadOnly>) {
    value = Limited(std::move(value));
    if (!(value == value_)) Rule::Changed(owner_.Of(this), 0);
    value_ = std::move(value);
  }
  void operator()(T value) requires(!std::same_as<Rule, ReadOnly>) { Set(std::move(value)); }

  /// Stores without tracking: for the decoder. A text keeps its storage.
  void Load(T value) { value_ = Limited(std::move(value)); }
  void Load(std::string_view text) requires std::same_as<T, std::string> { value_.assign(text); }

  [[nodiscard]] static const char* Name() { return name.text; }
  [[nodiscard]] const SettingOwner& Owner() const { return owner_.Of(this); }
  static constexpr int kNoEntry = -1;
  [[nodiscard]] static int EntryIndex() { return kNoEntry; }

 private:
  static T Limited(T value) {
    if constexpr (Limiting<Rule>) {
      return std::min(value, T{Rule::kMost});
    } else {
      return value;
    }
  }

  setting_detail::OwnerLink owner_;
  T value_{};
  [[no_unique_address]] setting_detail::Filler<sizeof(T) == 1> filler_;
};

/// `N` settings under one name: `rec.TelEnable(3)` reads entry 3, `rec.TelEnable(3, 1)` and
/// `rec.TelEnable.Set(3, 1)` set it. A bad index reads as zero and is ignored when set.
template <Literal name, class T, std::size_t N, class Rule = Untracked, class TheMeaning = NoUnit>
class SettingArray final {
 public:
  using Value = T;
  static constexpr int kSize = static_cast<int>(N);

  explicit SettingArray(const SettingOwner& owner) : owner_(this, owner) {}
  SettingArray(const SettingArray&) = delete;
  SettingArray& operator=(const SettingArray& other) {
    values_ = other.values_;
    return *this;
  }
  ~SettingArray() = default;
  bool operator==(const SettingArray& other) const { return values_ == other.values_; }

  [[nodiscard]] T operator()(int index) const { return InRange(index) ? At(index) : T{}; }
  void Set(int index, T value) requires(!std::same_as<Rule, ReadOnly>) {
    if (!InRange(index)) return;
    if (!(value == At(index))) Rule::Changed(owner_.Of(this), index);
    At(index) = std::move(value);
  }
  void operator()(int index, T value) requires(!std::same_as<Rule, ReadOnly>) {
    Set(index, std::move(value));
  }

  /// One entry with the shape of a single setting, for the block layouts, which know their bounds.
  struct Entry {
    using Value = T;
    using Meaning = TheMeaning;
    static constexpr bool kReadOnly = std::same_as<Rule, ReadOnly>;
    SettingArray* array;
    int index;
    [[nodiscard]] const T& operator()() const { return array->At(index); }
    void Load(T value) const { array->At(index) = std::move(value); }
    void Set(T value) const requires(!kReadOnly) { array->Set(index, std::move(value)); }
    [[nodiscard]] static const char* Name() { return name.text; }
    [[nodiscard]] const SettingOwner& Owner() const { return array->Owner(); }
    [[nodiscard]] int EntryIndex() const { return index; }
  };
  [[nodiscard]] Entry operator[](int index) {
    assert(InRange(index));
    return Entry{this, index};
  }
  /// The entries side by side, for layouts that copy runs of them.
  [[nodiscard]] T* Data() { return values_.data(); }
  [[nodiscard]] static const char* Name() { return name.text; }
  [[nodiscard]] const SettingOwner& Owner() const { return owner_.Of(this); }

 private:
  static bool InRange(int index) { return index >= 0 && index < kSize; }
  T& At(int index) { return values_[static_cast<std::size_t>(index)]; }
  const T& At(int index) const { return values_[static_cast<std::size_t>(index)]; }

  std::array<T, N> values_{};
  setting_detail::OwnerLink owner_;
};

}  // namespace quorvel
