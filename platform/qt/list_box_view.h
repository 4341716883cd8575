#pragma once

#include <QListView>
#include <functional>

#include "platform/qt/choice_texts.h"
#include "platform/qt/control_view.h"
#include "platform/qt/focus_shown.h"
#include "quorvel/widgets/choice.h"

namespace quorvel::qt {

/// The toolkit's list with one signal of its own: the user picked an item, with the mouse or from
/// the keyboard, be it the current one.
class ChoiceList : public FocusShown<QListView> {
 public:
  explicit ChoiceList(QWidget& parent);
  std::function<void(int)> on_choose;
  /// The same, by a key that goes on from item to item.
  std::function<void(int)> on_move;
  /// The pointer was pressed on an item, and is let go elsewhere: nothing was chosen.
  std::function<void()> on_cancel;

  /// Space for the items, all of their width and up to a limit of their number, or for a number of
  /// lines. It only grows, and once on screen not in height, so that nothing jumps about when
  /// another set of items is shown.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// `rows` lines, or 0: as many as there are items.
  void FitItems(int rows);
  /// Makes an item current; -1 for none.
  void ShowCurrent(int item);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
      const QModelIndex& index, const QEvent* event) const override;

 private:
  void ShowBarWhereNeeded();
  [[nodiscard]] int SelectedRow() const;
  [[nodiscard]] int RowHeight() const;
  /// True when the whole height of the item is to be seen.
  [[nodiscard]] bool InSight(const QModelIndex& item) const;
  /// Space for the items as they are; measured when it is asked for.
  [[nodiscard]] QSize SizeOfItems() const;

  mutable QSize hint_;
  mutable bool measured_ = false;
  int rows_ = 0;
  bool pressed_ = false;
};

/// A list of which one item, or none, is current.
class ListBoxView : public ViewOf<ListBox, ChoiceList> {
 public:
  ListBoxView(VerbsUnderWay& verbs, ListBox& model, QWidget& parent);
  void LetGo(bool model_lives) override;

 private:
  void Draw(Aspect what) override;

  ChoiceTexts* const texts_;  ///< owned by the list
};

}  // namespace quorvel::qt
