#pragma once

#include <deque>
#include <string>
#include <vector>

#include "quorvel/widgets/widget.h"

namespace quorvel {

/// A text that nobody edits.
class Label : public Widget {
 public:
  Label(Dialog& dialog, std::string name, std::string caption = {});
};

/// A push button.
class Button : public Widget {
 public:
  Button(Dialog& dialog, std::string name, std::string caption = {});
  Answer Click();
  Handler on_click;
};

/// A box with a tick.
class CheckBox : public Widget {
 public:
  CheckBox(Dialog& dialog, std::string name, std::string caption = {});
  [[nodiscard]] bool Checked() const { return checked_; }
  [[nodiscard]] std::string ValueText() const override;
  void SetChecked(bool checked);
  /// Toggles the tick.
  Answer Click();
  Handler on_click;

 private:
  bool checked_ = false;
};

/// One of a group of options of which at most one is selected. The group is the control array that
/// holds the button.
class OptionButton : public Widget {
 public:
  using Group = std::deque<OptionButton>;
  OptionButton(Dialog& dialog, std::string name, std::string caption = {});
  [[nodiscard]] bool Selected() const { return selected_; }
  [[nodiscard]] std::string ValueText() const override;
  /// Selects this option and deselects the others of its group.
  void Select();
  Answer Click();
  Handler on_click;
  void JoinGroup(Group* group) { group_ = group; }

 private:
  void Set(bool selected);
  bool selected_ = false;
  Group* group_ = nullptr;
};

/// One line of editable text.
class TextBox : public Widget {
 public:
  TextBox(Dialog& dialog, std::string name);
  [[nodiscard]] const std::string& Text() const { return text_; }
  [[nodiscard]] std::string ValueText() const override { return text_; }
  /// Most characters that a person can type; 0 for no limit.
  [[nodiscard]] int MaxLength() const { return max_length_; }
  /// True once a person has changed the text that the program set.
  [[nodiscard]] bool Edited() const { return edited_; }

  void SetMaxLength(int characters);
  /// Sets the text, even beyond the maximum length; the box counts as not edited.
  void SetText(std::string text);
  /// Rewrites what a person has typed, from a change handler; the box stays edited.
  void RewriteText(std::string text);

  /// Replaces the whole text, as somebody does who selects it and types. Characters beyond the
  /// maximum length do not fit and are not taken.
  Answer Type(std::string_view text);
  Handler on_change;

 private:
  std::string text_;
  int max_length_ = 0;
  bool edited_ = false;
};

/// A list of which one item, or none, is current.
class ListBox : public Widget {
 public:
  static constexpr int kNone = -1;
  ListBox(Dialog& dialog, std::string name);
  [[nodiscard]] const std::vector<std::string>& Items() const { return items_; }
  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  /// The current item, 0-based, or kNone.
  [[nodiscard]] int Current() const { return current_; }
  /// Text of the current item; empty when there is none.
  [[nodiscard]] const std::string& CurrentText() const;
  /// First item with this text, or kNone.
  [[nodiscard]] int IndexOf(std::string_view text) const;
  [[nodiscard]] std::string ValueText() const override;

  /// Replaces the items; none is current.
  void SetItems(std::vector<std::string> items);
  /// Makes an item current; an index that is not in the list makes it none.
  void Select(int index);

  /// A click on item `index`, also on the current one.
  Answer Choose(int index);
  Handler on_click;

 private:
  std::vector<std::string> items_;
  int current_ = kNone;
};

/// Progress from 0 to a maximum.
class ProgressBar : public Widget {
 public:
  ProgressBar(Dialog& dialog, std::string name);
  [[nodiscard]] int Maximum() const { return maximum_; }
  [[nodiscard]] int Value() const { return value_; }
  [[nodiscard]] std::string ValueText() const override;
  void SetMaximum(int maximum);
  /// Values outside 0 to the maximum are taken as the nearest one inside.
  void SetValue(int value);

 private:
  int maximum_ = 100;
  int value_ = 0;
};

/// A line of text panels, numbered from 1.
class StatusBar : public Widget {
 public:
  StatusBar(Dialog& dialog, std::string name, int panels);
  [[nodiscard]] int Panels() const { return static_cast<int>(texts_.size()); }
  [[nodiscard]] const std::string& Panel(int number) const { return texts_.at(Place(number)); }
  [[nodiscard]] std::string ValueText() const override;
  void SetPanel(int number, std::string text);

 private:
  static std::size_t Place(int number) { return static_cast<std::size_t>(number) - 1; }
  std::vector<std::string> texts_;
};

/// Controls under one name, told apart by a 0-based index: `m_CameraTitle(3)`. Option buttons of an
/// array form a group.
template <class Control>
class ControlArray {
 public:
  ControlArray(Dialog& dialog, const std::string& name, int count) {
    for (int i = 0; i < count; ++i) {
      auto& control = controls_.emplace_back(dialog, name + "(" + std::to_string(i) + ")");
      if constexpr (std::is_same_v<Control, OptionButton>) control.JoinGroup(&controls_);
    }
  }
  ControlArray(const ControlArray&) = delete;
  ControlArray& operator=(const ControlArray&) = delete;
  ~ControlArray() = default;

  [[nodiscard]] Control& operator()(int i) { return controls_.at(static_cast<std::size_t>(i)); }
  [[nodiscard]] const Control& operator()(int i) const {
    return controls_.at(static_cast<std::size_t>(i));
  }
  [[nodiscard]] int Count() const { return static_cast<int>(controls_.size()); }
  [[nodiscard]] auto begin() { return controls_.begin(); }
  [[nodiscard]] auto end() { return controls_.end(); }

 private:
  std::deque<Control> controls_;
};

}  // namespace quorvel
