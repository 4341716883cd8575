#include "quorvel/widgets/grid.h"

#include <algorithm>
#include <stdexcept>

#include "ui/widgets/gestures.h"

namespace quorvel {

Grid::Grid(Dialog& dialog, std::string name) : Widget(dialog, WidgetKind::kGrid, std::move(name)) {}

std::size_t Grid::Place(int row, int column) const {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) {
    throw std::out_of_range(Name() + " has no cell " + std::to_string(row) + ", " +
                            std::to_string(column));
  }
  return static_cast<std::size_t>(column) * static_cast<std::size_t>(rows_) +
         static_cast<std::size_t>(row);
}

bool Grid::IsCell(int row, int column) const {
  return row >= header_rows_ && row < rows_ && column >= 0 && column < columns_;
}

int Grid::FirstSelected() const { return std::min(row_, row_sel_); }
int Grid::LastSelected() const { return std::max(row_, row_sel_); }

int Grid::LeastWidth(int column) const {
  return least_widths_.at(static_cast<std::size_t>(column));
}

std::string Grid::ValueText() const {
  std::string text = std::to_string(rows_) + " x " + std::to_string(columns_) + ", at " +
                     std::to_string(row_) + "," + std::to_string(column_);
  for (int row = 0; row < rows_; ++row) {
    text += "\n   ";
    for (int column = 0; column < columns_; ++column) text += " | " + Cell(row, column);
  }
  return text;
}

const ChangeMark* Grid::CellChange(int row, int column) const {
  const auto found = changes_.find({row, column});
  return found == changes_.end() ? nullptr : &found->second;
}

void Grid::SetCellChanges(CellChanges changes) {
  if (changes == changes_) return;
  changes_ = std::move(changes);
  Redraw(Aspect::kContent);
}

void Grid::SetHeaderRows(int rows) {
  RememberCells();
  header_rows_ = std::clamp(rows, 1, 2);
  Redraw(Aspect::kContent);
}

void Grid::SetMergedHeader(bool merged) {
  merged_header_ = merged;
  Redraw(Aspect::kContent);
}

void Grid::SetSize(int rows, int columns) {
  RememberCells();
  rows_ = std::max(rows, header_rows_);
  columns_ = std::max(columns, 1);
  cells_.assign(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_), {});
  least_widths_.assign(static_cast<std::size_t>(columns_), 0);
  Redraw(Aspect::kContent);
  SetCurrent(header_rows_, 1);
}

int Grid::AddColumns(int count) {
  const int first = columns_;
  RememberCells();
  columns_ += std::max(count, 0);
  cells_.resize(static_cast<std::size_t>(rows_) * static_cast<std::size_t>(columns_));
  least_widths_.resize(static_cast<std::size_t>(columns_));
  Redraw(Aspect::kContent);
  return first;
}

void Grid::SetLeastWidth(int column, int characters) {
  least_widths_.at(static_cast<std::size_t>(column)) = characters;
  Redraw(Aspect::kContent);
}

void Grid::SetAlign(Align align) {
  align_ = align;
  Redraw(Aspect::kContent);
}

void Grid::SetRange(Range range) {
  range_ = range;
  Redraw(Aspect::kState);
}

void Grid::SetCell(int row, int column, std::string text, int value) {
  const std::size_t place = Place(row, column);
  RememberCells();
  cells_[place] = {std::move(text), value};
  Redraw(Aspect::kContent);
}

void Grid::RememberCells() {
  Remember(Aspect::kContent, rows_, columns_, header_rows_, cells_, least_widths_);
}

void Grid::RememberSelection() { Remember(Aspect::kSelection, row_, column_, row_sel_); }

void Grid::SetCurrent(int row, int column) {
  RememberSelection();
  row_ = std::clamp(row, 0, rows_ - 1);
  column_ = std::clamp(column, 0, columns_ - 1);
  row_sel_ = row_;
  Redraw(Aspect::kSelection);
}

void Grid::SetColumn(int column) {
  RememberSelection();
  column_ = std::clamp(column, 0, columns_ - 1);
  Redraw(Aspect::kSelection);
}

Answer Grid::Press(int row, int column) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsCell(row, column)) return Answer::kNoSuchPlace;
  const Gesture gesture(*this);
  SetCurrent(row, column);
  Raise(on_press);
  return refusal;
}

Answer Grid::Release(int first, int last) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsCell(first, column_) || !IsCell(last, column_)) return Answer::kNoSuchPlace;
  const Gesture gesture(*this);
  RememberSelection();
  if (range_ == Range::kRows) row_ = first;
  row_sel_ = range_ == Range::kRows ? last : row_;
  Redraw(Aspect::kSelection);
  Raise(on_release);
  return refusal;
}

Answer Grid::Empty() {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!can_empty || !can_empty()) return Answer::kNotAChoice;
  const Gesture gesture(*this);
  Raise(on_empty);
  return refusal;
}

Answer Grid::Mark(int row) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsCell(row_, column_) || !IsCell(row, column_)) return Answer::kNoSuchPlace;
  const Gesture gesture(*this);
  RememberSelection();
  if (range_ == Range::kRows) row_sel_ = row;
  Redraw(Aspect::kSelection);
  Raise(on_mark);
  return refusal;
}

}  // namespace quorvel
