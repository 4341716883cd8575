#include "platform/qt/grid_header.h"

#include <QPainter>
#include <QStyleOptionHeader>
#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

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

QString GridHeader::Wrapped(const std::string& text, int width) const {
  const QString whole = Shown(text);
  QString best = whole;
  if (TextWidth(whole) <= width) return best;
  for (auto at = whole.indexOf(' '); at >= 0; at = whole.indexOf(' ', at + 1)) {
    const QString broken = whole.left(at) + QLatin1Char('\n') + whole.mid(at + 1);
    if (TextWidth(broken) < TextWidth(best)) best = broken;
  }
  return best;
}

int GridHeader::TextWidth(const QString& lines) const {
  constexpr int kAir = 3;  // names of narrow columns would read as one
  const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
  int width = 0;
  for (const QString& line : lines.split(QLatin1Char('\n'))) {
    width = std::max(width, fontMetrics().horizontalAdvance(line));
  }
  return width + 2 * (margin + kAir);
}

int GridHeader::WidthOf(int column, int cells) const {
  int width = cells;
  for (const Grid::HeaderCell& cell : texts_.Header()) {
    if (!Covers(cell, column)) continue;
    const int needed = TextWidth(Wrapped(cell.text, cells * cell.columns));
    width = std::max(width, (needed + cell.columns - 1) / cell.columns);
  }
  return width;
}

int GridHeader::WidthUnder(const Grid::HeaderCell& cell) const {
  int width = 0;
  for (int i = 0; i < cell.columns; ++i) width += sectionSize(cell.column + i);
  return width;
}

int GridHeader::GivenWidthUnder(const Grid::HeaderCell& cell) const {
  const auto begin = widths_.begin() + std::min<std::ptrdiff_t>(cell.column, std::ssize(widths_));
  const auto end = begin + std::min<std::ptrdiff_t>(cell.columns, widths_.end() - begin);
  return std::accumulate(begin, end, 0);
}

void GridHeader::SetWidths(std::vector<int> widths) {
  widths_ = std::move(widths);
  const int one_line = QHeaderView::sectionSizeFromContents(0).height();
  heights_.assign(static_cast<std::size_t>(texts_.FirstRow()), one_line);
  for (const Grid::HeaderCell& cell : texts_.Header()) {
    if (cell.rows > 1) continue;
    const auto more = Wrapped(cell.text, GivenWidthUnder(cell)).count(QLatin1Char('\n'));
    int& height = heights_.at(static_cast<std::size_t>(cell.row));
    height = std::max(height, one_line + static_cast<int>(more) * fontMetrics().lineSpacing());
  }
}

QSize GridHeader::sizeHint() const {
  return {length(), std::accumulate(heights_.begin(), heights_.end(), 0)};
}

QRect GridHeader::PlaceOf(const Grid::HeaderCell& cell, int left) const {
  const int first = heights_.empty() ? 0 : heights_.front();
  const int top = cell.row == 0 ? 0 : first;
  // The last row takes what is left.
  const bool down = cell.row + cell.rows == texts_.FirstRow();
  return {left, top, WidthUnder(cell), down ? height() - top : first};
}

void GridHeader::KeepFirst(bool keep) {
  keep_first_ = keep;
  viewport()->update();
}

void GridHeader::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  if (!keep_first_ || count() == 0) return;
  QPainter painter(viewport());
  PaintCells(painter, {0, 0, sectionSize(0), height()}, 0, 0);
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int column) const {
  PaintCells(*painter, rect, column, sectionViewportPosition(column));
}

/// Each column draws its part of the cells that cover it, as if it drew all of them.
void GridHeader::PaintCells(QPainter& painter, const QRect& rect, int column, int left) const {
  for (const Grid::HeaderCell& cell : texts_.Header()) {
    if (!Covers(cell, column)) continue;
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = PlaceOf(cell, left - sectionPosition(column) + sectionPosition(cell.column));
    option.section = cell.column;
    option.text = Wrapped(cell.text, option.rect.width());
    option.textAlignment = Qt::AlignCenter;
    option.position = QStyleOptionHeader::Middle;
    painter.save();
    painter.setClipRect(rect.intersected(option.rect));
    style()->drawControl(QStyle::CE_Header, &option, &painter, this);
    painter.restore();
  }
}

}  // namespace quorvel::qt
