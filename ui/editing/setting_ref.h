#pragma once

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/record/mux_data.h"
#include "core/setting.h"

namespace quorvel {

/// A setting as an editor sees it, or one in every line: of every camera, alarm, timer. It is read
/// and written as a `Value` through the record's own setters, and knows its names.
template <class Value>
class SettingAccess {
 public:
  SettingAccess() = default;
  SettingAccess(const SettingAccess&) = delete;
  SettingAccess& operator=(const SettingAccess&) = delete;
  virtual ~SettingAccess() = default;

  /// `line` is 0-based: the camera, alarm or timer, or the entry of an array. A line that the
  /// record lacks reads as a zero and is not written.
  [[nodiscard]] virtual Value Get(MuxData& record, int line) const = 0;
  virtual void Set(MuxData& record, int line, Value value) const = 0;
  /// "CamInfo(3).SignalGain": more than one where several settings stand behind one value.
  virtual void AddNames(MuxData& record, int line, std::vector<std::string>& names) const = 0;
};

/// A number of the record. Booleans are 0 and 1.
class SettingRef {
 public:
  explicit SettingRef(std::shared_ptr<const SettingAccess<int>> access)
      : access_(std::move(access)) {}

  /// A value that the control does not offer is taken for `value`: shown so, and written so.
  [[nodiscard]] SettingRef Otherwise(int value) const;
  /// One that it does not offer is shown as nothing, and becomes `value` on OK. Without either, it
  /// is shown as nothing and stays until the user chooses.
  [[nodiscard]] SettingRef OtherwiseWritten(int value) const;
  /// A line of which this does not hold reads as `value` and is not written.
  [[nodiscard]] SettingRef Where(std::function<bool(MuxData& record, int line)> holds,
                                 int value) const;

  [[nodiscard]] const SettingAccess<int>& Access() const { return *access_; }
  /// What to show instead of a value that is not offered, and what to write; the value itself
  /// where nothing was said.
  [[nodiscard]] int ShownFor(int value) const { return taken_for_ < 0 ? value : taken_for_; }
  [[nodiscard]] int WrittenFor(int value) const { return written_ < 0 ? value : written_; }

 private:
  std::shared_ptr<const SettingAccess<int>> access_;
  int taken_for_ = -1;
  int written_ = -1;
};

/// A text of the record, as the device's bytes.
using TextRef = std::shared_ptr<const SettingAccess<std::string>>;

/// Several settings behind one value. `join` makes the value of theirs; `part` puts into `values`,
/// which holds theirs, what the new value makes of them.
[[nodiscard]] SettingRef Joined(std::vector<SettingRef> settings,
                                std::function<int(const std::vector<int>& values)> join,
                                std::function<void(int value, std::vector<int>& values)> part);
/// An hour and a minute as minutes of the day; a pair that no clock shows as a larger number of its
/// own, so that it stays.
[[nodiscard]] SettingRef TimeOf(SettingRef hour, SettingRef minute);
/// Settings of which each has a line of its own: line k is `settings[k]`.
[[nodiscard]] SettingRef OnePerLine(std::vector<SettingRef> settings);
/// A setting that its control shows as something else: what `to_shown` makes of the stored value,
/// and stores as what `to_stored` makes of the control's and the stored one.
[[nodiscard]] SettingRef Converted(SettingRef setting,
                                   std::function<int(MuxData&, int line, int stored)> to_shown,
                                   std::function<int(int shown, int stored)> to_stored);
/// The bits of a mask, one a line: line k is bit `bits[k]`.
[[nodiscard]] SettingRef BitsOf(SettingRef mask, std::vector<int> bits);

namespace setting_ref_detail {

[[nodiscard]] std::string NameOf(const SettingOwner& owner, const char* name, int entry);

template <class S>
concept Array = requires {
  S::kSize;
};

/// `locate(record, line)` finds the owner, or a null pointer; `entry` of an array is its line when
/// it is negative.
template <class Locate, class Owner, class S>
class Member final
    : public SettingAccess<
          std::conditional_t<std::is_integral_v<typename S::Value>, int, std::string>> {
 public:
  using Stored = typename S::Value;
  using Value = std::conditional_t<std::is_integral_v<Stored>, int, std::string>;

  Member(Locate locate, S Owner::*member, int entry)
      : locate_(locate), member_(member), entry_(entry) {}

  [[nodiscard]] Value Get(MuxData& record, int line) const override {
    Owner* const owner = locate_(record, line);
    if (owner == nullptr) return {};
    S& setting = owner->*member_;
    if constexpr (Array<S>) {
      return static_cast<Value>(setting(Entry(line)));
    } else {
      return static_cast<Value>(setting());
    }
  }
  void Set(MuxData& record, int line, Value value) const override {
    Owner* const owner = locate_(record, line);
    if (owner == nullptr) return;
    S& setting = owner->*member_;
    if constexpr (Array<S>) {
      setting.Set(Entry(line), static_cast<Stored>(value));
    } else {
      setting.Set(static_cast<Stored>(std::move(value)));
    }
  }
  void AddNames(MuxData& record, int line, std::vector<std::string>& names) const override {
    Owner* const owner = locate_(record, line);
    if (owner != nullptr) names.push_back(NameOf(*owner, S::Name(), Array<S> ? Entry(line) : -1));
  }

 private:
  [[nodiscard]] int Entry(int line) const { return entry_ < 0 ? line : entry_; }

  Locate locate_;
  S Owner::*member_;
  int entry_;
};

template <class Owner, class S, class Locate>
auto Refer(S Owner::*member, int entry, Locate locate) {
  using Access = Member<Locate, Owner, S>;
  auto access = std::make_shared<const Access>(locate, member, entry);
  if constexpr (std::is_same_v<typename Access::Value, int>) {
    return SettingRef(std::move(access));
  } else {
    return TextRef(std::move(access));
  }
}

}  // namespace setting_ref_detail

/// Every line of an array takes its own entry; with `entry`, all lines take that one.
inline constexpr int kEntryOfLine = -1;

/// A setting of the record itself: At(&MuxData::AlarmMode), At(&MuxData::TelEnable).
template <class S>
[[nodiscard]] auto At(S MuxData::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(member, entry, [](MuxData& record, int) { return &record; });
}
/// One of a single record in it: Of(&MuxData::MatrixInfo, &clsMatrix::AuxMonitor).
template <class Owner, class S>
[[nodiscard]] auto Of(Owner MuxData::*single, S Owner::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(member, entry,
                                   [single](MuxData& record, int) { return &(record.*single); });
}
/// One of every camera, alarm, ...
template <class S>
[[nodiscard]] auto OfCamera(S Cameras::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(member, entry,
                                   [](MuxData& record, int line) { return record.CamInfo(line); });
}
template <class S>
[[nodiscard]] auto OfAlarm(S Alarms::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(
      member, entry, [](MuxData& record, int line) { return record.AlarmInfo(line); });
}
template <class S>
[[nodiscard]] auto OfAction(S AlmAction::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(
      member, entry, [](MuxData& record, int line) { return record.AlmActionInfo(line); });
}
template <class S>
[[nodiscard]] auto OfEvents(S clsEvents::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(member, entry,
                                   [](MuxData& record, int line) { return record.CamEvent(line); });
}
template <class S>
[[nodiscard]] auto OfSubMacro(S clsSubMacro::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(
      member, entry, [](MuxData& record, int line) { return record.SubMacroInfo(line); });
}
template <class S>
[[nodiscard]] auto OfTimedMacro(S clsTimedMacro::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(
      member, entry, [](MuxData& record, int line) { return record.TimeMacroInfo(line); });
}
template <class S>
[[nodiscard]] auto OfRecTimer(S clsRecTimer::*member, int entry = kEntryOfLine) {
  return setting_ref_detail::Refer(
      member, entry, [](MuxData& record, int line) { return record.MRecTimer(line); });
}

}  // namespace quorvel
