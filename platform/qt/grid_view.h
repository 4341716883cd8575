#pragma once

#include "platform/qt/control_view.h"
#include "platform/qt/grid_table.h"
#include "quorvel/widgets/grid.h"

namespace quorvel::qt {

/// A table of texts.
class GridView : public ViewOf<Grid, GridTable> {
 public:
  GridView(VerbsUnderWay& verbs, Grid& model, QWidget& parent);
  void LetGo(bool model_lives) override;

 private:
  GridView(VerbsUnderWay& verbs, Grid& model, QWidget& parent, GridTexts* texts);
  void Draw(Aspect what) override;
  void Copy();
  void Paste();

  GridTexts* const texts_;  ///< owned by the table
};

}  // namespace quorvel::qt
