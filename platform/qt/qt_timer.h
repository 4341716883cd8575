#pragma once

#include <functional>
#include <memory>

#include "quorvel/platform.h"

namespace quorvel::qt {

/// A timer on the application's event loop.
[[nodiscard]] std::unique_ptr<Timer> MakeTimer(std::function<void()> tick);

}  // namespace quorvel::qt
