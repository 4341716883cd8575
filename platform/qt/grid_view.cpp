#include "platform/qt/grid_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>
#include <QToolTip>
#include <utility>

#include "quorvel/widgets/dialog.h"

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
  GetBody()->on_mark = [this](int row) { Act([row](Grid& grid) { grid.Mark(row); }); };
  GetBody()->on_copy = [this] { Copy(); };
  GetBody()->on_paste = [this] { Paste(); };
  GetBody()->on_empty = [this] { Act([](Grid& grid) { grid.Empty(); }); };
  GetBody()->on_cancel = [this] { Refresh(Aspect::kSelection); };
  DrawAll();
  RenewTexts();  // the window is about to ask how large the table is
}

void GridView::LetGo(bool model_lives) {
  // The view ends after the window has let it go; the table, which owns the texts, still later.
  if (GetModel() != nullptr) texts_->LetGo();
  ViewOf::LetGo(model_lives);
}

void GridView::Copy() {
  if (GetModel() == nullptr) return;
  const int column = GetModel()->Column();
  QGuiApplication::clipboard()->setText(Shown(GetModel()->Copied(column, column)));
}

/// A refused paste is said where it was tried.
void GridView::Paste() {
  const std::string text = Stored(QGuiApplication::clipboard()->text());
  Answer answer = Answer::kDone;
  const QPointer<GridTable> table(GetBody());
  Act([&](Grid& grid) { answer = grid.Paste(text); });
  if (table == nullptr || answer == Answer::kDone || GetModel() == nullptr) return;
  const QString why = Shown(GetModel()->Owner().PasteRefusal(answer));
  const QRect cell = table->visualRect(table->currentIndex());
  QToolTip::showText(table->viewport()->mapToGlobal(cell.bottomLeft()), why, table);
}

/// Filling a table is one call a cell, and measuring its columns takes far longer than that.
void GridView::Draw(Aspect what) {
  bool select = what == Aspect::kSelection;
  if (what == Aspect::kContent) {
    if (texts_->Resize()) select = resized_ = true;  // a new size drops what was selected
    renew_.Ask();
  }
  if (select) {
    GetBody()->ShowSelection(GetModel()->Row(), GetModel()->Column(), GetModel()->RowSel());
  }
}

void GridView::RenewTexts() {
  if (GetModel() == nullptr) return;
  texts_->Renew();
  GetBody()->FitColumns(std::exchange(resized_, false));
}

}  // namespace quorvel::qt
