#include "platform/qt/grid_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/qt/widest.h"

namespace quorvel::qt {

namespace {

/// Sets the first column, which names the rows, off from the others.
class GridDelegate : public FocusDelegate {
 public:
  using FocusDelegate::FocusDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    FocusDelegate::initStyleOption(option, index);
    if (index.column() > 0) return;
    QPalette& colours = option->palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      colours.setBrush(group, QPalette::Text, colours.brush(group, QPalette::ButtonText));
    }
    option->backgroundBrush = colours.button();
  }
};

}  // namespace

GridTable::GridTable(QWidget& parent, GridTexts& texts)
    : FocusShown(&parent), texts_(texts), header_(new GridHeader(*this, texts)) {
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
  setHorizontalHeader(header_);
  setItemDelegate(new GridDelegate(this));
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
  if ((event->buttons() & Qt::LeftButton) == 0) return GiveUpRange();  // it was let go elsewhere
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
  const bool copies = event->matches(QKeySequence::Copy);
  if (copies || event->matches(QKeySequence::Paste)) {
    if (extending_) EndSelection();  // of the range that is drawn
    return copies ? on_copy() : on_paste();
  }
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
  GiveUpRange();
}

void GridTable::GiveUpRange() {
  const bool drawn = extending_ || dragging_;
  extending_ = dragging_ = false;
  if (drawn) on_cancel();
}

void GridTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (row_ > 0 && row_ == row_sel_) scrollTo(CellAt(row_, column_));
}

int GridTable::NeededWidth(int column) const {
  constexpr int kPadding = 10;
  const int least = texts_.LeastWidth(column) * fontMetrics().averageCharWidth();
  return header_->WidthOf(column, kPadding + std::max(least, WidestCell(*this, column)));
}

void GridTable::FitColumns(bool anew) {
  std::vector<int> widths = anew ? std::vector<int>() : header_->Widths();
  widths.resize(static_cast<std::size_t>(model()->columnCount()));
  int column = 0;
  for (int& width : widths) {
    // Columns grow only: a grid whose columns move as texts change cannot be read.
    width = std::max(width, NeededWidth(column));
    if (anew || width > columnWidth(column)) setColumnWidth(column, width);
    ++column;
  }
  header_->SetWidths(std::move(widths));
  updateGeometries();
  updateGeometry();
}

QSize GridTable::sizeHint() const {
  constexpr int kMostCharacters = 140;
  constexpr int kMostRows = 16;
  const int frame = 2 * frameWidth();
  const auto& widths = header_->Widths();
  const int bar = verticalScrollBar()->sizeHint().width();
  const int width = std::accumulate(widths.begin(), widths.end(), frame + bar);
  const int most = kMostCharacters * fontMetrics().averageCharWidth();
  const int rows = std::min(model()->rowCount(), kMostRows);
  int height = frame + header_->sizeHint().height();
  height += rows * verticalHeader()->defaultSectionSize();
  if (width > most) height += horizontalScrollBar()->sizeHint().height();
  return {std::min(width, most), height};
}

QSize GridTable::minimumSizeHint() const {
  constexpr int kLeastCharacters = 24;
  constexpr int kLeastRows = 3;
  const int height = 2 * frameWidth() + header_->sizeHint().height() +
                     horizontalScrollBar()->sizeHint().height() +
                     kLeastRows * verticalHeader()->defaultSectionSize();
  return sizeHint().boundedTo({kLeastCharacters * fontMetrics().averageCharWidth(), height});
}

}  // namespace quorvel::qt
