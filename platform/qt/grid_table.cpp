#include "platform/qt/grid_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/qt/cell_mark.h"
#include "platform/qt/widest.h"
#include "quorvel/widgets/placement.h"

namespace quorvel::qt {

namespace {

/// Sets the first column, which names the rows, off from the others.
class GridDelegate : public FocusDelegate {
 public:
  using FocusDelegate::FocusDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    FocusDelegate::paint(painter, option, index);
    if (!index.data(GridTexts::kChangedRole).toBool()) return;
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    const auto role = selected && option.widget != nullptr && option.widget->hasFocus()
                          ? QPalette::HighlightedText
                          : QPalette::Text;
    DrawChangeCorner(*painter, option.rect, option.palette.color(role));
  }

  /// Notes need no space, they only take it.
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    QStyleOptionViewItem no_room = option;
    no_room.rect = {};
    return FocusDelegate::sizeHint(no_room, index);
  }

  /// Width of a cell that shows a text and a note beside it.
  static int WidthWith(const QString& text, const QString& note, const QTableView& table) {
    return table.fontMetrics().horizontalAdvance(WithNote(text, note)) + Margins(table) + kSlack;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    FocusDelegate::initStyleOption(option, index);
    AddNote(*option, index.data(GridTexts::kNoteRole).toString());
    if (index.column() > 0) return;
    QPalette& colours = option->palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      colours.setBrush(group, QPalette::Text, colours.brush(group, QPalette::ButtonText));
    }
    option->backgroundBrush = colours.button();
  }

 private:
  /// For the grid's line, and parts of pixels.
  static constexpr int kSlack = 6;

  static int Margins(const QWidget& table) {
    return 2 * (table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table) + 2);
  }
  /// A note is cut where it does not fit, and left out where nothing of it could be read; the text
  /// never.
  static void AddNote(QStyleOptionViewItem& option, const QString& note) {
    constexpr int kLeastCharacters = 6;
    if (note.isEmpty() || option.widget == nullptr) return;
    const QFontMetrics& metrics = option.fontMetrics;
    const int room = option.rect.width() - Margins(*option.widget) -
                     metrics.horizontalAdvance(WithNote(option.text, {}));
    if (room < kLeastCharacters * metrics.averageCharWidth()) return;
    option.text = WithNote(option.text, metrics.elidedText(note, Qt::ElideRight, room));
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

bool GridTable::KeepsNames() const {
  return model()->columnCount() > 1 && columnWidth(0) <= viewport()->width() / 2;
}

int GridTable::NamesWidth() const {
  return header_->offset() > 0 && KeepsNames() ? columnWidth(0) : 0;
}

void GridTable::DrawNames() {
  viewport()->update();
  header_->KeepFirst(NamesWidth() > 0);
}

QRect GridTable::visualRect(const QModelIndex& cell) const {
  QRect place = QTableView::visualRect(cell);
  if (cell.column() == 0 && NamesWidth() > 0) place.moveLeft(0);
  return place;
}

QModelIndex GridTable::indexAt(const QPoint& place) const {
  const QModelIndex cell = QTableView::indexAt(place);
  return cell.isValid() && place.x() < NamesWidth() ? cell.siblingAtColumn(0) : cell;
}

void GridTable::scrollTo(const QModelIndex& cell, ScrollHint hint) {
  QScrollBar& across = *horizontalScrollBar();
  const int before = across.value();
  QTableView::scrollTo(cell, hint);
  if (cell.column() == 0) {
    if (KeepsNames()) across.setValue(before);
  } else if (const int hidden = NamesWidth() - visualRect(cell).left(); hidden > 0) {
    across.setValue(across.value() - hidden);
  }
}

void GridTable::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dx != 0) DrawNames();  // what stays was moved with the rest
}

void GridTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  const int width = NamesWidth();
  if (width == 0 || !event->rect().intersects({0, 0, width, viewport()->height()})) return;
  QPainter painter(viewport());
  const int first = rowAt(event->rect().top());
  for (int row = first; row >= 0 && row < model()->rowCount(); ++row) {
    if (rowViewportPosition(row) > event->rect().bottom()) break;
    PaintName(painter, row);
  }
}

void GridTable::PaintName(QPainter& painter, int table_row) const {
  const QModelIndex cell = model()->index(table_row, 0);
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = {0, rowViewportPosition(table_row), columnWidth(0) - 1, rowHeight(table_row) - 1};
  option.widget = this;
  option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(cell));
  option.state.setFlag(QStyle::State_HasFocus, hasFocus() && cell == currentIndex());
  itemDelegate()->paint(&painter, option, cell);
  const auto colour =
      static_cast<QRgb>(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this));
  painter.setPen(QColor::fromRgba(colour));
  painter.drawLine(option.rect.left(), option.rect.bottom() + 1, option.rect.right() + 1,
                   option.rect.bottom() + 1);
  // Where the other columns go under.
  painter.setPen(palette().color(QPalette::Text));
  painter.drawLine(option.rect.right() + 1, option.rect.top(), option.rect.right() + 1,
                   option.rect.bottom() + 1);
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

void GridTable::EndRange() {
  dragging_ = false;
  if (std::exchange(marking_, false)) {
    on_mark(row_sel_);
  } else {
    on_release(row_, row_sel_);
  }
}

void GridTable::MarkTo(int row) {
  ExtendTo(row);
  on_mark(row_sel_);
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
  marking_ = (event->modifiers() & Qt::ShiftModifier) != 0;
  if (marking_ && row_ > 0 && cell.column() == column_) {
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
  if (event->button() == Qt::LeftButton && dragging_) EndRange();
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
  if (event->matches(QKeySequence::SelectAll)) return MarkColumn();
  if (event->matches(QKeySequence::Delete)) return on_empty();
  const bool extend = (event->modifiers() & Qt::ShiftModifier) != 0 && row_ > 0;
  int row = extend ? row_sel_ : row_;
  int column = column_;
  if (!Move(*event, row, column)) {
    event->ignore();  // letters do not search, and Return belongs to the dialog
  } else if (extend && column == column_) {
    MarkTo(row);
  } else if (PressCell(row, column)) {
    on_release(row_, row_sel_);
  }
}

/// False where the press was refused, or its handler went elsewhere: there is nothing to go on
/// with.
bool GridTable::PressCell(int row, int column) {
  on_press(row, column);
  return row_ == row && column_ == column;
}

void GridTable::MarkColumn() {
  if (row_ < FirstRow() || !texts_.SelectsRows()) return;
  if (PressCell(FirstRow(), column_)) MarkTo(LastRow());
}

void GridTable::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  GiveUpRange();
}

void GridTable::GiveUpRange() {
  marking_ = false;
  if (std::exchange(dragging_, false)) on_cancel();
}

void GridTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  SpreadNotes();
  DrawNames();
  EndWithContent();
  if (row_ > 0 && row_ == row_sel_) scrollTo(CellAt(row_, column_));
}

int GridTable::NeededWidth(int column) const {
  constexpr int kPadding = 10;
  const int least = texts_.LeastWidth(column) * fontMetrics().averageCharWidth();
  const int cells = kPadding + std::max(least, WidestCell(*this, column));
  return std::max(header_->WidthOf(column, cells), header_->minimumSectionSize());
}

int GridTable::WidthWithNotes(int column) const {
  const QAbstractItemModel& cells = *model();
  int width = 0;
  for (int row = 0; row < cells.rowCount(); ++row) {
    const QModelIndex cell = cells.index(row, column);
    const QString note = cell.data(GridTexts::kNoteRole).toString();
    if (note.isEmpty()) continue;
    width = std::max(width, GridDelegate::WidthWith(cell.data().toString(), note, *this));
  }
  return width;
}

int GridTable::NotesWidth() const {
  return std::accumulate(note_widths_.begin(), note_widths_.end(), 0);
}

void GridTable::SpreadNotes() {
  const auto& widths = header_->Widths();
  const int all = NotesWidth();
  if (all == 0 || widths.size() != note_widths_.size()) return;
  const int columns = std::accumulate(widths.begin(), widths.end(), 0);
  const int room = std::clamp(viewport()->width() - columns, 0, all);
  for (std::size_t i = 0; i < widths.size(); ++i) {
    if (note_widths_[i] == 0) continue;
    setColumnWidth(static_cast<int>(i), widths[i] + note_widths_[i] * room / all);
  }
  updateGeometries();
}

void GridTable::FitColumns(bool anew) {
  std::vector<int> widths = anew ? std::vector<int>() : header_->Widths();
  widths.resize(static_cast<std::size_t>(model()->columnCount()));
  if (anew) note_widths_.clear();
  note_widths_.resize(widths.size());
  int column = 0;
  for (int& width : widths) {
    // Columns grow only: a grid whose columns move as texts change cannot be read.
    width = std::max(width, NeededWidth(column));
    if (anew || width > columnWidth(column)) setColumnWidth(column, width);
    int& notes = note_widths_.at(static_cast<std::size_t>(column));
    notes = std::max(notes, WidthWithNotes(column) - width);
    ++column;
  }
  header_->SetWidths(std::move(widths));
  updateGeometries();
  SpreadNotes();
  updateGeometry();
  EndWithContent();
}

QSize GridTable::SizeOfRows(int rows) const {
  const int frame = 2 * frameWidth();
  const auto& widths = header_->Widths();
  const int bar = verticalScrollBar()->sizeHint().width();
  return {std::accumulate(widths.begin(), widths.end(), frame + bar),
          frame + header_->sizeHint().height() + rows * verticalHeader()->defaultSectionSize()};
}

/// Space beyond the last column and row would look like something that is missing. Where all rows
/// are to be seen the columns have the space of the vertical bar.
void GridTable::EndWithContent() {
  const QSize whole = SizeOfRows(model()->rowCount());
  const bool scrolls = width() < whole.width() - verticalScrollBar()->sizeHint().width();
  const int bar = scrolls ? horizontalScrollBar()->sizeHint().height() : 0;
  setMaximumSize(whole + QSize(NotesWidth(), bar));
}

QSize GridTable::sizeHint() const {
  constexpr int kMostCharacters = 140;
  const int most = kMostCharacters * fontMetrics().averageCharWidth();
  QSize size = SizeOfRows(std::min(model()->rowCount(), kMostGridRows));
  if (size.width() > most) size.rheight() += horizontalScrollBar()->sizeHint().height();
  return {std::min(size.width() + NotesWidth(), most), size.height()};
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
