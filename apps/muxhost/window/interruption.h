#pragma once

#include "muxhost/device/link.h"

namespace quorvel::muxhost {

/// Does on the screen what the user does at a transfer's dialog. False when the dialog is not there
/// or has another one in front of it, or when the button cannot be pressed.
bool Interrupt(const Interruption& what);

}  // namespace quorvel::muxhost
