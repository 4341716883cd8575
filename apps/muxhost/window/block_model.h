#pragma once

#include <QAbstractListModel>
#include <QStyledItemDelegate>
#include <vector>

#include "muxhost/block_states.h"

namespace quorvel::muxhost {

/// The blocks of a configuration, one a row, block 1 first. Screen readers are told "Block 12,
/// changed".
class BlockModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;
  static constexpr int kStateRole = Qt::UserRole;  ///< a BlockState, as a number

  /// Shows that many blocks in these states. Cells that stay as they are raise no signal.
  void Show(int blocks, const BlockStates& states);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& cell, int role) const override;

 private:
  std::vector<BlockState> states_;
};

/// Draws a block: its number, and its state as a colour and a sign. Colours follow the palette.
class BlockPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  /// A state's colour and sign alone, as in a legend.
  static void PaintState(QPainter& painter, const QRect& area, const QPalette& palette,
                         BlockState state);
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& cell) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& cell) const override;
};

}  // namespace quorvel::muxhost
