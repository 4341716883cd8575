#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "platform/qt/control_view.h"
#include "platform/qt/fitted_scroll_area.h"
#include "quorvel/widgets/dialog.h"

namespace quorvel::qt {

/// A dialog's controls on screen; their views end with them.
class Contents : public FittedScrollArea {
 public:
  Contents(QWidget& parent, const Layout& layout, VerbsUnderWay& verbs);
  void LetGo(bool models_live);

 private:
  std::vector<std::unique_ptr<ControlView>> views_;
};

/// A dialog on screen, drawn from its model alone.
class DialogWindow : public QDialog, public WidgetView {
 public:
  explicit DialogWindow(Dialog& dialog);
  ~DialogWindow() override;

  void Refresh(Aspect what) override;
  /// Shows the window, or brings it to the front. A new window stands over the middle of `over`.
  void Present(const QWidget* over);
  /// Takes the window off the screen and ends its tie to the dialog, which is not touched when it
  /// lives no more. The window deletes itself once nothing of it is on the stack.
  void Retire(bool dialog_lives);
  /// What the window's own close button does.
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void Build();
  void LetGo(bool dialog_lives);
  /// Enlarges the window by what its contents have grown.
  void Fit();
  [[nodiscard]] QSize LargestSize() const;
  /// Gives the focus to the first control that takes the user's input, else to the default button.
  void FocusInput();
  /// Gives the focus to the default button where it can be pressed, else to no control.
  void FocusDefault();
  /// Brings the control that has it into sight.
  void ScrollToFocus();
  [[nodiscard]] bool NothingHasFocus() const {
    return focusWidget() == nullptr || focusWidget() == this;
  }
  /// Gives it to the control that the model has sent it to.
  void FollowFocus();
  [[nodiscard]] bool HandOverTyped();
  /// Undo, redo and put back, as their keys say.
  void TakeStepKey(const QKeyEvent& event);
  /// The control that a part of the window belongs to, or none.
  [[nodiscard]] Widget* ControlOf(const QWidget* part) const;
  void PressKeyButton(Button* button);

  Dialog* dialog_;
  VerbsUnderWay verbs_;
  Contents* contents_ = nullptr;
  QSize hint_;
};

}  // namespace quorvel::qt
