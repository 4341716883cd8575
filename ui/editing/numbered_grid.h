#pragma once

#include <string>
#include <vector>

#include "quorvel/widgets.h"

namespace quorvel {

/// Makes a grid of one line for every camera, alarm or input, numbered from 1, below one header
/// row. `headers` names the columns, that of the numbers first; no column is narrower than its
/// name.
void BuildNumberedGrid(Grid& grid, int lines, const std::vector<std::string>& headers);

/// Adds a named column at the right; returns its number.
int AddNamedColumn(Grid& grid, const std::string& header);

}  // namespace quorvel
