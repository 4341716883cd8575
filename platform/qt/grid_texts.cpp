#include "platform/qt/grid_texts.h"

#include <QApplication>
#include <QPalette>

#include "platform/qt/texts.h"

namespace quorvel::qt {

void GridTexts::TakeSize() {
  rows_ = grid_ == nullptr ? 0 : grid_->Rows() - 1;
  columns_ = grid_ == nullptr ? 0 : grid_->Columns();
}

bool GridTexts::Renew() {
  if (grid_->Rows() - 1 != rows_ || grid_->Columns() != columns_) {
    beginResetModel();
    TakeSize();
    endResetModel();
    return true;
  }
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
  emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
  return false;
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
  return Shown(grid_->Cell(grid_row, column));
}

QVariant GridTexts::data(const QModelIndex& index, int role) const {
  if (role == Qt::DisplayRole) return Text(index.row() + 1, index.column());
  if (role == Qt::BackgroundRole && index.column() == 0) {
    return QApplication::palette().brush(QPalette::Button);
  }
  return {};
}

QVariant GridTexts::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical) {
    return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
  }
  return role == Qt::DisplayRole ? Text(0, section) : QVariant();
}

}  // namespace quorvel::qt
