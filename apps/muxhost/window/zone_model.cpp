#include "muxhost/window/zone_model.h"

#include <QPainter>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

void ZoneModel::SetCells(const ZoneCells& cells) {
  cells_ = cells;
  emit dataChanged(index(0, 0), index(ZoneCells::kSide - 1, ZoneCells::kSide - 1));
}

bool ZoneModel::Active(const QModelIndex& cell) const {
  return cell.isValid() && cells_.Active(cell.row(), cell.column());
}

void ZoneModel::SetCell(const QModelIndex& cell, bool active) {
  if (!cell.isValid() || Active(cell) == active) return;
  cells_.Set(cell.row(), cell.column(), active);
  emit dataChanged(cell, cell);
}

int ZoneModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ZoneCells::kSide;
}

int ZoneModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ZoneCells::kSide;
}

QVariant ZoneModel::data(const QModelIndex& cell, int role) const {
  if (role == kActiveRole) return Active(cell);
  if (role != Qt::AccessibleTextRole || !cell.isValid()) return {};
  const QString text =
      Active(cell) ? Tr("row %1, column %2, active") : Tr("row %1, column %2, inactive");
  return text.arg(cell.row() + 1).arg(cell.column() + 1);
}

QColor ZonePainter::FieldColour() { return {24, 30, 36}; }

void ZonePainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& cell) const {
  const QColor active_colour(255, 196, 64);
  const QColor border_colour(78, 90, 102);
  const bool enabled = (option.state & QStyle::State_Enabled) != 0;
  const bool active = cell.data(ZoneModel::kActiveRole).toBool();
  const QRect area = option.rect;
  const QColor shown = enabled ? active_colour : active_colour.darker();
  painter->fillRect(area, border_colour);
  painter->fillRect(area.adjusted(0, 0, -1, -1), active ? shown : FieldColour());
  if (!enabled || (option.state & QStyle::State_HasFocus) == 0) return;
  // Two frames, as one colour would be lost on one of the two kinds of cells.
  painter->setPen(QPen(Qt::white, 2));
  painter->drawRect(area.adjusted(1, 1, -2, -2));
  painter->setPen(Qt::black);
  painter->drawRect(area.adjusted(2, 2, -4, -4));
}

}  // namespace quorvel::muxhost
