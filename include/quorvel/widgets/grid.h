#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvel/widgets/widget.h"

namespace quorvel {

/// A table of texts. Row 0 is the header; column 0 names the row. One cell is current, and a range
/// of rows around it may be selected.
class Grid : public Widget {
 public:
  Grid(Dialog& dialog, std::string name);
  [[nodiscard]] int Rows() const { return rows_; }
  [[nodiscard]] int Columns() const { return columns_; }
  /// Text of a cell; throws std::out_of_range outside the table.
  [[nodiscard]] const std::string& Cell(int row, int column) const;
  /// The current cell, and the other end of the selected range of rows.
  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] int Column() const { return column_; }
  [[nodiscard]] int RowSel() const { return row_sel_; }
  /// The selected rows, first and last, in rising order.
  [[nodiscard]] int FirstSelected() const;
  [[nodiscard]] int LastSelected() const;
  [[nodiscard]] std::string ValueText() const override;

  /// Sets the size, header row included; all cells become empty and cell 1, 1 current.
  void SetSize(int rows, int columns);
  void SetCell(int row, int column, std::string text);
  /// Makes one cell current, without a selection beyond it.
  void SetCurrent(int row, int column);

  /// Press on a cell below the header: it becomes current.
  Answer Press(int row, int column);
  /// End of a selection over rows `first` to `last`, in either order, in the current column.
  Answer Release(int first, int last);
  Handler on_press;
  Handler on_release;

 private:
  [[nodiscard]] bool IsCell(int row, int column) const;
  [[nodiscard]] std::size_t Place(int row, int column) const;

  int rows_ = 1;
  int columns_ = 1;
  int row_ = 0;
  int column_ = 0;
  int row_sel_ = 0;
  std::vector<std::string> cells_{1};
};

}  // namespace quorvel
