#pragma once

#include <QListWidget>
#include <functional>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/controls.h"

namespace quorvel::qt {

/// The toolkit's list with one signal of its own: a person picked an item, with the mouse or from
/// the keyboard, be it the current one.
class ChoiceList : public QListWidget {
 public:
  explicit ChoiceList(QWidget& parent);
  std::function<void(int)> on_choose;

  /// Space for the items, up to a limit; grows only, so that a window does not jump about when
  /// another set of items is shown.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  void FitItems();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] int SelectedRow() const;
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
