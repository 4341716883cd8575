#pragma once

#include <string>

#include "quorvel/byte.h"

namespace quorvel {

/// The device that the host is connected to, as the host states it.
struct ConnectedIdentity {
  Byte ConnChannels = 0;
  Byte ConnModelCode = 0;
  std::string ConnModelName;  ///< code-page bytes
  bool operator==(const ConnectedIdentity&) const = default;
};

}  // namespace quorvel
