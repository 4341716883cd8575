#include "ui/editing/numbered_grid.h"

#include "ui/widgets/utf8.h"

namespace quorvel {

namespace {

void NameColumn(Grid& grid, int column, const std::string& header) {
  grid.SetCell(0, column, header);
  grid.SetLeastWidth(column, CountCharacters(header));
}

}  // namespace

void BuildNumberedGrid(Grid& grid, int lines, const std::vector<std::string>& headers) {
  grid.SetSize(lines + 1, static_cast<int>(headers.size()));
  for (int column = 0; column < grid.Columns(); ++column) {
    NameColumn(grid, column, headers[static_cast<std::size_t>(column)]);
  }
  for (int row = 1; row <= lines; ++row) grid.SetCell(row, 0, std::to_string(row));
}

int AddNamedColumn(Grid& grid, const std::string& header) {
  const int column = grid.AddColumns(1);
  NameColumn(grid, column, header);
  return column;
}

}  // namespace quorvel
