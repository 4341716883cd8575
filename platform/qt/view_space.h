#pragma once

#include "quorvel/widgets/layout.h"

namespace quorvel::qt {

/// What part of the space to spare a part of a layout gets: 0 for a part that keeps its own size.
[[nodiscard]] int ShareAcross(const Layout& layout);
[[nodiscard]] int ShareDown(const Layout& layout);
/// Rows for which a grid or list claims space; one of more takes what is left over.
inline constexpr int kMostGridRows = 16;
inline constexpr int kMostListRows = 14;

/// True for what is the better the taller it is, as a long grid.
[[nodiscard]] bool FillsSpaceDown(const Layout& layout);
/// Share of the empty space at the end: next to nothing, but all of it when nothing else grows.
inline constexpr int kEmptySpaceShare = 1;

/// True for what is one line high, like a button, a text box, or a row of them, also in a frame
/// without a caption.
[[nodiscard]] bool IsOneLine(const Layout& layout);

}  // namespace quorvel::qt
