#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/controls.h"
#include "quorvel/widgets/layout.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

class Edited;
class Gestures;
class Platform;
struct Picture;

/// A line of the menu that a control of an editor has.
struct ContextEntry {
  std::string text;
  std::function<Answer()> choose;
  bool enabled = true;
};

/// What a changed control is put back to.
enum class PutBackTo {
  kOpened,  ///< as it was when its window opened
  kDevice,  ///< as the device has it
};

/// A window as a value: its controls, their layout, and whether it is on screen. Editors derive
/// from it and hold their controls as members. A dialog lives in a std::shared_ptr; while one of
/// its handlers runs it stays alive, even when its owner lets go of it.
class QUORVEL_API Dialog : public std::enable_shared_from_this<Dialog> {
 public:
  /// `name` is the window's name in the code, as "frm_CameraSetup".
  Dialog(Platform& platform, std::string name);
  /// Takes the dialog off the screen; calls no handler.
  virtual ~Dialog();
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  [[nodiscard]] const Picture* Icon() const { return icon_; }
  [[nodiscard]] const Layout& Contents() const { return layout_; }
  [[nodiscard]] bool Shown() const { return shown_; }
  /// The controls in the order of their declaration.
  [[nodiscard]] const std::vector<Widget*>& Widgets() const { return widgets_; }
  /// The control of that name, or a null pointer.
  [[nodiscard]] Widget* FindWidget(std::string_view name) const;
  /// The control of that name and kind; throws std::invalid_argument when there is none.
  template <class Control>
  [[nodiscard]] Control& Find(std::string_view name) const {
    auto* const control = dynamic_cast<Control*>(FindWidget(name));
    if (control == nullptr) ThrowNoControl(name);
    return *control;
  }
  /// The control that MoveFocus has sent the keyboard focus to last, or none.
  [[nodiscard]] const Widget* FocusSentTo() const { return focus_sent_to_; }
  /// The buttons that Ctrl+Enter and Escape press; none by default. Escape closes a dialog without
  /// a cancel button.
  [[nodiscard]] Button* DefaultButton() const { return default_button_; }
  [[nodiscard]] Button* CancelButton() const { return cancel_button_; }

  /// What to tell the user whose paste into a grid was refused: kNotAChoice or kNoSuchPlace.
  [[nodiscard]] const std::string& PasteRefusal(Answer answer) const {
    return answer == Answer::kNotAChoice ? not_a_choice_ : does_not_fit_;
  }

  /// What screen readers say of a control that edits the current cell of a grid, before the column.
  [[nodiscard]] const std::string& EditsCellWords() const { return edits_cell_words_; }

  /// Why a control is disabled that was given no reason of its own.
  [[nodiscard]] const std::string& DisabledWords() const { return disabled_words_; }
  /// What there is to know of a control, or of a cell of a grid: why it is disabled, the range of
  /// what it sets, what is stored and where. Lines of text, empty for nothing.
  [[nodiscard]] virtual std::string HelpOf(const Widget& control, int row = -1,
                                           int column = -1) const;
  /// The same of all controls of the page in front, a line each: "Gain: Range: 50 - 150; ...". Of a
  /// grid, its current cell.
  [[nodiscard]] std::string PageHelp() const;

  void SetDisabledWords(std::string words) { disabled_words_ = std::move(words); }
  /// What the lines of a control's menu are called.
  struct ContextWords {
    std::string undo, redo, put_back, put_back_to_device;
  };
  void SetContextWords(ContextWords words) { context_words_ = std::move(words); }

  void SetEditsCellWords(std::string words) { edits_cell_words_ = std::move(words); }
  void SetPasteRefusals(std::string not_a_choice, std::string does_not_fit);
  void SetCaption(std::string caption);
  void SetIcon(const Picture* icon) { icon_ = icon; }
  void SetLayout(Layout layout);
  /// Sends the keyboard focus to a control, on whatever page it is; nothing for one that takes no
  /// input then.
  void MoveFocus(Widget& to);
  void SetKeyButtons(Button* default_button, Button* cancel_button);
  /// Shows the dialog modeless, or brings it to the front when it is on screen.
  void Show();
  /// Shows the dialog and returns when it has been closed.
  void ShowModal();
  /// Takes the dialog off the screen and raises on_closed; nothing when it is not shown.
  void Close();

  /// What the user does with the window's own close button, or Escape. A dialog whose changes would
  /// be lost asks first; kDone also when the user stays.
  Answer CloseWindow();

  /// Takes back what the user has done last, or does it again; the control that was used has the
  /// focus then. kNoSuchPlace when there is nothing, kOutdated once the dialog belongs to settings
  /// that are gone. Only dialogs that edit have steps.
  Answer Undo();
  Answer Redo();
  [[nodiscard]] bool CanUndo() const;
  [[nodiscard]] bool CanRedo() const;
  /// Whether anything that the user edits differs from when the dialog opened.
  [[nodiscard]] bool IsChanged() const;
  /// Puts back what a control edits: of a grid, and of a control that edits its cells, the selected
  /// cells of the current column. What follows from a choice of the user's follows here, too.
  /// kOtherKind for a control that edits nothing, kNoSuchPlace where it is not known what the
  /// device has.
  Answer PutBack(Widget& control, PutBackTo to = PutBackTo::kOpened);
  /// The lines of a control's own menu: undo, redo, and to put it back. None in dialogs without
  /// steps. They stay valid as long as the dialog.
  [[nodiscard]] std::vector<ContextEntry> ContextEntries(Widget& control);

  /// Raised each time the dialog leaves the screen, whatever closed it.
  Handler on_closed;

  void AttachView(WidgetView* view) { view_ = view; }
  /// Keeps `life` alive, as long as it lives, while a handler of this dialog runs.
  void KeepAliveWith(std::weak_ptr<const void> life) { life_ = std::move(life); }

  /// Runs a handler so that nothing is destroyed under it and no failure leaves it: a failure is
  /// told in a message box, "Error found in " and the place.
  void RunHandler(const std::string& place, const Handler& handler);

  /// For widgets, as they are constructed.
  void Register(Widget& widget) { widgets_.push_back(&widget); }
  [[nodiscard]] Platform& GetPlatform() const { return platform_; }
  /// The user's steps; a null pointer in a dialog that keeps none.
  [[nodiscard]] Gestures* GetGestures() const { return gestures_.get(); }
  /// What KeepAliveWith has named.
  [[nodiscard]] std::shared_ptr<const void> Life() const { return life_.lock(); }
  /// For parts of a dialog that hold a value beside their widgets: see Widget::Remember.
  template <class First, class... Rest>
  void Remember(First& first, Rest&... rest) {
    if (!IsToBeKept(&first)) return;
    try {
      Keep(&first, std::make_unique<KeptValues<First, Rest...>>(first, rest...));
    } catch (...) {
      ForgetSteps();
    }
  }

 protected:
  /// From now on what the user does can be taken back.
  void KeepSteps(std::unique_ptr<Edited> edited);
  /// Asked before the window is closed by its own button or Escape; false keeps it open.
  virtual bool MayClose() { return true; }

 private:
  [[nodiscard]] bool IsToBeKept(const void* place) const;
  void Keep(const void* place, std::unique_ptr<Kept> kept);
  void ForgetSteps();
  [[nodiscard]] Answer StepRefusal() const;
  [[noreturn]] void ThrowNoControl(std::string_view name) const;
  void Place(const Layout& layout, Widget* container, int page);

  Platform& platform_;
  std::string name_;
  std::string caption_;
  std::string not_a_choice_;
  std::string does_not_fit_;
  std::string edits_cell_words_;
  std::string disabled_words_;
  ContextWords context_words_;
  const Picture* icon_ = nullptr;
  Layout layout_;
  std::vector<Widget*> widgets_;
  Button* default_button_ = nullptr;
  Button* cancel_button_ = nullptr;
  const Widget* focus_sent_to_ = nullptr;
  WidgetView* view_ = nullptr;
  std::weak_ptr<const void> life_;
  std::unique_ptr<Gestures> gestures_;
  bool shown_ = false;
};

}  // namespace quorvel
