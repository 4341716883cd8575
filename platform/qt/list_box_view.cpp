#include "platform/qt/list_box_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

namespace quorvel::qt {

ChoiceList::ChoiceList(QWidget& parent) : FocusShown(&parent) {
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  // Below the last whole row.
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
}

void ChoiceList::FitItems(int rows) {
  constexpr int kLeastWidth = 90;
  constexpr int kMostWidth = 300;
  constexpr int kLeastRows = 4;
  constexpr int kMostRows = 14;
  const int frame = 2 * frameWidth();
  const int width = sizeHintForColumn(0) + verticalScrollBar()->sizeHint().width() + frame + 4;
  const QSize hint(
      std::clamp(width, kLeastWidth, kMostWidth),
      RowHeight() * (rows > 0 ? rows : std::clamp(count(), kLeastRows, kMostRows)) + frame);
  const bool on_screen = window()->isVisible() && !hint_.isEmpty();
  hint_ = hint_.expandedTo(on_screen ? QSize(hint.width(), 0) : hint);
  updateGeometry();
}

int ChoiceList::RowHeight() const {
  return std::max(sizeHintForRow(0), fontMetrics().height() + 2);
}

bool ChoiceList::InSight(int row) const {
  const QRect place = visualItemRect(item(row));
  return place.top() >= 0 && place.bottom() < viewport()->height();
}

void ChoiceList::ShowCurrent(int item) {
  if (item == currentRow()) return;
  const bool in_sight = item < 0 || item >= count() || InSight(item);
  setCurrentRow(item);
  if (!in_sight) scrollToItem(currentItem(), PositionAtCenter);
}

void ChoiceList::resizeEvent(QResizeEvent* event) {
  QListWidget::resizeEvent(event);
  const int rest = (viewport()->height() + viewportMargins().bottom()) % RowHeight();
  if (rest != viewportMargins().bottom()) {
    setViewportMargins(0, 0, 0, rest);
  } else if (currentRow() >= 0 && !InSight(currentRow())) {
    scrollToItem(currentItem(), PositionAtCenter);
  }
}

QSize ChoiceList::sizeHint() const { return hint_; }

QSize ChoiceList::minimumSizeHint() const {
  constexpr int kLeastHeight = 60;
  return {hint_.width(), std::min(hint_.height(), kLeastHeight)};
}

int ChoiceList::SelectedRow() const {
  const auto selected = selectionModel()->selectedRows();
  return selected.isEmpty() ? -1 : selected.front().row();
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = indexAt(event->position().toPoint()).isValid();
  if (pressed_) QListWidget::mousePressEvent(event);
}

void ChoiceList::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ChoiceList::mouseReleaseEvent(QMouseEvent* event) {
  QListWidget::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
  if (SelectedRow() >= 0) on_choose(SelectedRow());
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
  const int before = SelectedRow();
  const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (event->key() == Qt::Key_Space || (before < 0 && arrow)) {
    // The focus made item 0 current without selecting it; the first arrow selects it.
    if (currentRow() >= 0) on_choose(currentRow());
    return;
  }
  QListWidget::keyPressEvent(event);
  if (SelectedRow() >= 0 && SelectedRow() != before) on_choose(SelectedRow());
}

ListBoxView::ListBoxView(VerbsUnderWay& verbs, ListBox& model, QWidget& parent)
    : ViewOf(verbs, model, new ChoiceList(parent)) {
  GetBody()->on_choose = [this](int item) { Act([item](ListBox& list) { list.Choose(item); }); };
  DrawAll();
}

void ListBoxView::Draw(Aspect what) {
  ChoiceList& list = *GetBody();
  if (what == Aspect::kContent) {
    list.clear();
    for (const std::string& text : GetModel()->Items()) list.addItem(Shown(text));
  }
  if (what != Aspect::kSelection) list.FitItems(GetModel()->Rows());
  list.ShowCurrent(GetModel()->Current());
}

}  // namespace quorvel::qt
