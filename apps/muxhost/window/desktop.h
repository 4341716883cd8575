#pragma once

class QWidget;

namespace quorvel::muxhost {

/// True while an editor, or the menu, is on screen beside the window. The lists of the window's own
/// boxes do not count.
[[nodiscard]] bool OthersAreOpen(const QWidget* window);

/// True while a window is on screen that locks all others.
[[nodiscard]] bool IsLocked();

/// Closes the windows that lock all others, the front one first, as the user would.
void CloseLockingWindows();

}  // namespace quorvel::muxhost
