#pragma once

#include <optional>
#include <string>

#include "quorvel/block_image.h"

namespace quorvel::muxhost {

/// Model codes from this one on are triplex recorders.
inline constexpr int kFirstTriplexModel = 6;

/// How a device that speaks the combined exchange is made.
struct CombinedSetup {
  int macros = 0;          ///< macro records, 0 to 255
  int macro_size = 0;      ///< bytes of a record, 0 to 65535; all records together no more either
  int firmware_major = 5;  ///< 0 to 255
  int firmware_minor = 6;  ///< 0 to 99
};

/// What a simulated device is made like. Values left out follow from the model.
struct DeviceSetup {
  int model = 6;                         ///< model code, 0 to 20
  int cameras = 16;                      ///< 4, 9, 10 or 16
  std::optional<int> blocks = {};        ///< 1 to 255; 185, or 225 from model 6 on
  std::optional<char> variant = {};      ///< the variant character; as in the factory image
  std::optional<std::string> name = {};  ///< at most 14 bytes; made from the family and the cameras
  std::optional<CombinedSetup> combined = {};  ///< left out: it exchanges single blocks only
};

inline constexpr int kMostDeviceBlocks = 255;

/// Throws std::invalid_argument with that text unless `good`.
void CheckSetup(bool good, const std::string& rule);
/// Throws std::invalid_argument, naming the value, for sizes that no device has.
void CheckSetup(const CombinedSetup& setup);

/// The configuration that a device of this setup has from the factory: 185 or 200 blocks, whatever
/// the setup says of them. Throws std::invalid_argument, naming the value, for a setup that no
/// device has.
[[nodiscard]] BlockImage FactoryImage(const DeviceSetup& setup);
/// The variant character of such a configuration.
[[nodiscard]] char VariantOf(const BlockImage& image);
/// Blocks that a device of this setup has.
[[nodiscard]] int BlocksOf(const DeviceSetup& setup);

}  // namespace quorvel::muxhost
