#pragma once

#include <cstdint>

#include "ui/combo_sizes.h"
#include "ui/connected_identity.h"

namespace quorvel {

/// What the host has said of itself and of the device that it is connected to.
struct HostStatements {
  std::int16_t HostType = 0;  ///< device family
  Byte HostIsDvr = 0;         ///< 1: captions end in " DVR", else " Plexar"
  Byte HostCommId = 0;        ///< 0: interactive host
  bool ComboMode = false;     ///< combined exchange instead of block by block
  ConnectedIdentity connected;
  ComboSizes combo_sizes;
  std::int16_t MenuParam = 0;  ///< below 1: no network link
  Byte MenuHostCommId = 0;

  bool operator==(const HostStatements&) const = default;

  /// How dialog captions name the device.
  [[nodiscard]] const char* CaptionSuffix() const { return HostIsDvr == 1 ? " DVR" : " Plexar"; }
};

}  // namespace quorvel
