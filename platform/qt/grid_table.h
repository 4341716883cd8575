#pragma once

#include <QTableView>
#include <functional>

#include "platform/qt/focus_shown.h"
#include "platform/qt/grid_header.h"
#include "platform/qt/grid_texts.h"

namespace quorvel::qt {

/// The toolkit's table with a grid's way of selecting: one cell is current, and a range of rows in
/// its column is selected. Rows are numbered as in the grid, header included. The table reports
/// what a person does; what is selected afterwards is for its view to tell.
class GridTable : public FocusShown<QTableView> {
 public:
  GridTable(QWidget& parent, GridTexts& texts);

  /// Press on a cell.
  std::function<void(int row, int column)> on_press;
  /// End of a selection that began at row `first` and ended at `last`.
  std::function<void(int first, int last)> on_release;
  /// A selection was abandoned: the table must be told anew what is selected.
  std::function<void()> on_cancel;

  /// The selected cells are to be copied, or replaced by what was copied.
  std::function<void()> on_copy;
  std::function<void()> on_paste;

  /// Draws this selection; row 0 for none.
  void ShowSelection(int row, int column, int row_sel);
  /// Widens columns to their header and texts; `anew`, narrows them as well.
  void FitColumns(bool anew);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
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
  void EndSelection();
  /// Ends a range that is drawn and was not told to the model, as if it had not been begun.
  void GiveUpRange();
  /// Width that a column needs for its header and its texts.
  [[nodiscard]] int NeededWidth(int column) const;

  const GridTexts& texts_;
  GridHeader* const header_;
  int row_ = 0;
  int column_ = 0;
  int row_sel_ = 0;
  bool dragging_ = false;
  bool extending_ = false;
};

}  // namespace quorvel::qt
