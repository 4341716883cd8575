#pragma once

#include "core/record/meanings/cameras.h"
#include "core/setting.h"

namespace quorvel {

/// Characters of a camera title in its block.
inline constexpr int kTitleLength = 13;

/// One camera: title, picture and motion-detection settings. Camera c's title is block c + 1.
class Cameras : public SettingOwner {
 public:
  Cameras(RecordEnvironment& env, int index) : SettingOwner(env, "CamInfo", index) {}
  Cameras& operator=(const Cameras&) = default;
  bool operator==(const Cameras&) const = default;

  /// Motion-detection mask: 32 bytes of zone bits, blocks 85 + 2c and 86 + 2c.
  SettingArray<"ActGrid", Byte, 32> ActGrid{*this};
  Setting<"VidLoss", bool> VidLoss{*this};
  Setting<"TextPos", Byte, In<149, CommitCamera>, TextPosition> TextPos{*this};
  /// Stored from 0: 0 to 9 below model code 6, 0 to 100 from 6 on.
  Setting<"SignalGain", Byte, In<47, CommitCamera>, SignalGains> SignalGain{*this};
  Setting<"Reject", Byte, In<51, CommitMotion>, Rejection> Reject{*this};
  Setting<"Relay", Byte, In<149, CommitMotion>, Relays> Relay{*this};
  Setting<"size", Byte, In<52, CommitMotion>, TargetSize> size{*this};
  Setting<"LnkALM", Byte, In<54, CommitMotion>, AlarmLink> LnkALM{*this};
  Setting<"Sensitivity", Byte, In<50, CommitMotion>, Within<0, 9>> Sensitivity{*this};
  Setting<"Rate", Byte, In<51, CommitMotion>, RecordRateChange> Rate{*this};
  /// At most 13 characters as the device holds them, zero bytes included. The editor that changes
  /// a title lists its block itself.
  Setting<"title", std::string> title{*this};
  Setting<"covert", bool, In<49, CommitCamera>> covert{*this};
  Setting<"disable", bool, In<33, CommitCamera>> disable{*this};
  Setting<"color", bool, In<184, CommitCamera>> color{*this};
  Setting<"Compress", Byte, In<44, CommitRecord>, RecordQuality> Compress{*this};
};

}  // namespace quorvel
