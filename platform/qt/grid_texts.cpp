#include "platform/qt/grid_texts.h"

#include "platform/qt/texts.h"
#include "quorvel/widgets/dialog.h"

namespace quorvel::qt {

QString WithNote(const QString& text, const QString& note, int digits) {
  constexpr QChar kFigureSpace(0x2007);  // as wide as a digit
  return text.leftJustified(digits, kFigureSpace) + QStringLiteral("  ") + note;
}

void GridTexts::TakeSize() {
  header_rows_ = grid_ == nullptr ? 1 : grid_->HeaderRows();
  rows_ = grid_ == nullptr ? 0 : grid_->Rows() - header_rows_;
  columns_ = grid_ == nullptr ? 0 : grid_->Columns();
}

bool GridTexts::Resize() {
  if (grid_->HeaderRows() == header_rows_ && grid_->Rows() - header_rows_ == rows_ &&
      grid_->Columns() == columns_) {
    return false;
  }
  beginResetModel();
  TakeSize();
  endResetModel();
  return true;
}

void GridTexts::Renew() {
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
  if (columns_ > 0) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
}

void GridTexts::LetGo() {
  beginResetModel();
  grid_ = nullptr;
  TakeSize();
  endResetModel();
}

int GridTexts::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridTexts::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridTexts::Text(int grid_row, int column) const {
  // The grid may have shrunk a moment before the table is told.
  if (grid_ == nullptr || grid_row >= grid_->Rows() || column >= grid_->Columns()) return {};
  const QString text = Shown(grid_->Cell(grid_row, column));
  if (column > 0 || grid_->RowNote(grid_row).empty()) return text;
  const auto digits = static_cast<int>(grid_->Cell(grid_->Rows() - 1, 0).size());
  return WithNote(text, Shown(grid_->RowNote(grid_row)), digits);
}

QString GridTexts::Note(int grid_row, int column) const {
  if (grid_ == nullptr || column < 1 || column >= grid_->Columns()) return {};
  return Shown(grid_->CellNote(grid_row, column));
}

/// A cell as it is drawn, and from what it was changed.
QString GridTexts::Spoken(int grid_row, int column) const {
  QString words = Text(grid_row, column).toString();
  if (const QString note = Note(grid_row, column); !note.isEmpty()) words += ' ' + note;
  const ChangeMark* const change = Change(grid_row, column);
  return change == nullptr ? words : words + QStringLiteral(". ") + Shown(change->note);
}

const ChangeMark* GridTexts::Change(int grid_row, int column) const {
  return grid_ == nullptr ? nullptr : grid_->CellChange(grid_row, column);
}

QVariant GridTexts::data(const QModelIndex& index, int role) const {
  const int row = index.row() + header_rows_;
  const int column = index.column();
  if (grid_ == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole: return Text(row, column);
    case Qt::AccessibleTextRole: return Spoken(row, column);
    case Qt::ToolTipRole: return Shown(grid_->Owner().HelpOf(*grid_, row, column));
    case kChangedRole: return Change(row, column) != nullptr;
    case kNoteRole: return Note(row, column);
    case Qt::TextAlignmentRole: {
      const bool centred =
          grid_->Alignment() == Grid::Align::kCentre && !grid_->HasValueNotes(column);
      return QVariant::fromValue(Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft));
    }
    default: return {};
  }
}

QVariant GridTexts::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool spoken = role == Qt::AccessibleTextRole;
  if ((role != Qt::DisplayRole && !spoken) || grid_ == nullptr) return {};
  // Drawn in the table itself, and told to screen readers here.
  if (orientation == Qt::Vertical) return Text(section + header_rows_, 0);
  if (section >= grid_->Columns()) return {};
  const bool as_drawn = header_rows_ == 1 && !spoken;
  return as_drawn ? Text(0, section) : QVariant(Shown(grid_->ColumnName(section)));
}

std::vector<Grid::HeaderCell> GridTexts::Header() const {
  return grid_ == nullptr ? std::vector<Grid::HeaderCell>() : grid_->Header();
}

int GridTexts::LeastWidth(int column) const {
  return grid_ == nullptr || column >= grid_->Columns() ? 0 : grid_->LeastWidth(column);
}

bool GridTexts::SelectsRows() const {
  return grid_ != nullptr && grid_->AllowedRange() == Grid::Range::kRows;
}

}  // namespace quorvel::qt
