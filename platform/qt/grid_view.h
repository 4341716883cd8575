#pragma once

#include "platform/qt/control_view.h"
#include "platform/qt/grid_table.h"
#include "platform/qt/soon.h"
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
  void RenewTexts();
  void Copy();
  void Paste();

  GridTexts* const texts_;  ///< owned by the table
  bool resized_ = true;
  Soon renew_{[this] { RenewTexts(); }};
};

}  // namespace quorvel::qt
