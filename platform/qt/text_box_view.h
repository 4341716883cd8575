#pragma once

#include <QLineEdit>
#include <functional>

#include "platform/qt/control_view.h"
#include "quorvel/widgets/text_box.h"

namespace quorvel::qt {

/// The toolkit's line of text with a signal of its own: the focus has come, or the user clicks
/// where it is. A click counts when the button is let go, after the toolkit has placed the cursor.
class TextLine : public QLineEdit {
 public:
  explicit TextLine(QWidget& parent);
  std::function<void(bool by_click)> on_focus;
  /// Keys that the model takes before the toolkit does; true when it has.
  std::function<bool(const QKeyEvent& event)> on_key;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool came_by_click_ = false;
};

/// A line of editable text.
class TextBoxView : public ViewOf<TextBox, TextLine> {
 public:
  TextBoxView(VerbsUnderWay& verbs, TextBox& model, QWidget& parent);

 private:
  void Draw(Aspect what) override;
  /// Hands over what was typed into a box that is taken as a whole.
  void TakeWhole();
  /// Hands over the whole text, `cursor` characters of it before the cursor.
  void Type(const QString& text, qsizetype cursor);
  [[nodiscard]] bool TakesKey(const QKeyEvent& event);
  void ShowSelection();
  void FitWidth();
};

}  // namespace quorvel::qt
