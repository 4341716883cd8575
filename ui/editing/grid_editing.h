#pragma once

#include <map>

#include "quorvel/widgets.h"

namespace quorvel {

/// Edits a grid through choice lists, one for each editable column. A press on a cell makes the
/// column's list show the cell's text; the end of a selection, and a click on the list, write the
/// list's item into the selected rows of the column.
///
/// A cell whose text the list does not hold leaves the list without a current item, and a list
/// without one writes nothing: looking at a value never changes it.
class GridEditing {
 public:
  explicit GridEditing(Grid& grid);
  GridEditing(const GridEditing&) = delete;
  GridEditing& operator=(const GridEditing&) = delete;
  ~GridEditing() = default;

  /// Binds a column to its list.
  void Bind(int column, ListBox& list);
  /// Makes a cell current, as when its page comes to the front, and shows its text in the list.
  void GoTo(int row, int column);

 private:
  [[nodiscard]] ListBox* ListOfColumn() const;
  void ShowCellInList();
  void WriteSelectedRows(const ListBox& list);

  Grid& grid_;
  std::map<int, ListBox*> lists_;
};

}  // namespace quorvel
