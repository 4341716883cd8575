#pragma once

#include "quorvel/picture.h"

namespace quorvel {

/// Picture resource 101: the icon of the component's dialogs.
[[nodiscard]] const Picture& Icon101();

}  // namespace quorvel
