#pragma once

#include <deque>
#include <initializer_list>
#include <string>
#include <type_traits>

#include "quorvel/widgets/controls.h"

namespace quorvel {

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
  /// Shows the first `count` controls and hides the rest.
  void ShowFirst(int count) {
    for (int i = 0; i < Count(); ++i) (*this)(i).SetVisible(i < count);
  }
  /// Enables or disables all of them; `why`, see Widget::SetEnabled.
  void SetEnabled(bool enabled, const std::string& why = {}) {
    for (Control& control : controls_) control.SetEnabled(enabled, why);
  }
  /// Captions the controls in their order.
  void SetCaptions(std::initializer_list<std::string> captions) {
    int i = 0;
    for (const std::string& caption : captions) (*this)(i++).SetCaption(caption);
  }

  /// Names the controls for screen readers by their captions, or else by their numbers: "Buzzer
  /// ON", "Covert 2".
  void SetSpokenNames(const std::string& what) {
    for (int i = 0; i < Count(); ++i) {
      const std::string& caption = (*this)(i).Caption();
      (*this)(i).SetSpokenName(what + " " + (caption.empty() ? std::to_string(i + 1) : caption));
    }
  }

  /// Index of the option that is selected, hidden and disabled ones included, or kNone.
  static constexpr int kNone = -1;
  [[nodiscard]] int Selected() const requires std::is_same_v<Control, OptionButton> {
    for (int i = 0; i < Count(); ++i) {
      if ((*this)(i).Selected()) return i;
    }
    return kNone;
  }
  /// Selects an option; an index that is not in the group leaves none selected.
  void Select(int index) requires std::is_same_v<Control, OptionButton> {
    for (int i = 0; i < Count(); ++i) {
      if (i != index) (*this)(i).Deselect();
    }
    if (index >= 0 && index < Count()) (*this)(index).Select();
  }

  [[nodiscard]] auto begin() { return controls_.begin(); }
  [[nodiscard]] auto end() { return controls_.end(); }
  [[nodiscard]] auto begin() const { return controls_.begin(); }
  [[nodiscard]] auto end() const { return controls_.end(); }

 private:
  std::deque<Control> controls_;
};

}  // namespace quorvel
