#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "core/record_environment.h"

namespace quorvel {

/// Base of every record class. It knows the record's surroundings and, for a member of a
/// collection, the collection's name and the member's index. Assigning and comparing records
/// copies and compares settings only; each record keeps its own surroundings.
class SettingOwner {
 public:
  /// Owners without an index of their own (single records) have index -1.
  explicit SettingOwner(RecordEnvironment& env, const char* collection = "", int index = -1)
      : env_(&env), collection_(collection), index_(index) {}
  SettingOwner(const SettingOwner&) = delete;
  SettingOwner& operator=(const SettingOwner&) { return *this; }
  ~SettingOwner() = default;
  bool operator==(const SettingOwner&) const { return true; }

  [[nodiscard]] const char* Collection() const { return collection_; }
  [[nodiscard]] int Index() const { return index_; }
  [[nodiscard]] const Identity& identity() const { return env_->identity; }
  [[nodiscard]] bool Raised(CommitFlag flag) const { return env_->commit.Raised(flag); }

  /// Lists `block` if the editor of `flag` is committing; true when it is.
  bool Record(CommitFlag flag, int block) const {
    if (!Raised(flag)) return false;
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

/// The usual rule of what a changed setting lists: one block under one commit flag.
struct InBlock {
  Byte block;
  CommitFlag flag;
  void Changed(const SettingOwner& owner, int /*index*/) const { owner.Record(flag, block); }
};

/// A setting whose change lists nothing.
struct Untracked {
  void Changed(const SettingOwner& /*owner*/, int /*index*/) const {}
};

/// A value that the decoder fills and nobody edits. `Name` is the setting's name in the record.
template <class T>
class ReadOnlySetting {
 public:
  using Value = T;
  explicit ReadOnlySetting(const char* name) : name_(name) {}
  ReadOnlySetting(const ReadOnlySetting&) = delete;
  ReadOnlySetting& operator=(const ReadOnlySetting& other) {
    value_ = other.value_;
    return *this;
  }
  ~ReadOnlySetting() = default;
  bool operator==(const ReadOnlySetting& other) const { return value_ == other.value_; }

  [[nodiscard]] const T& operator()() const { return value_; }
  [[nodiscard]] const char* Name() const { return name_; }
  /// Stores without tracking: for the decoder. A text keeps its storage.
  void Load(T value) { value_ = std::move(value); }
  void Load(std::string_view text) requires std::same_as<T, std::string> { value_.assign(text); }

 private:
  const char* name_;
  T value_{};
};

/// One tracked setting: `rec.AlarmMode()` reads, `rec.AlarmMode(2)` sets. A set that changes the
/// value while the commit flag of its editor is raised lists its block; then the value is stored.
template <class T, class Rule = InBlock>
class Setting : public ReadOnlySetting<T> {
 public:
  Setting(const SettingOwner& owner, const char* name, Rule rule = {})
      : ReadOnlySetting<T>(name), owner_(&owner), rule_(rule) {}
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting& other) {
    this->Load(other());
    return *this;
  }
  ~Setting() = default;
  bool operator==(const Setting& other) const { return (*this)() == other(); }

  using ReadOnlySetting<T>::operator();
  void operator()(T value) {
    if (!(value == (*this)())) rule_.Changed(*owner_, 0);
    this->Load(std::move(value));
  }

 private:
  const SettingOwner* owner_;
  [[no_unique_address]] Rule rule_;
};

/// `N` settings under one name: `rec.TelEnable(3)` reads, `rec.TelEnable(3, 1)` sets. A bad index
/// reads as zero and is ignored when set.
template <class T, std::size_t N, class Rule = InBlock>
class SettingArray {
 public:
  using Value = T;
  static constexpr int kSize = static_cast<int>(N);

  SettingArray(const SettingOwner& owner, const char* name, Rule rule = {})
      : owner_(&owner), name_(name), rule_(rule) {}
  SettingArray(const SettingArray&) = delete;
  SettingArray& operator=(const SettingArray& other) {
    values_ = other.values_;
    return *this;
  }
  ~SettingArray() = default;
  bool operator==(const SettingArray& other) const { return values_ == other.values_; }

  [[nodiscard]] T operator()(int index) const { return InRange(index) ? At(index) : T{}; }
  void operator()(int index, T value) {
    if (!InRange(index)) return;
    if (!(value == At(index))) rule_.Changed(*owner_, index);
    At(index) = std::move(value);
  }
  [[nodiscard]] const char* Name() const { return name_; }
  void Load(int index, T value) {
    if (InRange(index)) At(index) = std::move(value);
  }

  /// Entry `index` with the shape of a single setting, for the block layouts.
  struct Entry {
    using Value = T;
    SettingArray* array;
    int index;
    [[nodiscard]] T operator()() const { return (*array)(index); }
    void Load(T value) const { array->Load(index, std::move(value)); }
    [[nodiscard]] const char* Name() const { return array->Name(); }
  };
  [[nodiscard]] Entry operator[](int index) { return Entry{this, index}; }

 private:
  static bool InRange(int index) { return index >= 0 && index < kSize; }
  T& At(int index) { return values_[static_cast<std::size_t>(index)]; }
  const T& At(int index) const { return values_[static_cast<std::size_t>(index)]; }

  const SettingOwner* owner_;
  const char* name_;
  [[no_unique_address]] Rule rule_;
  std::array<T, N> values_{};
};

}  // namespace quorvel
