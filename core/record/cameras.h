#pragma once

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
  SettingArray<Byte, 32, Untracked> ActGrid{*this, "ActGrid"};
  Setting<bool, Untracked> VidLoss{*this, "VidLoss"};
  Setting<Byte> TextPos{*this, "TextPos", {149, CommitCamera}};
  /// Stored from 0: 0 to 9 below model code 6, 0 to 100 from 6 on.
  Setting<Byte> SignalGain{*this, "SignalGain", {47, CommitCamera}};
  Setting<Byte> Reject{*this, "Reject", {51, CommitMotion}};
  Setting<Byte> Relay{*this, "Relay", {149, CommitMotion}};
  Setting<Byte> size{*this, "size", {52, CommitMotion}};
  Setting<Byte> LnkALM{*this, "LnkALM", {54, CommitMotion}};
  Setting<Byte> Sensitivity{*this, "Sensitivity", {50, CommitMotion}};
  Setting<Byte> Rate{*this, "Rate", {51, CommitMotion}};
  /// At most 13 characters as the device holds them, zero bytes included. The editor that changes
  /// a title lists its block itself.
  Setting<std::string, Untracked> title{*this, "title"};
  Setting<bool> covert{*this, "covert", {49, CommitCamera}};
  Setting<bool> disable{*this, "disable", {33, CommitCamera}};
  Setting<bool> color{*this, "color", {184, CommitCamera}};
  Setting<Byte> Compress{*this, "Compress", {44, CommitRecord}};
};

}  // namespace quorvel
