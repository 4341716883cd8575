#pragma once

#include <QTableView>
#include <functional>

#include "platform/qt/focus_shown.h"
#include "platform/qt/grid_header.h"
#include "platform/qt/grid_texts.h"

namespace quorvel::qt {

/// The toolkit's table with a grid's way of selecting: one cell is current, and a range of rows in
/// its column is selected. Rows are numbered as in the grid, header included. The table reports
/// what the user does; what is selected afterwards is for its view to tell. The first column, which
/// names the rows, stays in sight while the others are scrolled sideways.
class GridTable : public FocusShown<QTableView> {
 public:
  GridTable(QWidget& parent, GridTexts& texts);

  /// Press on a cell.
  std::function<void(int row, int column)> on_press;
  /// End of a drag that began at row `first` and ended at `last`.
  std::function<void(int first, int last)> on_release;
  /// The selection is to reach from the current cell to another row.
  std::function<void(int row)> on_mark;
  /// A selection was abandoned: the table must be told anew what is selected.
  std::function<void()> on_cancel;

  /// The selected cells are to be copied, or replaced by what was copied.
  std::function<void()> on_copy;
  std::function<void()> on_paste;
  /// The Delete key: the selected rows are to be emptied.
  std::function<void()> on_empty;

  /// Draws this selection; row 0 for none.
  void ShowSelection(int row, int column, int row_sel);
  /// Widens columns to their header and texts; `anew`, narrows them as well.
  void FitColumns(bool anew);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// Where a cell is, and which is there, with the first column where it stays.
  [[nodiscard]] QRect visualRect(const QModelIndex& cell) const override;
  [[nodiscard]] QModelIndex indexAt(const QPoint& place) const override;
  void scrollTo(const QModelIndex& cell, ScrollHint hint = EnsureVisible) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] int FirstRow() const { return texts_.FirstRow(); }
  [[nodiscard]] int LastRow() const { return FirstRow() + model()->rowCount() - 1; }
  [[nodiscard]] QModelIndex CellAt(int row, int column) const {
    return model()->index(row - FirstRow(), column);
  }
  [[nodiscard]] int RowUnder(int y) const;
  [[nodiscard]] bool Move(const QKeyEvent& event, int& row, int& column) const;
  void ExtendTo(int row);
  void DrawSelection();
  /// Ends a range that is drawn: a drag, or one that Shift began.
  void EndRange();
  /// Selects up to a row of the current column, and nothing else.
  void MarkTo(int row);
  /// Selects all rows of the current column.
  void MarkColumn();
  /// Tells of a press; true when the cell is current afterwards.
  bool PressCell(int row, int column);
  /// Ends a range that is drawn and was not told to the model, as if it had not been begun.
  void GiveUpRange();
  /// False where the first column would leave the others no space.
  [[nodiscard]] bool KeepsNames() const;
  /// Width of the first column while the others go under it, else 0.
  [[nodiscard]] int NamesWidth() const;
  void DrawNames();
  void PaintName(QPainter& painter, int table_row) const;
  /// Space for all columns and so many rows.
  [[nodiscard]] QSize SizeOfRows(int rows) const;
  void EndWithContent();
  /// Width that a column needs for its header and its texts.
  [[nodiscard]] int NeededWidth(int column) const;
  /// Width at which a column shows all its notes beside its texts; 0 for one without notes.
  [[nodiscard]] int WidthWithNotes(int column) const;
  /// Width that all columns would have on top for their notes.
  [[nodiscard]] int NotesWidth() const;
  /// Gives the columns what there is of it: before anything has to be scrolled, notes are cut.
  void SpreadNotes();

  const GridTexts& texts_;
  GridHeader* const header_;
  std::vector<int> note_widths_;  ///< of the columns, on top of those of the header
  int row_ = 0;
  int column_ = 0;
  int row_sel_ = 0;
  bool dragging_ = false;
  bool marking_ = false;  ///< with Shift: the drag selects and writes nothing
};

}  // namespace quorvel::qt
