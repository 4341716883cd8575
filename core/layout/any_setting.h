#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "core/layout/items.h"
#include "core/meaning.h"
#include "quorvel/settings.h"

namespace quorvel::layout {

/// What a block layout knows of a place: where it is, and how it is used.
struct Slot {
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
  std::uint8_t mask = 0xFF;
  Role role = Role::kSetting;
  bool inverted = false;  ///< the bit is set when the setting is not
  int word = 0;  ///< places of one layout word, such as all cameras' bits, have the same number
  Range storable{0, 0xFF};  ///< the numbers that the place can hold
  bool zero_ended = false;  ///< a text that ends before its first zero byte

  /// True where a setting is kept or, on some models, shares another's byte.
  [[nodiscard]] bool IsSetting() const {
    return role == Role::kSetting || role == Role::kElsewhere;
  }
};

/// A text in quotes; characters that are not printable ASCII as \xHH.
[[nodiscard]] std::string QuotedText(std::string_view text);

/// "CamInfo(3).SignalGain", "TelEnable(3)", "AlarmMode", written over `full`.
void PutFullName(std::string& full, const SettingOwner& owner, std::string_view name, int entry);
[[nodiscard]] std::string FullName(const SettingOwner& owner, std::string_view name, int entry);

/// What a setting holds. The text is that of the record.
struct SettingValue {
  SettingType type = SettingType::kNumber;
  int number = 0;  ///< 0 and 1 of a flag, 0 of a text
  std::string_view text;
  const char* unit = "";
  int first = 0;  ///< added to the number where an installer sees it

  /// In an installer's terms.
  [[nodiscard]] std::string InWords() const;
  bool operator==(const SettingValue& other) const {
    return number == other.number && text == other.text;
  }
};

template <class Value>
constexpr SettingType TypeOf() {
  if (std::same_as<Value, bool>) return SettingType::kFlag;
  return std::integral<Value> ? SettingType::kNumber : SettingType::kText;
}

/// `Item` is a setting, or an entry of an array of them.
template <class Item>
[[nodiscard]] SettingValue ValueHeldBy(const Item& item) {
  using Stored = ValueOf<Item>;
  using Meaning = typename Item::Meaning;
  SettingValue value{TypeOf<Stored>(), 0, {}, Meaning::kUnit, Meaning::kFirst};
  if constexpr (std::integral<Stored>) {
    value.number = static_cast<int>(item());
  } else {
    value.text = item();
  }
  return value;
}

/// The numbers that an item can have on a device, where its place can hold those of `storable`.
template <class Item>
[[nodiscard]] AllowedNumbers AllowedOf(const Identity& id, Range storable) {
  return AllowedBy<typename Item::Meaning>(
      id, std::same_as<ValueOf<Item>, bool> ? Range{0, 1} : storable);
}

/// A setting of a record, whatever its type.
class AnySetting {
 public:
  AnySetting(const AnySetting&) = delete;
  AnySetting& operator=(const AnySetting&) = delete;

  [[nodiscard]] const SettingOwner& Owner() const { return owner_; }
  [[nodiscard]] std::string_view Name() const { return name_; }
  /// Its index in an array, its block for a text block; negative where there is none.
  [[nodiscard]] int Entry() const { return entry_; }
  [[nodiscard]] SettingType Type() const { return type_; }
  /// False where only the decoder fills it.
  [[nodiscard]] bool CanBeSet() const { return can_be_set_; }

  /// The numbers that it can have on a device, where its place can hold those of `storable`.
  [[nodiscard]] virtual AllowedNumbers Allowed(const Identity& id, Range storable) const = 0;
  [[nodiscard]] virtual SettingValue Holds() const = 0;
  /// Set it as its editor would; nothing for one that cannot be set, or of the other type.
  virtual void SetNumber(int number) = 0;
  virtual void SetText(std::string_view text) = 0;

  /// The value in an installer's terms.
  [[nodiscard]] std::string Value() const { return Holds().InWords(); }

 protected:
  AnySetting(const SettingOwner& owner, std::string_view name, int entry, SettingType type,
             bool can_be_set)
      : owner_(owner), name_(name), entry_(entry), type_(type), can_be_set_(can_be_set) {}
  ~AnySetting() = default;

 private:
  const SettingOwner& owner_;
  std::string_view name_;
  int entry_;
  SettingType type_;
  bool can_be_set_;
};

template <class Item>
class TypedSetting final : public AnySetting {
  using Stored = ValueOf<Item>;

 public:
  TypedSetting(Item& item, int entry)
      : AnySetting(item.Owner(), Item::Name(), entry, TypeOf<Stored>(), !Item::kReadOnly),
        item_(item) {}

  [[nodiscard]] AllowedNumbers Allowed(const Identity& id, Range storable) const override {
    return AllowedOf<Item>(id, storable);
  }
  [[nodiscard]] SettingValue Holds() const override { return ValueHeldBy(item_); }
  void SetNumber(int number) override {
    if constexpr (std::integral<Stored> && !Item::kReadOnly) {
      item_.Set(static_cast<Stored>(number));
    }
  }
  void SetText(std::string_view text) override {
    if constexpr (!std::integral<Stored> && !Item::kReadOnly) item_.Set(Stored(text));
  }

 private:
  Item& item_;
};

}  // namespace quorvel::layout
