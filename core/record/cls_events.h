#pragma once

#include "core/bit_fields.h"
#include "core/setting.h"

namespace quorvel {

/// Event recording of one camera. Rate indices 0 to 20 name a rate, 99 is the turbo rate.
class clsEvents : public SettingOwner {
  /// Associated camera i of every camera is kept in block 214 + i.
  struct AssociationBlock {
    void Changed(const SettingOwner& owner, int index) const {
      owner.Record(CommitRecord, 214 + index);
    }
  };

 public:
  clsEvents(RecordEnvironment& env, int index) : SettingOwner(env, "CamEvent", index) {}
  clsEvents& operator=(const clsEvents&) = default;
  bool operator==(const clsEvents&) const = default;

  SettingArray<Byte, 3, AssociationBlock> EvAssociated{*this, "EvAssociated"};
  Setting<Byte> PostEvDuration{*this, "PostEvDuration", {57, CommitRecord}};  ///< seconds
  Setting<Byte> PreEvDuration{*this, "PreEvDuration", {56, CommitRecord}};    ///< seconds, 0 to 7
  Setting<Byte> LnkToEvent{*this, "LnkToEvent", {56, CommitRecord}};          ///< 0 or 1
  /// 0 time-lapse, 1 event, 2 event and time-lapse.
  Setting<Byte> EType{*this, "EType", {56, CommitRecord}};
  Setting<Byte> Act_RRIndex{*this, "Act_RRIndex", {63, CommitRecord}};
  Setting<Byte> TL_RRIndex{*this, "TL_RRIndex", {62, CommitRecord}};
  Setting<Byte> Event_RRIndex{*this, "Event_RRIndex", {58, CommitRecord}};

  /// Unpacks the camera's byte of block 56 into its three settings; records nothing.
  void EventSettings(Byte packed) {
    PreEvDuration.Load(packed & 7);
    LnkToEvent.Load(GetBit(packed, 4));
    EType.Load(GetBit(packed, 6) == 0 ? Byte{0} : static_cast<Byte>(1 + GetBit(packed, 7)));
  }
  /// The byte of block 56 that holds the three settings; its spare bits are 0.
  [[nodiscard]] Byte PackedEventSettings() const {
    Byte packed = PreEvDuration() & 7;
    SetBit(packed, 4, LnkToEvent() != 0);
    SetBit(packed, 6, EType() != 0);
    SetBit(packed, 7, EType() == 2);
    return packed;
  }
};

}  // namespace quorvel
