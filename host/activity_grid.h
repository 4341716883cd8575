#pragma once

#include <array>
#include <span>

#include "core/device_state.h"

namespace quorvel {

/// The component does not draw a camera's activity grid; the host does, with its own view of the
/// picture. 32 bytes of zone bits, passed through unchanged.
using ActivityGridBytes = std::array<Byte, 32>;

/// Fills `grid` with the grid of `camera`; false, and no change, for a camera that the device
/// lacks.
bool ReadActivityGrid(DeviceState& device, int camera, ActivityGridBytes& grid);

/// Stores an edited grid, [0] camera and 32 bytes, and lists the blocks of the bytes that differ.
/// False, and no change, for data that is too short or names a camera that the device lacks.
bool UpdateActivityGrid(DeviceState& device, std::span<const Byte> data);

}  // namespace quorvel
