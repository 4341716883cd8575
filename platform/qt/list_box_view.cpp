#include "platform/qt/list_box_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/qt/widest.h"
#include "quorvel/widgets/placement.h"

namespace quorvel::qt {

namespace {
constexpr int kLeastRows = 4;  // of a list that has space
}

ChoiceList::ChoiceList(QWidget& parent) : FocusShown(&parent) {
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  // Below the last whole row.
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
}

void ChoiceList::FitItems(int rows) {
  rows_ = rows;
  measured_ = false;
  updateGeometry();
  // Space below the last item would look like something that is missing.
  const int most = rows > 0 ? rows : std::max(model()->rowCount(), kLeastRows);
  setMaximumHeight(RowHeight() * most + 2 * frameWidth());
  ShowBarWhereNeeded();
}

QSize ChoiceList::SizeOfItems() const {
  constexpr int kLeastCharacters = 10;
  const int frame = 2 * frameWidth();
  const int bar = verticalScrollBar()->sizeHint().width();
  const int width =
      std::max(WidestCell(*this, 0) + 4, kLeastCharacters * fontMetrics().averageCharWidth());
  const int rows = rows_ > 0 ? rows_ : std::clamp(model()->rowCount(), kLeastRows, kMostListRows);
  return {width + bar + frame, RowHeight() * rows + frame};
}

int ChoiceList::RowHeight() const {
  return model()->rowCount() > 0 ? sizeHintForRow(0) : fontMetrics().height() + 2;
}

bool ChoiceList::InSight(const QModelIndex& item) const {
  const QRect place = visualRect(item);
  return place.top() >= 0 && place.bottom() < viewport()->height();
}

void ChoiceList::ShowCurrent(int item) {
  if (item == SelectedRow() && (item < 0 || item == currentIndex().row())) return;
  const QModelIndex index = model()->index(item, 0);
  if (!index.isValid()) return selectionModel()->clear();
  const bool in_sight = InSight(index);
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
  if (!in_sight) scrollTo(index, PositionAtCenter);
}

/// The toolkit keeps a bar that it has needed in a smaller space.
void ChoiceList::ShowBarWhereNeeded() {
  const bool whole = RowHeight() * model()->rowCount() <= height() - 2 * frameWidth();
  setVerticalScrollBarPolicy(whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void ChoiceList::resizeEvent(QResizeEvent* event) {
  ShowBarWhereNeeded();
  QListView::resizeEvent(event);
  const int rest = (viewport()->height() + viewportMargins().bottom()) % RowHeight();
  if (rest != viewportMargins().bottom()) {
    setViewportMargins(0, 0, 0, rest);
  } else if (currentIndex().isValid() && !InSight(currentIndex())) {
    scrollTo(currentIndex(), PositionAtCenter);
  }
}

QSize ChoiceList::sizeHint() const {
  if (!std::exchange(measured_, true)) {
    const QSize size = SizeOfItems();
    const bool on_screen = window()->isVisible() && !hint_.isEmpty();
    hint_ = hint_.expandedTo(on_screen ? QSize(size.width(), 0) : size);
  }
  return hint_;
}

QSize ChoiceList::minimumSizeHint() const {
  // A short list is shown whole: one that scrolls between two items cannot be read at a glance.
  constexpr int kFewestRows = 3;
  constexpr int kShortList = 6;
  const int items = rows_ > 0 ? rows_ : model()->rowCount();
  const int rows = items <= kShortList ? std::max(items, kFewestRows) : kFewestRows;
  const QSize hint = sizeHint();
  return {hint.width(), std::min(hint.height(), rows * RowHeight() + 2 * frameWidth())};
}

int ChoiceList::SelectedRow() const {
  const auto selected = selectionModel()->selectedRows();
  return selected.isEmpty() ? -1 : selected.front().row();
}

/// The toolkit takes the selection away when the pointer, pressed on the selected item, is let go
/// below the last one.
QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* /*event*/) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = indexAt(event->position().toPoint()).isValid();
  if (pressed_) QListView::mousePressEvent(event);
}

void ChoiceList::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
  if (SelectedRow() >= 0) on_choose(SelectedRow());
}

void ChoiceList::focusOutEvent(QFocusEvent* event) {
  FocusShown::focusOutEvent(event);
  if (std::exchange(pressed_, false)) on_cancel();
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
  const int before = SelectedRow();
  const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (event->key() == Qt::Key_Space || (before < 0 && arrow)) {
    // The focus made item 0 current without selecting it; the first arrow selects it.
    if (currentIndex().isValid()) on_choose(currentIndex().row());
    return;
  }
  QListView::keyPressEvent(event);
  if (SelectedRow() >= 0 && SelectedRow() != before) on_move(SelectedRow());
}

ListBoxView::ListBoxView(VerbsUnderWay& verbs, ListBox& model, QWidget& parent)
    : ViewOf(verbs, model, new ChoiceList(parent)), texts_(new ChoiceTexts(model, *GetBody())) {
  GetBody()->setModel(texts_);
  GetBody()->on_cancel = [this] { Refresh(Aspect::kSelection); };
  GetBody()->on_choose = [this](int item) { Act([item](ListBox& list) { list.Choose(item); }); };
  GetBody()->on_move = [this](int item) { Act([item](ListBox& list) { list.MoveOnTo(item); }); };
  DrawAll();
}

void ListBoxView::LetGo(bool model_lives) {
  if (GetModel() != nullptr) texts_->LetGo();
  ViewOf::LetGo(model_lives);
}

void ListBoxView::Draw(Aspect what) {
  if (what == Aspect::kContent) texts_->Renew();
  if (what != Aspect::kSelection) GetBody()->FitItems(GetModel()->Rows());
  GetBody()->ShowCurrent(GetModel()->Current());
}

}  // namespace quorvel::qt
