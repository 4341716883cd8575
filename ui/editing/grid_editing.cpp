#include "ui/editing/grid_editing.h"

namespace quorvel {

GridEditing::GridEditing(Grid& grid) : grid_(grid) {
  grid_.on_press = [this] { ShowCellInList(); };
  grid_.on_release = [this] {
    if (const ListBox* list = ListOfColumn()) WriteSelectedRows(*list);
  };
}

void GridEditing::Bind(int column, ListBox& list) {
  lists_[column] = &list;
  list.on_click = [this, &list] {
    if (ListOfColumn() == &list) WriteSelectedRows(list);
  };
}

void GridEditing::GoTo(int row, int column) {
  grid_.SetCurrent(row, column);
  ShowCellInList();
}

ListBox* GridEditing::ListOfColumn() const {
  const auto found = lists_.find(grid_.Column());
  return found == lists_.end() ? nullptr : found->second;
}

void GridEditing::ShowCellInList() {
  ListBox* const list = ListOfColumn();
  if (list != nullptr) list->Select(list->IndexOf(grid_.Cell(grid_.Row(), grid_.Column())));
}

void GridEditing::WriteSelectedRows(const ListBox& list) {
  if (list.Current() == ListBox::kNone) return;
  for (int row = grid_.FirstSelected(); row <= grid_.LastSelected(); ++row) {
    if (row >= 1) grid_.SetCell(row, grid_.Column(), list.CurrentText());
  }
}

}  // namespace quorvel
