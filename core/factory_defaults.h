#pragma once

#include <array>
#include <string_view>

#include "quorvel/block_image.h"

namespace quorvel {

/// The device for which factory defaults are built, as it says itself.
struct DefaultsDevice {
  Byte DefProbeByte = 0;                ///< variant character: block 183 byte 7
  Byte DefChannels = 0;                 ///< cameras, 0 to 16
  Byte DefModelCode = 0;                ///< without bit 7
  std::array<Byte, 14> DefModelName{};  ///< as the device holds it, zero bytes included
};

/// The device of these statements; bit 7 of the code is not read. Throws ImageError when the name
/// does not fit.
[[nodiscard]] DefaultsDevice NamedDevice(Byte cameras, Byte model_code, std::string_view name,
                                         char variant);

/// Resource number of the factory image that fits a model: 301 below code 6, 401 from there on.
[[nodiscard]] int FactoryImageOf(Byte model_code);

/// Adapts a factory image to a device: its size, the settings that differ by model, variant and
/// camera count, and the identity. `combo_blocks` is the number of blocks that the device states
/// for the combined exchange, 0 when it stated none; numbers outside 200 to 255 count as none, and
/// so do all for model codes below 6. Throws ImageError before anything changes when the device
/// names more than 16 cameras or the image has fewer blocks than the model's factory image.
void AdaptToDevice(BlockImage& image, const DefaultsDevice& device, int combo_blocks);

}  // namespace quorvel
