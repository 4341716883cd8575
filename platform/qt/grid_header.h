#pragma once

#include <QHeaderView>
#include <vector>

#include "platform/qt/grid_texts.h"

namespace quorvel::qt {

/// A header of one or two rows, in which a cell may cover several. A text that is wider than its
/// column would otherwise be stands in two lines, where it has a blank to break at.
class GridHeader : public QHeaderView {
 public:
  GridHeader(QWidget& parent, const GridTexts& texts);

  /// Width of a column whose cells need `cells`.
  [[nodiscard]] int WidthOf(int column, int cells) const;
  /// Takes the widths that columns have been given, from which the header gets its height. They may
  /// be wider at the moment, the last one where there is space to fill.
  void SetWidths(std::vector<int> widths);
  [[nodiscard]] const std::vector<int>& Widths() const { return widths_; }
  /// Whether the first column stays in sight while the others are scrolled.
  void KeepFirst(bool keep);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int column) const override;

 private:
  /// The text as it is drawn in this width, in one line or two.
  [[nodiscard]] QString Wrapped(const std::string& text, int width) const;
  [[nodiscard]] int TextWidth(const QString& lines) const;
  [[nodiscard]] int WidthUnder(const Grid::HeaderCell& cell) const;
  [[nodiscard]] int GivenWidthUnder(const Grid::HeaderCell& cell) const;
  /// Where a cell is drawn whose first column begins at `left`.
  [[nodiscard]] QRect PlaceOf(const Grid::HeaderCell& cell, int left) const;
  void PaintCells(QPainter& painter, const QRect& rect, int column, int left) const;

  const GridTexts& texts_;
  std::vector<int> widths_;
  std::vector<int> heights_;  ///< of the rows
  bool keep_first_ = false;
};

}  // namespace quorvel::qt
