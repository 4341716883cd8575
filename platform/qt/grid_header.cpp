#include "platform/qt/grid_header.h"

#include <QPainter>
#include <QStyleOptionHeader>
#include <algorithm>

#include "platform/qt/texts.h"

namespace quorvel::qt {

namespace {

bool Covers(const Grid::HeaderCell& cell, int column) {
  return column >= cell.column && column < cell.column + cell.columns;
}

}  // namespace

GridHeader::GridHeader(QWidget& parent, const GridTexts& texts)
    : QHeaderView(Qt::Horizontal, &parent), texts_(texts) {
  setSectionsClickable(false);
  setHighlightSections(false);
  setStretchLastSection(true);
}

int GridHeader::LineHeight() const { return QHeaderView::sectionSizeFromContents(0).height(); }

QRect GridHeader::PlaceOf(const Grid::HeaderCell& cell) const {
  int width = 0;
  for (int i = 0; i < cell.columns; ++i) width += sectionSize(cell.column + i);
  const int line = height() / texts_.FirstRow();
  // The last line takes what does not divide.
  const int bottom =
      cell.row + cell.rows == texts_.FirstRow() ? height() : (cell.row + cell.rows) * line;
  return {sectionViewportPosition(cell.column), cell.row * line, width, bottom - cell.row * line};
}

/// Each column draws its part of the cells that cover it, as if it drew all of them.
void GridHeader::paintSection(QPainter* painter, const QRect& rect, int column) const {
  for (const Grid::HeaderCell& cell : texts_.Header()) {
    if (!Covers(cell, column)) continue;
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = PlaceOf(cell);
    option.section = cell.column;
    option.text = Shown(cell.text);
    option.textAlignment = Qt::AlignCenter;
    option.position = QStyleOptionHeader::Middle;
    painter->save();
    painter->setClipRect(rect.intersected(option.rect));
    style()->drawControl(QStyle::CE_Header, &option, painter, this);
    painter->restore();
  }
}

QSize GridHeader::sectionSizeFromContents(int column) const {
  constexpr int kMargin = 10;
  int width = 0;
  for (const Grid::HeaderCell& cell : texts_.Header()) {
    if (!Covers(cell, column)) continue;
    const int needed = fontMetrics().horizontalAdvance(Shown(cell.text)) + kMargin;
    width = std::max(width, needed / cell.columns);
  }
  return {width, LineHeight() * texts_.FirstRow()};
}

}  // namespace quorvel::qt
