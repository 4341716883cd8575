#include "platform/qt/grid_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/qt/grid_header.h"

namespace quorvel::qt {

GridTable::GridTable(QWidget& parent, GridTexts& texts) : FocusShown(&parent), texts_(texts) {
  constexpr int kRowPadding = 6;
  setModel(&texts);
  setSelectionMode(NoSelection);  // by the toolkit; the grid's own selection is drawn
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
  setHorizontalHeader(new GridHeader(*this, texts));
  fit_.setSingleShot(true);
  QObject::connect(&fit_, &QTimer::timeout, this, [this] { FitColumns(false); });
}

void GridTable::ShowSelection(int row, int column, int row_sel) {
  row_ = row;
  column_ = column;
  row_sel_ = row_sel;
  DrawSelection();
  if (row_ == row_sel_ && row_ > 0) scrollTo(CellAt(row_, column_));
}

void GridTable::DrawSelection() {
  if (row_ < FirstRow() || row_ > LastRow()) {
    selectionModel()->clear();
    return;
  }
  const auto [first, last] = std::minmax(row_, std::clamp(row_sel_, FirstRow(), LastRow()));
  selectionModel()->setCurrentIndex(CellAt(row_, column_), QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(CellAt(first, column_), CellAt(last, column_)),
                           QItemSelectionModel::ClearAndSelect);
}

void GridTable::ExtendTo(int row) {
  if (!texts_.SelectsRows() || LastRow() < FirstRow()) return;
  row_sel_ = std::clamp(row, FirstRow(), LastRow());
  DrawSelection();
  scrollTo(CellAt(row_sel_, column_));
}

void GridTable::EndSelection() {
  dragging_ = false;
  extending_ = false;
  on_release(row_, row_sel_);
}

int GridTable::RowUnder(int y) const {
  if (y < 0) return rowAt(0) + FirstRow() - 1;  // one above the topmost
  if (y >= viewport()->height()) {
    const int lowest = rowAt(viewport()->height() - 1);
    return lowest < 0 ? LastRow() : lowest + FirstRow() + 1;
  }
  const int row = rowAt(y);
  return row < 0 ? LastRow() : row + FirstRow();
}

void GridTable::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !cell.isValid()) return;
  const int row = cell.row() + FirstRow();
  dragging_ = true;
  extending_ = false;
  const bool extend = (event->modifiers() & Qt::ShiftModifier) != 0;
  if (extend && row_ > 0 && cell.column() == column_) {
    ExtendTo(row);
  } else {
    on_press(row, cell.column());
  }
}

void GridTable::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_ && row_ > 0) ExtendTo(RowUnder(static_cast<int>(event->position().y())));
}

void GridTable::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && dragging_) EndSelection();
}

void GridTable::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

bool GridTable::Move(const QKeyEvent& event, int& row, int& column) const {
  const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
  const int page = std::max(viewport()->height() / verticalHeader()->defaultSectionSize() - 1, 1);
  const int last_column = model()->columnCount() - 1;
  switch (event.key()) {
    case Qt::Key_Up: --row; break;
    case Qt::Key_Down: ++row; break;
    case Qt::Key_PageUp: row -= page; break;
    case Qt::Key_PageDown: row += page; break;
    case Qt::Key_Left: --column; break;
    case Qt::Key_Right: ++column; break;
    case Qt::Key_Home: (control ? row : column) = control ? FirstRow() : 1; break;
    case Qt::Key_End: (control ? row : column) = control ? LastRow() : last_column; break;
    case Qt::Key_Space: break;
    default: return false;
  }
  if (LastRow() < FirstRow()) return false;
  row = std::clamp(row, FirstRow(), LastRow());
  column = std::clamp(column, std::min(1, last_column), last_column);
  return true;
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return on_copy();
  if (event->matches(QKeySequence::Paste)) return on_paste();
  const bool extend = (event->modifiers() & Qt::ShiftModifier) != 0 && row_ > 0;
  int row = extend ? row_sel_ : row_;
  int column = column_;
  if (!Move(*event, row, column)) {
    event->ignore();  // letters do not search, and Return belongs to the dialog
  } else if (extend && column == column_) {
    extending_ = true;
    ExtendTo(row);
  } else {
    extending_ = false;
    on_press(row, column);
    // Where the press was refused, or its handler went elsewhere, there is nothing to end.
    if (row_ == row && column_ == column) EndSelection();
  }
}

void GridTable::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Shift && extending_) {
    EndSelection();
  } else {
    event->ignore();
  }
}

void GridTable::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  if (std::exchange(extending_, false)) on_cancel();
}

void GridTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (row_ > 0 && row_ == row_sel_) scrollTo(CellAt(row_, column_));
}

void GridTable::FitColumns(bool anew) {
  constexpr int kPadding = 10;
  fit_.stop();
  for (int column = 0; column < model()->columnCount(); ++column) {
    const int least = texts_.LeastWidth(column) * fontMetrics().averageCharWidth();
    const int texts =
        std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
    const int wanted = kPadding + std::max(least, texts);
    // Columns grow only: a grid whose columns move as texts change cannot be read.
    if (anew || wanted > columnWidth(column)) setColumnWidth(column, wanted);
  }
  updateGeometry();
}

QSize GridTable::sizeHint() const {
  constexpr int kMostWidth = 900;
  constexpr int kMostRows = 16;
  const int frame = 2 * frameWidth();
  int width = frame + verticalScrollBar()->sizeHint().width();
  for (int column = 0; column < model()->columnCount(); ++column) {
    // The last column may be stretched at the moment.
    width += column + 1 < model()->columnCount()
                 ? columnWidth(column)
                 : std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
  }
  const int rows = std::min(model()->rowCount(), kMostRows);
  return {std::min(width, kMostWidth), frame + horizontalHeader()->sizeHint().height() +
                                           rows * verticalHeader()->defaultSectionSize()};
}

QSize GridTable::minimumSizeHint() const { return sizeHint().boundedTo({160, 100}); }

}  // namespace quorvel::qt
