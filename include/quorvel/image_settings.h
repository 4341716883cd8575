#pragma once

#include <string>
#include <vector>

#include "quorvel/block_image.h"
#include "quorvel/export.h"

namespace quorvel {

/// A setting that a block holds, by name and value as MainMenuCtrl::Settings tells them.
struct BlockSetting {
  Byte block;
  std::string name;
  std::string value;
  bool operator==(const BlockSetting&) const = default;
};

/// The settings that an image holds, in block order, with what the device says of itself. One that
/// several blocks hold comes with each of them. Throws ImageError when the image cannot be decoded.
[[nodiscard]] QUORVEL_API std::vector<BlockSetting> SettingsByBlock(const BlockImage& image);

/// The blocks, in rising order, in which anything is known to be: settings, or the device's marks.
/// All others are carried along as they are. Throws ImageError when the image cannot be decoded.
[[nodiscard]] QUORVEL_API std::vector<Byte> KnownBlocks(const BlockImage& image);

}  // namespace quorvel
