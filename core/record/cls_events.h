#pragma once

#include "core/bit_fields.h"
#include "core/record/meanings/recording.h"
#include "core/setting.h"

namespace quorvel {

/// Event recording of one camera.
class clsEvents : public SettingOwner {
  /// Associated camera i of every camera is kept in block 214 + i.
  struct AssociationBlock {
    static void Changed(SettingOwner& owner, int index) { owner.Record(CommitRecord, 214 + index); }
  };

 public:
  clsEvents(RecordEnvironment& env, int index) : SettingOwner(env, "CamEvent", index) {}
  clsEvents& operator=(const clsEvents&) = default;
  bool operator==(const clsEvents&) const = default;

  SettingArray<"EvAssociated", Byte, 3, AssociationBlock, CameraIndexOr<"--">> EvAssociated{*this};
  Setting<"PostEvDuration", Byte, In<57, CommitRecord>, PostEventTime> PostEvDuration{*this};
  Setting<"PreEvDuration", Byte, In<56, CommitRecord>, PreEventTime> PreEvDuration{*this};
  Setting<"LnkToEvent", Byte, In<56, CommitRecord>, NoYes> LnkToEvent{*this};
  Setting<"EType", Byte, In<56, CommitRecord>, EventType> EType{*this};
  Setting<"Act_RRIndex", Byte, In<63, CommitRecord>, RecordRate> Act_RRIndex{*this};
  Setting<"TL_RRIndex", Byte, In<62, CommitRecord>, RecordRate> TL_RRIndex{*this};
  Setting<"Event_RRIndex", Byte, In<58, CommitRecord>, EventRate> Event_RRIndex{*this};

  /// Bits 6 and 7 of the camera's byte of block 56, and the event type that they mean.
  [[nodiscard]] static constexpr Byte TypeOfBits(int bits) {
    if ((bits & 0x40) == 0) return 0;
    return (bits & 0x80) != 0 ? 2 : 1;
  }
  [[nodiscard]] static constexpr Byte BitsOfType(int type) {
    if (type == 0) return 0;
    return type == 2 ? 0xC0 : 0x40;
  }
  /// Unpacks the camera's byte of block 56 into its three settings; records nothing.
  void EventSettings(Byte packed) {
    PreEvDuration.Load(packed & 7);
    LnkToEvent.Load(GetBit(packed, 4));
    EType.Load(TypeOfBits(packed));
  }
};

}  // namespace quorvel
