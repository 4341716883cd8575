#pragma once

#include <algorithm>

#include "core/setting.h"

namespace quorvel {

/// Schedule entries learn their own index when they are fetched through the record; the block of a
/// change follows from it.

/// A macro started at a time of day; four entries a block from 64 on.
class clsTimedMacro : public SettingOwner {
  struct EntryBlock {
    void Changed(const SettingOwner& owner, int) const {
      owner.Record(CommitMacro, 64 + owner.Index() / 4);
    }
  };

 public:
  explicit clsTimedMacro(RecordEnvironment& env) : SettingOwner(env, "TimeMacroInfo", 0) {}
  clsTimedMacro& operator=(const clsTimedMacro&) = default;
  bool operator==(const clsTimedMacro&) const = default;

  void SetMacroIdx(Byte index) { SetIndex(index); }

  Setting<Byte, EntryBlock> MacroNum{*this, "MacroNum"};
  Setting<Byte, EntryBlock> Minute{*this, "Minute"};
  Setting<Byte, EntryBlock> Hour{*this, "Hour"};
  /// 0 never, 1 to 7 Monday to Sunday, 8 every day.
  Setting<Byte, EntryBlock> Day{*this, "Day"};
};

/// The byte script of one camera, block 69 + c.
class clsSubMacro : public SettingOwner {
  struct EntryBlock {
    void Changed(const SettingOwner& owner, int) const {
      owner.Record(CommitMacro, 69 + owner.Index());
    }
  };

 public:
  static constexpr int kLongest = 10;

  explicit clsSubMacro(RecordEnvironment& env) : SettingOwner(env, "SubMacroInfo", 0) {}
  clsSubMacro& operator=(const clsSubMacro&) = default;
  bool operator==(const clsSubMacro&) const = default;

  /// An index of 16 or more is ignored.
  void SetSubMacroIdx(Byte index) {
    if (index < kMostCameras) SetIndex(index);
  }

  SettingArray<Byte, kLongest, EntryBlock> SMacroByte{*this, "SMacroByte"};

  /// Bytes in the script; a script is never longer than 10.
  [[nodiscard]] Byte SMacroLen() const { return length_(); }
  void SMacroLen(Byte length) { length_(Limited(length)); }
  void LoadLength(Byte length) { length_.Load(Limited(length)); }

 private:
  static Byte Limited(Byte length) { return std::min(length, Byte{kLongest}); }
  Setting<Byte, EntryBlock> length_{*this, "SMacroLen"};
};

/// One entry of the recording schedule; two entries a block from 195 on, model code 6 and above.
class clsRecTimer : public SettingOwner {
  struct EntryBlock {
    void Changed(const SettingOwner& owner, int) const {
      owner.Record(CommitRecord, 195 + owner.Index() / 2);
    }
  };

 public:
  explicit clsRecTimer(RecordEnvironment& env) : SettingOwner(env, "MRecTimer", 0) {}
  clsRecTimer& operator=(const clsRecTimer&) = default;
  bool operator==(const clsRecTimer&) const = default;

  void SetRTIdx(Byte index) { SetIndex(index); }

  Setting<Byte, EntryBlock> RTdate{*this, "RTdate"};
  Setting<Byte, EntryBlock> RTstart_hh{*this, "RTstart_hh"};
  Setting<Byte, EntryBlock> RTstart_mm{*this, "RTstart_mm"};
  Setting<Byte, EntryBlock> RTstop_hh{*this, "RTstop_hh"};
  Setting<Byte, EntryBlock> RTstop_mm{*this, "RTstop_mm"};
  Setting<Byte, EntryBlock> RTmacrolnk{*this, "RTmacrolnk"};
  Setting<Byte, EntryBlock> RTstatus{*this, "RTstatus"};
  Setting<Byte, EntryBlock> RTvalid{*this, "RTvalid"};
};

}  // namespace quorvel
