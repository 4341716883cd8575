#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "quorvel/widgets/grid.h"

namespace quorvel::qt {

/// A text and what is told beside it. Notes stand below one another beside numbers of up to so many
/// digits.
[[nodiscard]] QString WithNote(const QString& text, const QString& note, int digits = 2);

/// A grid's texts for the toolkit's table, read where they are. The grid's header rows are the
/// table's header, so the table's row 0 is the grid's first row of data.
class GridTexts : public QAbstractTableModel {
 public:
  explicit GridTexts(const Grid& grid) : grid_(&grid) { TakeSize(); }

  /// True for a cell that the user has changed.
  static constexpr int kChangedRole = Qt::UserRole;
  /// What is told beside a cell's text, where there is room.
  static constexpr int kNoteRole = Qt::UserRole + 1;

  /// Tells the table a new size, which it must know at once; true when there is one.
  bool Resize();
  /// Tells the table that texts changed.
  void Renew();
  /// Ends the tie to the grid: the table is empty from now on.
  void LetGo();
  /// Number of the grid's first row of data.
  [[nodiscard]] int FirstRow() const { return header_rows_; }
  /// The header as it is drawn; empty without a grid.
  [[nodiscard]] std::vector<Grid::HeaderCell> Header() const;
  /// Characters that a column is wide at least.
  [[nodiscard]] int LeastWidth(int column) const;
  /// Whether more than one row can be selected.
  [[nodiscard]] bool SelectsRows() const;

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;

 private:
  void TakeSize();
  [[nodiscard]] QVariant Text(int grid_row, int column) const;
  /// Beside cells that are no row's name: those have theirs in the text.
  [[nodiscard]] QString Note(int grid_row, int column) const;
  [[nodiscard]] QString Spoken(int grid_row, int column) const;
  [[nodiscard]] const ChangeMark* Change(int grid_row, int column) const;

  const Grid* grid_;
  int header_rows_ = 1;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace quorvel::qt
