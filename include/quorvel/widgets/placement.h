#pragma once

#include <cstddef>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/layout.h"

namespace quorvel {

/// What a part of a layout gets of the space that is left over: of several parts those that claim
/// the most share it.
enum class Space {
  kOwn,     ///< none: it keeps its own size
  kLittle,  ///< next to nothing beside parts that claim more
  kSome,
  kMost,
};

/// Rows for which a grid or list claims space; one of more takes what is left over.
inline constexpr int kMostGridRows = 16;
inline constexpr int kMostListRows = 14;

/// How a part stands in its row or column. Every face places controls by this, and asks no kinds of
/// controls itself: so all draw the same window.
struct Placement {
  Space space = Space::kOwn;  ///< along the row or column
  bool one_line = false;      ///< one line high, as a button, a text box, or a row of them
  bool at_top = false;        ///< of its row; otherwise it is as high as the row, or in its middle
  bool ends = false;          ///< with its last row and column, and what is left over stays empty
};

/// The placements of the parts of a row, a column or lines, in their order.
[[nodiscard]] QUORVEL_API std::vector<Placement> PlacementsIn(const Layout& layout);

/// The parts of a column that are rows and begin alike, with a label, a check box or an option, in
/// groups: the first controls of a group are equally wide, so that the others go on below one
/// another.
[[nodiscard]] QUORVEL_API std::vector<std::vector<std::size_t>> RowsThatBeginAlike(
    const Layout& column);

}  // namespace quorvel
