#pragma once

#include "core/device_state.h"
#include "quorvel/combined_array.h"
#include "ui/combo_sizes.h"

namespace quorvel {

/// An array for an image that came without one: the header as the host has stated the sizes, the
/// image, no macro data.
[[nodiscard]] CombinedArray BuildComboArray(const ComboSizes& sizes, const BlockImage& image);

/// Builds a ComboArray for the image where the present one cannot carry it: factory defaults, and
/// images that came block by block, have none of their own.
void ProvideComboArray(DeviceState& device, const ComboSizes& sizes);

}  // namespace quorvel
