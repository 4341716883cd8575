#pragma once

#include <memory>

#include "quorvel/export.h"
#include "quorvel/widgets/dialog.h"

namespace quorvel {

/// A window with every kind of control in every state, values that no control can show among them:
/// for those who write a platform, to see that it draws them all. It edits nothing.
[[nodiscard]] QUORVEL_API std::shared_ptr<Dialog> MakeWidgetPage(Platform& platform);

}  // namespace quorvel
