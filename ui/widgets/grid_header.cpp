#include <utility>

#include "quorvel/widgets/grid.h"

namespace quorvel {

bool Grid::MergedDown(int column) const {
  return merged_header_ && header_rows_ > 1 && Cell(0, column) == Cell(1, column);
}

std::vector<Grid::HeaderCell> Grid::Header() const {
  std::vector<HeaderCell> header;
  for (int column = 0; column < columns_;) {
    HeaderCell cell{0, column, 1, 1, Cell(0, column)};
    if (MergedDown(column)) {
      cell.rows = header_rows_;
    } else if (merged_header_) {
      for (int next = column + 1; next < columns_ && !MergedDown(next); ++next) {
        if (Cell(0, next) != cell.text) break;
        ++cell.columns;
      }
    }
    column += cell.columns;
    header.push_back(std::move(cell));
  }
  for (int column = 0; column < columns_ && header_rows_ > 1; ++column) {
    if (!MergedDown(column)) header.push_back({1, column, 1, 1, Cell(1, column)});
  }
  return header;
}

const std::string& Grid::RowNote(int row) const {
  static const std::string kNothing;
  const auto it = row_notes_.find(row);
  return it == row_notes_.end() ? kNothing : it->second;
}

void Grid::SetRowNote(int row, std::string note) {
  std::string& there = row_notes_[row];
  if (there == note) return;
  there = std::move(note);
  Redraw(Aspect::kContent);
}

void Grid::SetColumnName(int column, std::string name) {
  column_names_[column] = std::move(name);
  Redraw(Aspect::kContent);
}

std::string Grid::ColumnName(int column) const {
  const auto given = column_names_.find(column);
  if (given != column_names_.end()) return given->second;
  std::string name;
  for (int row = 0; row < header_rows_; ++row) {
    const std::string& text = Cell(row, column);
    if (text == name || text.find_first_not_of(' ') == std::string::npos) continue;
    name += (name.empty() ? "" : ", ") + text;
  }
  return name;
}

}  // namespace quorvel
