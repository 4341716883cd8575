#pragma once

#include <QHeaderView>

#include "platform/qt/grid_texts.h"

namespace quorvel::qt {

/// A header of one or two rows, in which a cell may cover several.
class GridHeader : public QHeaderView {
 public:
  GridHeader(QWidget& parent, const GridTexts& texts);

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int column) const override;
  [[nodiscard]] QSize sectionSizeFromContents(int column) const override;

 private:
  [[nodiscard]] int LineHeight() const;
  [[nodiscard]] QRect PlaceOf(const Grid::HeaderCell& cell) const;

  const GridTexts& texts_;
};

}  // namespace quorvel::qt
