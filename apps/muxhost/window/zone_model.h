#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QStyledItemDelegate>

#include "muxhost/window/zone_cells.h"

namespace quorvel::muxhost {

/// Zone cells as a table. Its texts are for screen readers alone: "row 3, column 5, active".
class ZoneModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;
  static constexpr int kActiveRole = Qt::UserRole;  ///< true for an active cell

  [[nodiscard]] const ZoneCells& Cells() const { return cells_; }
  void SetCells(const ZoneCells& cells);
  [[nodiscard]] bool Active(const QModelIndex& cell) const;
  /// Nothing for an index that is not valid.
  void SetCell(const QModelIndex& cell, bool active);

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
  [[nodiscard]] QVariant data(const QModelIndex& cell, int role) const override;

 private:
  ZoneCells cells_;
};

/// Draws cells in colours of its own, which tell active ones by their brightness on any desktop.
class ZonePainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  [[nodiscard]] static QColor FieldColour();
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& cell) const override;
};

}  // namespace quorvel::muxhost
