#pragma once

#include <QAbstractTableModel>

#include "quorvel/widgets/grid.h"

namespace quorvel::qt {

/// A grid's texts for the toolkit's table, read where they are. The grid's row 0 is the table's
/// header, so the table's row 0 is the grid's row 1.
class GridTexts : public QAbstractTableModel {
 public:
  explicit GridTexts(const Grid& grid) : grid_(&grid) { TakeSize(); }

  /// Tells the table that texts changed; true when the size changed with them.
  bool Renew();
  /// Ends the tie to the grid: the table is empty from now on.
  void LetGo();

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role) const override;

 private:
  void TakeSize();
  [[nodiscard]] QVariant Text(int grid_row, int column) const;

  const Grid* grid_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace quorvel::qt
