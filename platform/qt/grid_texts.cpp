#include "platform/qt/grid_texts.h"

#include "platform/qt/texts.h"
#include "quorvel/widgets/dialog.h"

namespace quorvel::qt {

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
  // A blank as wide as a digit: notes stand below one another.
  constexpr QChar kFigureSpace(0x2007);
  const auto digits = static_cast<int>(grid_->Cell(grid_->Rows() - 1, 0).size());
  return text.leftJustified(digits, kFigureSpace) + "  " + Shown(grid_->RowNote(grid_row));
}

const ChangeMark* GridTexts::Change(int grid_row, int column) const {
  return grid_ == nullptr ? nullptr : grid_->CellChange(grid_row, column);
}

QVariant GridTexts::data(const QModelIndex& index, int role) const {
  if (role == kChangedRole || role == Qt::AccessibleTextRole) {
    const ChangeMark* const change = Change(index.row() + header_rows_, index.column());
    if (role == kChangedRole) return change != nullptr;
    if (change == nullptr) return {};
    const QString text = Text(index.row() + header_rows_, index.column()).toString();
    return QString(text + QStringLiteral(". ") + Shown(change->note));
  }
  if (role == Qt::DisplayRole) return Text(index.row() + header_rows_, index.column());
  if (role == Qt::ToolTipRole && grid_ != nullptr) {
    return Shown(grid_->Owner().HelpOf(*grid_, index.row() + header_rows_, index.column()));
  }
  if (role == Qt::TextAlignmentRole && grid_ != nullptr) {
    const bool centred = grid_->Alignment() == Grid::Align::kCentre;
    return QVariant::fromValue(Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft));
  }
  return {};
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
