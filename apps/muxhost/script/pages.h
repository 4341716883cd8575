#pragma once

#include <set>
#include <string>

#include "quorvel/widgets.h"

namespace quorvel::muxhost {

/// A window as it is arranged: its pages, frames and controls with their states, values and items.
/// The controls of an array share a line as far as their states are the same; of what is hidden
/// only the name is told, and of other pages than `pages` (empty: all) only the caption.
[[nodiscard]] std::string DescribePages(const Dialog& dialog, const std::set<int>& pages = {});

}  // namespace quorvel::muxhost
