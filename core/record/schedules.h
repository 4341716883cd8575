#pragma once

#include <cstdint>
#include <utility>

#include "core/record/meanings/recording.h"
#include "core/setting.h"

namespace quorvel {

/// Schedule entries keep their own index, from which the block of a change follows; the record
/// tells it to an entry that is fetched.

/// A macro started at a time of day; four entries a block from 64 on.
class clsTimedMacro : public SettingOwner {
  struct EntryBlock {
    static void Changed(SettingOwner& owner, int) {
      owner.Record(CommitMacro, 64 + owner.Index() / 4);
    }
  };

 public:
  clsTimedMacro(RecordEnvironment& env, int index) : SettingOwner(env, "TimeMacroInfo", index) {}
  clsTimedMacro& operator=(const clsTimedMacro&) = default;
  bool operator==(const clsTimedMacro&) const = default;

  void SetMacroIdx(Byte index) { SetIndex(index); }

  Setting<"MacroNum", Byte, EntryBlock, OnePerCamera> MacroNum{*this};
  Setting<"Minute", Byte, EntryBlock, MacroMinutes> Minute{*this};
  Setting<"Hour", Byte, EntryBlock, HourOfDay> Hour{*this};
  Setting<"Day", Byte, EntryBlock, MacroDay> Day{*this};
};

/// The byte script of one camera, block 69 + c.
class clsSubMacro : public SettingOwner {
  struct EntryBlock {
    static void Changed(SettingOwner& owner, int) { owner.Record(CommitMacro, 69 + owner.Index()); }
  };
  struct Length : EntryBlock {
    static constexpr Byte kMost = 10;
  };
  struct ScriptByte : EntryBlock {
    static void Changed(SettingOwner& owner, int k) {
      auto& macro = static_cast<clsSubMacro&>(owner);
      macro.set_bytes_ = static_cast<std::uint16_t>(macro.set_bytes_ | 1U << k);
      EntryBlock::Changed(owner, k);
    }
  };

 public:
  static constexpr int kLongest = Length::kMost;

  clsSubMacro(RecordEnvironment& env, int index) : SettingOwner(env, "SubMacroInfo", index) {}
  clsSubMacro& operator=(const clsSubMacro&) = default;
  bool operator==(const clsSubMacro&) const = default;

  /// An index of 16 or more is ignored.
  void SetSubMacroIdx(Byte index) {
    if (index < kMostCameras) SetIndex(index);
  }

  /// Whether byte k was set since the record was decoded, be it back to what it was.
  [[nodiscard]] bool WasSet(int k) const { return (set_bytes_ >> k & 1U) != 0; }
  /// Where it holds what another does, no byte of it counts as set that is not set in the other.
  /// True where one did.
  bool SettleLike(const clsSubMacro& other) {
    if (!(SMacroByte == other.SMacroByte) || !(SMacroLen == other.SMacroLen)) return false;
    return std::exchange(set_bytes_, other.set_bytes_) != other.set_bytes_;
  }

  SettingArray<"SMacroByte", Byte, kLongest, ScriptByte> SMacroByte{*this};
  /// Bytes in the script.
  Setting<"SMacroLen", Byte, Length, Within<0, Length::kMost>> SMacroLen{*this};

 private:
  std::uint16_t set_bytes_ = 0;
};

/// One entry of the recording schedule; two entries a block from 195 on, model code 6 and above.
class clsRecTimer : public SettingOwner {
  struct EntryBlock {
    static void Changed(SettingOwner& owner, int) {
      owner.Record(CommitRecord, 195 + owner.Index() / 2);
    }
  };

 public:
  clsRecTimer(RecordEnvironment& env, int index) : SettingOwner(env, "MRecTimer", index) {}
  clsRecTimer& operator=(const clsRecTimer&) = default;
  bool operator==(const clsRecTimer&) const = default;

  void SetRTIdx(Byte index) { SetIndex(index); }

  Setting<"RTdate", Byte, EntryBlock, TimerDate> RTdate{*this};
  Setting<"RTstart_hh", Byte, EntryBlock, HourOfDay> RTstart_hh{*this};
  Setting<"RTstart_mm", Byte, EntryBlock, MinuteOrSecond> RTstart_mm{*this};
  Setting<"RTstop_hh", Byte, EntryBlock, HourOfDay> RTstop_hh{*this};
  Setting<"RTstop_mm", Byte, EntryBlock, MinuteOrSecond> RTstop_mm{*this};
  Setting<"RTmacrolnk", Byte, EntryBlock, TimerMacro> RTmacrolnk{*this};
  Setting<"RTstatus", Byte, EntryBlock, OffOn> RTstatus{*this};
  Setting<"RTvalid", Byte, EntryBlock, NoYes> RTvalid{*this};

  /// Takes the values of another entry, each as if it had been set: an entry that moves is tracked.
  void Take(const clsRecTimer& other) {
    RTdate.Set(other.RTdate());
    RTstart_hh.Set(other.RTstart_hh());
    RTstart_mm.Set(other.RTstart_mm());
    RTstop_hh.Set(other.RTstop_hh());
    RTstop_mm.Set(other.RTstop_mm());
    RTmacrolnk.Set(other.RTmacrolnk());
    RTstatus.Set(other.RTstatus());
    RTvalid.Set(other.RTvalid());
  }
  /// Makes all values zeros, tracked as well.
  void Clear() { Take(clsRecTimer(env(), Index())); }
};

}  // namespace quorvel
