#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "quorvel/export.h"
#include "quorvel/widgets/kept.h"

namespace quorvel {

class Dialog;
class Label;

/// What a user verb answers. A verb that is refused changes nothing and calls no handler.
enum class Answer {
  kDone,
  kHidden,       ///< the control, or a frame or page around it, is not on screen
  kDisabled,     ///< the control, or its dialog behind a modal one, takes no input
  kNoSuchPlace,  ///< no such row, column, item or page, or one that cannot be picked
  kNotAChoice,   ///< a pasted text or picked value that the control does not offer
  kOutdated,     ///< a menu's settings are gone: other data has arrived since it was made
  // By name (NamedUser):
  kNoSuchControl,  ///< no window on screen has a control of that name
  kOtherKind,      ///< the control knows no such verb
};

/// The answer in words, for scripts and messages.
[[nodiscard]] QUORVEL_API const char* Describe(Answer answer);

/// What of a widget changed, so that a view redraws no more than needed.
enum class Aspect {
  kState,      ///< caption, spoken name and note, visible, enabled, limits
  kContent,    ///< items, cells, pages
  kSelection,  ///< value, selected item, current cell or page
};

/// A toolkit's drawing of one widget or dialog. The model calls it after every change.
class QUORVEL_API WidgetView {
 public:
  virtual ~WidgetView() = default;
  virtual void Refresh(Aspect what) = 0;
};

enum class WidgetKind {
  kLabel,
  kButton,
  kCheckBox,
  kOptionButton,
  kTextBox,
  kListBox,
  kComboBox,
  kSlider,
  kTimePicker,
  kDatePicker,
  kGrid,
  kTabStrip,
  kFrame,
  kProgressBar,
  kStatusBar,
};

/// The kind in words: "text box".
[[nodiscard]] QUORVEL_API const char* KindName(WidgetKind kind);

using Handler = std::function<void()>;

/// What the user has changed since the window opened.
struct ChangeMark {
  std::string was;   ///< how it read then; empty also where that is not told
  std::string note;  ///< the change in words, for screen readers
  bool operator==(const ChangeMark&) const = default;
};

/// A control of a dialog: its state and value, without any drawing.
///
/// Program verbs (SetCaption, SetText, Select, ...) change the model and redraw; they never call
/// handlers. User verbs (Click, Choose, Type, Press, ...) do what the user does, call the handlers,
/// and are refused by a control that is hidden or disabled. Toolkits and tests use user verbs only.
/// A user verb may end with the dialog destroyed; its caller must not touch the widget afterwards.
///
/// All texts are UTF-8.
class QUORVEL_API Widget {
 public:
  /// Registers the widget with its dialog. `name` is the control's name in the code; an element of
  /// an array is named with its index, as in "opt_AlLatch(2)".
  Widget(Dialog& dialog, WidgetKind kind, std::string name);
  virtual ~Widget() = default;
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  [[nodiscard]] WidgetKind Kind() const { return kind_; }
  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] Dialog& Owner() const { return dialog_; }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  [[nodiscard]] bool Visible() const { return visible_; }
  [[nodiscard]] bool Enabled() const { return enabled_; }

  /// Visible, in visible containers, on the page in front.
  [[nodiscard]] bool Showing() const;
  /// True when its place stays empty while it is hidden, so that nothing moves when it comes and
  /// goes; otherwise the space is closed up.
  [[nodiscard]] bool KeepsPlace() const { return keeps_place_; }
  /// What screen readers call the control: the name given to it, else its caption, else that of its
  /// label, else that of the nearest captioned frame around it, else its name in the code.
  [[nodiscard]] const std::string& SpokenName() const;
  /// The caption of its label, else that of the nearest captioned frame around it, else its name in
  /// the code: what the control is called apart from its own caption.
  [[nodiscard]] const std::string& SurroundingCaption() const;
  /// The label that names the control, or none.
  [[nodiscard]] const Widget* NamingLabel() const { return label_; }
  /// The caption of the page that holds the control; empty outside pages.
  [[nodiscard]] std::string PageCaption() const;
  /// True for a control that edits the current cell of a grid. Views mark it, not by colour alone.
  [[nodiscard]] bool EditsCell() const { return edits_cell_; }
  /// Why the control is disabled, in words; empty while it is enabled, or for want of a reason.
  [[nodiscard]] const std::string& WhyDisabled() const;
  /// What the user has changed of it; nothing while it is as it was when the window opened. Of a
  /// grid, see its cells. Views mark it, not by colour alone.
  [[nodiscard]] const std::optional<ChangeMark>& Change() const { return change_; }
  /// What screen readers add to the name: why it is disabled, of a control that edits the current
  /// cell the dialog's words for it and the column, of a changed one what it was.
  [[nodiscard]] std::string SpokenNote() const;
  /// What the user can change, as one line of text: "" for kinds without a value.
  [[nodiscard]] virtual std::string ValueText() const { return {}; }

  void SetCaption(std::string caption);
  void SetVisible(bool visible);
  /// `why` it is disabled; empty for the dialog's usual reason.
  void SetEnabled(bool enabled, std::string why = {});
  void SetKeepsPlace(bool keeps);
  /// Turns the pages that the control is on over.
  void BringToFront();
  void SetSpokenName(std::string name);
  /// The label that names the control.
  void SetLabel(const Label& label);
  /// Whether the control edits the current cell of a grid, and its column's name.
  void SetEditsCell(bool edits, std::string column = {});

  /// Marks the control as changed, or with nothing as it was.
  void SetChange(std::optional<ChangeMark> change);

  /// The keyboard focus comes here; `by_click`, the user clicks where it is already.
  Answer Focus(bool by_click = false);

  /// The view that draws this widget, or none. The view detaches itself before it goes.
  void AttachView(WidgetView* view) { view_ = view; }

  /// The frame or tab strip that holds the widget, none at the top; set by the dialog's layout.
  void PlaceIn(Widget* container, int page) {
    container_ = container;
    page_ = page;
  }
  /// What PlaceIn has said.
  [[nodiscard]] Widget* Container() const { return container_; }
  [[nodiscard]] int PageInContainer() const { return page_; }

  /// Raises the handler that follows a choice of the user's; nothing where a choice has no other
  /// consequence than the value.
  virtual void RaiseChosen() {}
  /// Draws it anew after values were put back; `what` is the aspect of theirs.
  void DrawAgain(Aspect what) const;

 protected:
  friend class Dialog;
  /// Called before these values change, always the same together. What the user does can be taken
  /// back: the first call of a gesture keeps them. `what` is the aspect that shows them.
  template <class First, class... Rest>
  void Remember(Aspect what, First& first, Rest&... rest) {
    if (!IsToBeKept(&first)) return;
    try {
      Keep(&first, std::make_unique<KeptValues<First, Rest...>>(first, rest...), what);
    } catch (...) {
      ForgetSteps();
    }
  }
  [[nodiscard]] Answer Refusal() const;
  void Redraw(Aspect what) const {
    if (view_ != nullptr) view_->Refresh(what);
  }
  /// Calls a handler of this widget as the dialog's edge does: no failure leaves it.
  void Raise(const Handler& handler);
  /// What a kind does when it gets the focus.
  virtual void TakeFocus(bool /*by_click*/) {}

 private:
  [[nodiscard]] bool IsInside(const Widget& container) const;
  [[nodiscard]] bool IsToBeKept(const void* place) const;
  void Keep(const void* place, std::unique_ptr<Kept> kept, Aspect what);
  void ForgetSteps();

  Dialog& dialog_;
  WidgetKind kind_;
  std::string name_;
  std::string caption_;
  std::string spoken_name_;
  bool visible_ = true;
  bool enabled_ = true;
  bool keeps_place_ = false;
  std::string why_disabled_;
  bool edits_cell_ = false;
  std::string edited_column_;
  std::optional<ChangeMark> change_;
  WidgetView* view_ = nullptr;
  const Widget* label_ = nullptr;
  Widget* container_ = nullptr;
  int page_ = -1;
};

}  // namespace quorvel
