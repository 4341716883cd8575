#pragma once

#include <QListWidget>
#include <functional>

#include "platform/qt/control_view.h"
#include "platform/qt/focus_shown.h"
#include "quorvel/widgets/choice.h"

namespace quorvel::qt {

/// The toolkit's list with one signal of its own: a person picked an item, with the mouse or from
/// the keyboard, be it the current one.
class ChoiceList : public FocusShown<QListWidget> {
 public:
  explicit ChoiceList(QWidget& parent);
  std::function<void(int)> on_choose;

  /// Space for the items, up to a limit, or for a number of lines. It only grows, and once on
  /// screen not in height, so that nothing jumps about when another set of items is shown.
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
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] int SelectedRow() const;
  [[nodiscard]] int RowHeight() const;
  /// True when the whole height of the item is to be seen.
  [[nodiscard]] bool InSight(int item) const;
  QSize hint_;
  bool pressed_ = false;
};

/// A list of which one item, or none, is current.
class ListBoxView : public ViewOf<ListBox, ChoiceList> {
 public:
  ListBoxView(VerbsUnderWay& verbs, ListBox& model, QWidget& parent);

 private:
  void Draw(Aspect what) override;
};

}  // namespace quorvel::qt
