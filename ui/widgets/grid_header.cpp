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

namespace {

const std::string& Nothing() {
  static const std::string nothing;
  return nothing;
}

const std::string& NoteOf(const std::map<int, std::string>& notes, int row) {
  const auto it = notes.find(row);
  return it == notes.end() ? Nothing() : it->second;
}

const std::string& NoteOf(const Grid::ValueNotes& notes, int value) {
  const auto place = static_cast<std::size_t>(value);
  return value < 0 || place >= notes.size() ? Nothing() : notes[place];
}

}  // namespace

const std::string& Grid::RowNote(int row) const { return NoteOf(row_notes_, row); }

const std::string& Grid::CellNote(int row, int column) const {
  const auto notes = value_notes_.find(column);
  const bool has_value = notes != value_notes_.end() && row >= header_rows_ && row < rows_;
  return has_value ? NoteOf(*notes->second, Value(row, column))
                   : NoteOf(row_notes_, column == 0 ? row : kNone);
}

void Grid::SetRowNote(int row, std::string note) {
  std::string& there = row_notes_[row];
  if (there == note) return;
  there = std::move(note);
  Redraw(Aspect::kContent);
}

void Grid::SetValueNotes(int column, std::shared_ptr<const ValueNotes> notes) {
  static const auto nothing = std::make_shared<const ValueNotes>();
  auto& there = value_notes_[column];
  if (notes == nullptr) notes = nothing;
  if (there != nullptr && *there == *notes) return;
  there = std::move(notes);
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
