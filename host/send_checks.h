#pragma once

#include <cstdint>
#include <string>

#include "quorvel/transfer.h"
#include "ui/connected_identity.h"

namespace quorvel {

struct Context;

/// What a send rests on: the image, and what it was compared with when the send was asked for.
struct SendBasis {
  int generation = 0;
  bool combined = false;
  std::int16_t family = 0;
  Byte comm_id = 0;
  ConnectedIdentity connected = {};
  bool operator==(const SendBasis&) const = default;
};

[[nodiscard]] SendBasis PresentBasis(const Context& context);

/// True when a host of the stated device family can send the image.
[[nodiscard]] bool FamilyFits(const Context& context);

/// True when the device states another size of a macro record than the combined array has, which is
/// there after ProvideComboArray.
[[nodiscard]] bool MacroSizeDiffers(const Context& context);

/// Why the image cannot be sent to the connected device, whatever is chosen, as a sentence that
/// names both; empty when it can.
[[nodiscard]] std::string WhyDataDoesNotFit(const Context& context);

/// Why this cannot be sent to the connected device without asking a user, as a sentence; empty when
/// it can.
[[nodiscard]] std::string WhyNotSent(Context& context, const SendChoice& choice);

}  // namespace quorvel
