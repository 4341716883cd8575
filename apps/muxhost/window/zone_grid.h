#pragma once

#include <QTableView>
#include <functional>

#include "muxhost/window/zone_cells.h"

namespace quorvel::muxhost {

class ZoneModel;

/// Zone cells on a dark field, as over a picture. A click turns a cell over; a drag gives the cells
/// on its way the state that the first one has got. Arrow keys move between cells, Space turns one
/// over, and Shift with an arrow takes the state of a cell along to the next one.
class ZoneGrid : public QTableView {
 public:
  explicit ZoneGrid(QWidget* parent = nullptr);

  [[nodiscard]] const ZoneCells& Cells() const;
  /// Ends a drag that is under way, as when the mouse button is released.
  void EndPainting();
  /// Shows other cells; on_change is not called, and a drag under way is dropped.
  void SetCells(const ZoneCells& cells);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

  /// The user has changed cells, which were as in `before`: with a key, or with a whole drag.
  std::function<void(const ZoneCells& before)> on_change;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QModelIndex CellAt(QPoint place) const;
  [[nodiscard]] QSize SizeFor(double lines_a_cell) const;
  /// Paints the cells on the straight line from the current one to `target`, which becomes current.
  void PaintTo(const QModelIndex& target);
  void BeginPainting(bool active);
  /// Shift with an arrow; false for any other key.
  bool PaintByKey(const QKeyEvent& event);

  ZoneModel* const cells_;
  bool painting_ = false;
  bool paint_ = false;  ///< what painted cells become
  ZoneCells before_;
};

}  // namespace quorvel::muxhost
