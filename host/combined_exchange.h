#pragma once

#include "core/combined_array.h"
#include "core/device_state.h"
#include "ui/combo_sizes.h"

namespace quorvel {

/// An array for an image that came without one: the header as the host has stated the sizes, the
/// image, no macro data.
[[nodiscard]] CombinedArray BuildComboArray(const ComboSizes& sizes, const BlockImage& image);

/// Sees to it that ComboArray can carry the image, so that the next send or save does: factory
/// defaults, or an image of another exchange, have no array of their own.
void ProvideComboArray(DeviceState& device, const ComboSizes& sizes);

}  // namespace quorvel
