#include "muxhost/window/zone_grid.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "muxhost/window/tr.h"
#include "muxhost/window/zone_model.h"

namespace quorvel::muxhost {

namespace {

void Dress(QHeaderView& header, int least_size) {
  header.setMinimumSectionSize(least_size);
  header.setSectionResizeMode(QHeaderView::Stretch);
  header.setSectionsClickable(false);
  header.setHighlightSections(false);
  header.setDefaultAlignment(Qt::AlignCenter);
}

}  // namespace

ZoneGrid::ZoneGrid(QWidget* parent) : QTableView(parent), cells_(new ZoneModel(this)) {
  setModel(cells_);
  setItemDelegate(new ZonePainter(this));
  setAccessibleName(Tr("Zones"));
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setCornerButtonEnabled(false);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, ZonePainter::FieldColour());
  setPalette(colours);
  Dress(*horizontalHeader(), fontMetrics().horizontalAdvance("00"));
  Dress(*verticalHeader(), fontMetrics().height());
  // Cells shrink with the window; bars that come and go would change what they shrink to.
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setCurrentIndex(cells_->index(0, 0));
}

const ZoneCells& ZoneGrid::Cells() const { return cells_->Cells(); }

void ZoneGrid::SetCells(const ZoneCells& cells) {
  painting_ = false;
  cells_->SetCells(cells);
}

QSize ZoneGrid::SizeFor(double lines_a_cell) const {
  constexpr double kWidthToHeight = 4.0 / 3.0;  // of a picture
  const double side = ZoneCells::kSide * lines_a_cell * fontMetrics().height();
  const int frame = 2 * frameWidth();
  return {static_cast<int>(side * kWidthToHeight) + verticalHeader()->sizeHint().width() + frame,
          static_cast<int>(side) + horizontalHeader()->sizeHint().height() + frame};
}

QSize ZoneGrid::sizeHint() const { return SizeFor(1.6); }

QSize ZoneGrid::minimumSizeHint() const { return SizeFor(1.2); }

QModelIndex ZoneGrid::CellAt(QPoint place) const {
  const QRect field = viewport()->rect();
  return indexAt({std::clamp(place.x(), field.left(), field.right()),
                  std::clamp(place.y(), field.top(), field.bottom())});
}

void ZoneGrid::BeginPainting(bool active) {
  painting_ = true;
  paint_ = active;
  before_ = Cells();
}

void ZoneGrid::EndPainting() {
  if (!painting_) return;
  painting_ = false;
  if (on_change && before_ != Cells()) on_change(before_);
}

void ZoneGrid::PaintTo(const QModelIndex& target) {
  if (!target.isValid()) return;
  // The mouse may have moved on by more than a cell.
  const QModelIndex from = currentIndex();
  const int rows = target.row() - from.row();
  const int columns = target.column() - from.column();
  const int steps = std::max(std::abs(rows), std::abs(columns));
  for (int step = 1; step <= steps; ++step) {
    const double part = static_cast<double>(step) / steps;
    cells_->SetCell(cells_->index(from.row() + static_cast<int>(std::lround(rows * part)),
                                  from.column() + static_cast<int>(std::lround(columns * part))),
                    paint_);
  }
  setCurrentIndex(target);
}

void ZoneGrid::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = CellAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !cell.isValid()) return;
  EndPainting();
  setCurrentIndex(cell);
  BeginPainting(!cells_->Active(cell));
  cells_->SetCell(cell, paint_);
}

/// The second of two quick clicks.
void ZoneGrid::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ZoneGrid::mouseMoveEvent(QMouseEvent* event) {
  if (painting_) PaintTo(CellAt(event->position().toPoint()));
}

void ZoneGrid::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) EndPainting();
}

bool ZoneGrid::PaintByKey(const QKeyEvent& event) {
  if ((event.modifiers() & Qt::ShiftModifier) == 0) return false;
  int rows = 0;
  int columns = 0;
  switch (event.key()) {
    case Qt::Key_Up: rows = -1; break;
    case Qt::Key_Down: rows = 1; break;
    case Qt::Key_Left: columns = -1; break;
    case Qt::Key_Right: columns = 1; break;
    default: return false;
  }
  const QModelIndex from = currentIndex();
  BeginPainting(cells_->Active(from));
  PaintTo(cells_->index(from.row() + rows, from.column() + columns));
  EndPainting();
  return true;
}

void ZoneGrid::keyPressEvent(QKeyEvent* event) {
  if (painting_) return;  // with the mouse
  if (PaintByKey(*event)) return;
  if (event->key() != Qt::Key_Space) {
    QTableView::keyPressEvent(event);
    return;
  }
  BeginPainting(!cells_->Active(currentIndex()));
  cells_->SetCell(currentIndex(), paint_);
  EndPainting();
}

}  // namespace quorvel::muxhost
