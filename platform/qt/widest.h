#pragma once

#include <QAbstractItemView>
#include <QFontMetrics>

namespace quorvel::qt {

/// Width that the widest cell of a column needs. Measuring plain texts to find it is many times
/// quicker than asking the view's delegate for the size of each.
[[nodiscard]] inline int WidestCell(const QAbstractItemView& view, int column) {
  const QAbstractItemModel& texts = *view.model();
  const QFontMetrics metrics(view.font());
  QModelIndex widest;
  int most = 0;
  for (int row = 0; row < texts.rowCount(); ++row) {
    const QModelIndex cell = texts.index(row, column);
    const int width = metrics.horizontalAdvance(cell.data().toString());
    if (width <= most) continue;
    most = width;
    widest = cell;
  }
  return widest.isValid() ? view.sizeHintForIndex(widest).width() : 0;
}

}  // namespace quorvel::qt
