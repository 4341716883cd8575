#pragma once

#include <climits>
#include <string>
#include <string_view>

#include "quorvel/export.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

class TextSeries;

/// One line of editable text.
class QUORVEL_API TextBox : public Widget {
 public:
  /// Selects a text of any length.
  static constexpr int kWhole = INT_MAX;
  TextBox(Dialog& dialog, std::string name);
  [[nodiscard]] const std::string& Text() const { return text_; }
  [[nodiscard]] std::string ValueText() const override { return text_; }
  /// Most characters that the user can type; 0 for no limit.
  [[nodiscard]] int MaxLength() const { return max_length_; }
  /// Characters that the box is wide: as set, else the maximum length; 0 for any width.
  [[nodiscard]] int ShownLength() const { return shown_length_ > 0 ? shown_length_ : max_length_; }
  /// True once the user has changed the text that the program set.
  [[nodiscard]] bool Edited() const { return edited_; }
  /// True when what is typed is handed over as a whole, once the user leaves the box, presses
  /// Return or a button; otherwise it is with every key.
  [[nodiscard]] bool TakenWhenLeft() const { return taken_when_left_; }
  /// Characters from the start of the text that are selected, so that typing replaces them.
  [[nodiscard]] int SelectedCharacters() const { return selected_; }

  /// What of the last typing the box did not take, for a note to the user.
  struct LeftOut {
    bool controls = false;  ///< control characters, line ends among them
    bool lines = false;     ///< pasted lines for which the series had no box
  };
  [[nodiscard]] const LeftOut& NotTaken() const { return not_taken_; }
  /// What there is to say of the text, for screen readers beside the box's name; the window shows
  /// it in a label. Empty for nothing.
  [[nodiscard]] const std::string& Note() const { return note_; }
  /// The character that goes on to the next box of the series when it is typed, or 0.
  [[nodiscard]] char GoesOnWith() const;

  void SetNote(std::string note);
  /// Makes the box one of a series, which takes what is typed into it from then on.
  void JoinSeries(TextSeries* series) { series_ = series; }
  void SetMaxLength(int characters);
  /// Width of a box whose maximum length does not say it.
  void SetShownLength(int characters);
  void SetTakenWhenLeft(bool whole);
  /// Characters from the start that are selected when the box gets the focus, 0 for none; with
  /// `on_click` at every click too.
  void SetSelectOnFocus(int characters, bool on_click = false);
  /// Sets the text, even beyond the maximum length; the box counts as not edited.
  void SetText(std::string text);
  /// Rewrites what the user has typed, from a change handler; the box stays edited. One that
  /// selects on focus selects the new text, so that the next key replaces it.
  void RewriteText(std::string text);

  /// Replaces the whole text, as a user does who selects it and types, or who types elsewhere in
  /// it: `after` is what stands behind the cursor then. Characters before the cursor that do not
  /// fit into the maximum length are not taken, and control characters only where the box holds
  /// them already. In a series the text may be for several boxes.
  Answer Type(std::string_view text, std::string_view after = {});
  Handler on_change;

 private:
  friend class TextSeries;
  void TakeFocus(bool by_click) override;
  void RememberText();
  /// Bytes at the start of a text that the box holds as well: what was typed comes behind them.
  [[nodiscard]] std::size_t HeldBefore(std::string_view text) const;
  void Take(std::string_view text, std::string_view after, bool lines_left_over = false);
  void Put(std::string text, int selected);

  std::string text_;
  std::string note_;
  LeftOut not_taken_;
  TextSeries* series_ = nullptr;
  int max_length_ = 0;
  int shown_length_ = 0;
  int select_on_focus_ = 0;
  int selected_ = 0;
  bool select_on_click_ = false;
  bool taken_when_left_ = false;
  bool edited_ = false;
};

}  // namespace quorvel
