#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// A table of texts: one or two header rows, then rows of data; column 0 names the row. One cell is
/// current, and a range of rows around it may be selected. Rows are counted with the header.
class QUORVEL_API Grid : public Widget {
 public:
  enum class Align { kLeft, kCentre };
  enum class Range { kRows, kOneRow };
  /// A header cell as it is drawn, and what it covers.
  struct HeaderCell {
    int row, column, rows, columns;
    std::string text;
    bool operator==(const HeaderCell&) const = default;
  };
  /// The value of a cell that stands for none.
  static constexpr int kNone = -1;

  Grid(Dialog& dialog, std::string name);
  [[nodiscard]] int Rows() const { return rows_; }
  [[nodiscard]] int Columns() const { return columns_; }
  /// 1 or 2; also the number of the first row of data.
  [[nodiscard]] int HeaderRows() const { return header_rows_; }
  /// Text of a cell; throws std::out_of_range outside the table.
  [[nodiscard]] const std::string& Cell(int row, int column) const { return At(row, column).text; }
  /// The device's value that the cell stands for, or kNone: its text need not tell.
  [[nodiscard]] int Value(int row, int column) const { return At(row, column).value; }
  /// The current cell, and the other end of the selected range of rows.
  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] int Column() const { return column_; }
  [[nodiscard]] int RowSel() const { return row_sel_; }
  /// The selected rows, first and last, in rising order.
  [[nodiscard]] int FirstSelected() const;
  [[nodiscard]] int LastSelected() const;
  /// Whether a selection can be more than one row.
  [[nodiscard]] Range AllowedRange() const { return range_; }
  /// How the texts of all cells stand.
  [[nodiscard]] Align Alignment() const { return align_; }
  /// Characters that the column is wide at least; 0 for what its texts need.
  [[nodiscard]] int LeastWidth(int column) const;
  /// The header cells, row by row, equal texts made one where the header is merged.
  [[nodiscard]] std::vector<HeaderCell> Header() const;
  /// What a screen reader says of a column: the name that it was given, else its header texts, ", "
  /// between different ones.
  [[nodiscard]] std::string ColumnName(int column) const;
  /// What is told of a row beside its name, such as a camera's title; it is no part of the cells.
  [[nodiscard]] const std::string& RowNote(int row) const;
  [[nodiscard]] bool HasRowNotes() const { return !row_notes_.empty(); }
  /// What is told beside the text of one cell: in column 0 of its row, else of its value, such as
  /// the title of the camera whose number the cell holds. Nothing outside the table.
  [[nodiscard]] const std::string& CellNote(int row, int column) const;
  /// Whether values of a column were given notes.
  [[nodiscard]] bool HasValueNotes(int column) const { return value_notes_.contains(column); }
  [[nodiscard]] std::string ValueText() const override;
  /// What the user has changed of a cell, or a null pointer while it is as it was when the window
  /// opened. Views mark it, not by colour alone.
  [[nodiscard]] const ChangeMark* CellChange(int row, int column) const;

  /// Sets the number of header rows, 1 or 2; before the size.
  void SetHeaderRows(int rows);
  /// Merges header cells of equal text: the two of a column, and neighbours in the first row.
  void SetMergedHeader(bool merged);
  /// Sets the size, header rows included; all cells become empty and the first of the data current.
  void SetSize(int rows, int columns);
  /// Adds empty columns at the right; returns the number of the first of them.
  int AddColumns(int count);
  /// Names a column of which the header says nothing.
  void SetColumnName(int column, std::string name);
  void SetRowNote(int row, std::string note);
  /// Notes by the value that a cell stands for, from 0; columns may share them.
  using ValueNotes = std::vector<std::string>;
  void SetValueNotes(int column, std::shared_ptr<const ValueNotes> notes);
  /// Makes a column no narrower than so many characters.
  void SetLeastWidth(int column, int characters);
  void SetAlign(Align align);
  void SetRange(Range range);
  void SetCell(int row, int column, std::string text, int value = kNone);
  /// The changed cells, by row and column.
  using CellChanges = std::map<std::pair<int, int>, ChangeMark>;
  void SetCellChanges(CellChanges changes);
  [[nodiscard]] bool HasChanges() const { return !changes_.empty(); }
  /// Makes one cell current, without a selection beyond it.
  void SetCurrent(int row, int column);
  /// Makes another column current; the selected rows stay.
  void SetColumn(int column);

  /// Press on a cell below the header: it becomes current.
  Answer Press(int row, int column);
  /// End of a drag over rows `first` to `last`, in either order, in the current column; with
  /// Range::kOneRow the current row stays the only one.
  Answer Release(int first, int last);
  /// Selects from the current cell to `row` of its column, as Shift and a click do; nothing is
  /// written. With Range::kOneRow the current row stays the only one.
  Answer Mark(int row);
  Handler on_press;
  Handler on_release;
  Handler on_mark;

  /// Empties the selected rows, as the Delete key does: in the current column, or whole rows of
  /// what they hold. kNotAChoice where the grid's cells are never empty.
  Answer Empty();
  /// Whether the current column can be emptied. Without it no cell can.
  std::function<bool()> can_empty;
  Handler on_empty;

  /// The selected rows of columns `first` to `last`: a line a row, texts separated by tabs.
  [[nodiscard]] std::string Copied(int first_column, int last_column) const;
  /// Puts in such lines from the first selected row of the current column on; a single text goes
  /// into all selected rows. When one text does not fit into the table (kNoSuchPlace) or is not
  /// taken by its cell (kNotAChoice), nothing is changed.
  Answer Paste(std::string_view lines);
  /// Whether a cell takes a text; changes nothing. Without it nothing is taken.
  std::function<bool(int row, int column, const std::string& text)> takes_paste;
  /// Puts a text that is taken into its cell.
  std::function<void(int row, int column, const std::string& text)> on_paste;

 private:
  struct CellValue {
    std::string text;
    int value = kNone;
  };
  struct Pasted {
    int row, column;
    std::string text;
  };
  [[nodiscard]] bool IsCell(int row, int column) const;
  [[nodiscard]] std::size_t Place(int row, int column) const;
  [[nodiscard]] const CellValue& At(int row, int column) const {
    return cells_[Place(row, column)];
  }
  void RememberCells();
  void RememberSelection();
  [[nodiscard]] bool MergedDown(int column) const;
  [[nodiscard]] std::vector<Pasted> Placed(std::string_view text) const;

  int rows_ = 1;
  int columns_ = 1;
  int header_rows_ = 1;
  int row_ = 0;
  int column_ = 0;
  int row_sel_ = 0;
  bool merged_header_ = false;
  Align align_ = Align::kLeft;
  Range range_ = Range::kRows;
  std::vector<CellValue> cells_{1};  ///< column by column, so that one is easily added
  std::vector<int> least_widths_{0};
  std::map<int, std::string> row_notes_;
  std::map<int, std::shared_ptr<const ValueNotes>> value_notes_;  ///< by column
  std::map<int, std::string> column_names_;  ///< of columns that were given one
  CellChanges changes_;
};

}  // namespace quorvel
