#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/dialog.h"

namespace quorvel {

/// What became of a verb, and in words what was refused and why: "cmd_OK is disabled".
struct VerbAnswer {
  Answer answer = Answer::kDone;
  std::string cause;  ///< empty when it was done
};

/// A user who knows windows and controls by their names in the code: for scripts, tests, and hosts
/// in other languages. A control is named as CONTROL or WINDOW.CONTROL; without a window it is the
/// one in the frontmost window that has a control of that name, what the user means by it.
///
/// The verbs are those of the widgets. Besides, they answer kNoSuchControl, and kOtherKind for a
/// control that knows no such verb.
class QUORVEL_API NamedUser {
 public:
  /// `windows` are those on screen, the one in front last; they may change while the user acts.
  explicit NamedUser(const std::vector<Dialog*>& windows) : windows_(windows) {}

  /// The window of that name, the frontmost of several, or a null pointer; without a name the one
  /// in front.
  [[nodiscard]] Dialog* FindWindow(std::string_view name) const;
  /// Why FindWindow has found none.
  [[nodiscard]] static std::string NoWindow(std::string_view name);
  /// The control of that name, or a null pointer.
  [[nodiscard]] Widget* FindControl(std::string_view name) const;
  /// Why FindControl has found none.
  [[nodiscard]] std::string NotFound(std::string_view name) const;

  /// Buttons, check boxes, options.
  VerbAnswer Click(std::string_view control) const;
  VerbAnswer Type(std::string_view box, std::string_view text) const;
  /// Clicks on an item, 0-based, of a list or drop-down list.
  VerbAnswer Select(std::string_view list, int item) const;
  VerbAnswer Slide(std::string_view slider, int value) const;
  /// A time as "07:45" or "07:45:30", a date as "2024-02-29".
  VerbAnswer Pick(std::string_view picker, std::string_view text) const;
  VerbAnswer TurnPage(std::string_view tabs, int page) const;

  // Grids. Rows count the header.
  VerbAnswer Press(std::string_view grid, int row, int column) const;
  VerbAnswer Release(std::string_view grid, int first, int last) const;
  /// Presses in row `first` and releases in row `last`.
  VerbAnswer Drag(std::string_view grid, int column, int first, int last) const;
  VerbAnswer Mark(std::string_view grid, int row) const;
  VerbAnswer Empty(std::string_view grid) const;
  VerbAnswer Paste(std::string_view grid, std::string_view lines) const;

  /// The window's own close button; without a name that of the window in front.
  VerbAnswer CloseWindow(std::string_view name = {}) const;
  /// Takes back what the user has done last in an editor, or does it again; without a name in the
  /// window in front.
  VerbAnswer Undo(std::string_view window = {}) const;
  VerbAnswer Redo(std::string_view window = {}) const;
  /// Puts back what a control edits: see Dialog::PutBack. In a grid, a cell that is pressed first.
  VerbAnswer PutBack(std::string_view control, PutBackTo to = PutBackTo::kOpened) const;
  VerbAnswer PutBackCell(std::string_view grid, int row, int column,
                         PutBackTo to = PutBackTo::kOpened) const;

 private:
  const std::vector<Dialog*>& windows_;
};

/// What there is to choose from: the items of a list, the captions of pages, the panels of a status
/// bar. Empty for other kinds.
[[nodiscard]] QUORVEL_API std::vector<std::string> ItemsOf(const Widget& widget);

}  // namespace quorvel
