#include "quorvel/widgets/grid.h"

#include <algorithm>
#include <stdexcept>

namespace quorvel {

Grid::Grid(Dialog& dialog, std::string name) : Widget(dialog, WidgetKind::kGrid, std::move(name)) {}

std::size_t Grid::Place(int row, int column) const {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
    throw std::out_of_range(Name() + " has no cell " + std::to_string(row) + ", " +
                            std::to_string(column));
  }
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
         static_cast<std::size_t>(column);
}

bool Grid::IsCell(int row, int column) const {
  return row >= 1 && row < rows_ && column >= 0 && column < columns_;
}

const std::string& Grid::Cell(int row, int column) const { return cells_[Place(row, column)]; }

int Grid::FirstSelected() const { return std::min(row_, row_sel_); }
int Grid::LastSelected() const { return std::max(row_, row_sel_); }

std::string Grid::ValueText() const {
  std::string text = std::to_string(rows_) + " x " + std::to_string(columns_) + ", at " +
                     std::to_string(row_) + "," + std::to_string(column_);
  for (int row = 0; row < rows_; ++row) {
    text += "\n   ";
    for (int column = 0; column < columns_; ++column) text += " | " + Cell(row, column);
  }
  return text;
}

void Grid::SetSize(int rows, int columns) {
  rows_ = std::max(rows, 1);
  columns_ = std::max(columns, 1);
  cells_.assign(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_), {});
  Redraw(Aspect::kContent);
  SetCurrent(1, 1);
}

void Grid::SetCell(int row, int column, std::string text) {
  cells_[Place(row, column)] = std::move(text);
  Redraw(Aspect::kContent);
}

void Grid::SetCurrent(int row, int column) {
  row_ = std::clamp(row, 0, rows_ - 1);
  column_ = std::clamp(column, 0, columns_ - 1);
  row_sel_ = row_;
  Redraw(Aspect::kSelection);
}

Answer Grid::Press(int row, int column) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsCell(row, column)) return Answer::kNoSuchPlace;
  SetCurrent(row, column);
  Raise(on_press);
  return refusal;
}

Answer Grid::Release(int first, int last) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsCell(first, column_) || !IsCell(last, column_)) return Answer::kNoSuchPlace;
  row_ = first;
  row_sel_ = last;
  Redraw(Aspect::kSelection);
  Raise(on_release);
  return refusal;
}

}  // namespace quorvel
