#include "platform/qt/grid_view.h"

namespace quorvel::qt {

GridView::GridView(VerbsUnderWay& verbs, Grid& model, QWidget& parent)
    : GridView(verbs, model, parent, new GridTexts(model)) {}

GridView::GridView(VerbsUnderWay& verbs, Grid& model, QWidget& parent, GridTexts* texts)
    : ViewOf(verbs, model, new GridTable(parent, *texts)), texts_(texts) {
  texts->setParent(GetBody());
  GetBody()->on_press = [this](int row, int column) {
    Act([row, column](Grid& grid) { grid.Press(row, column); });
  };
  GetBody()->on_release = [this](int first, int last) {
    Act([first, last](Grid& grid) { grid.Release(first, last); });
  };
  GetBody()->on_cancel = [this] { Refresh(Aspect::kSelection); };
  DrawAll();
  GetBody()->FitColumns(true);
}

void GridView::LetGo(bool model_lives) {
  // The view ends after the window has let it go; the table, which owns the texts, still later.
  if (GetModel() != nullptr) texts_->LetGo();
  ViewOf::LetGo(model_lives);
}

void GridView::Draw(Aspect what) {
  if (what == Aspect::kContent) {
    if (texts_->Renew()) {
      GetBody()->FitColumns(true);
    } else {
      GetBody()->FitColumnsSoon();
    }
  }
  if (what == Aspect::kSelection) {
    GetBody()->ShowSelection(GetModel()->Row(), GetModel()->Column(), GetModel()->RowSel());
  }
}

}  // namespace quorvel::qt
