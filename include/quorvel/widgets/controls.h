#pragma once

#include <deque>
#include <string>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// A text that the user reads and cannot edit.
class QUORVEL_API Label : public Widget {
 public:
  Label(Dialog& dialog, std::string name, std::string caption = {});
  /// Captions that the label may come to have: it is as wide as the widest of them from the start,
  /// so that nothing moves when it changes.
  [[nodiscard]] const std::vector<std::string>& RoomFor() const { return room_for_; }
  void SetRoomFor(std::vector<std::string> captions);

 private:
  std::vector<std::string> room_for_;
};

/// A push button.
class QUORVEL_API Button : public Widget {
 public:
  Button(Dialog& dialog, std::string name, std::string caption = {});
  Answer Click();
  Handler on_click;
};

/// A box with a tick.
class QUORVEL_API CheckBox : public Widget {
 public:
  CheckBox(Dialog& dialog, std::string name, std::string caption = {});
  [[nodiscard]] bool Checked() const { return checked_; }
  [[nodiscard]] std::string ValueText() const override;
  void SetChecked(bool checked);
  /// Toggles the tick.
  Answer Click();
  Handler on_click;
  void RaiseChosen() override { Raise(on_click); }

 private:
  bool checked_ = false;
};

/// One of a group of options of which at most one is selected. The group is the control array that
/// holds the button.
class QUORVEL_API OptionButton : public Widget {
 public:
  using Group = std::deque<OptionButton>;
  OptionButton(Dialog& dialog, std::string name, std::string caption = {});
  [[nodiscard]] bool Selected() const { return selected_; }
  [[nodiscard]] std::string ValueText() const override;
  /// Selects this option and deselects the others of its group.
  void Select();
  /// Leaves its group without a selected option when this was it.
  void Deselect();
  Answer Click();
  Handler on_click;
  void RaiseChosen() override { Raise(on_click); }
  void JoinGroup(Group* group) { group_ = group; }
  /// The options of the group in their order, this one among them; none outside a control array.
  [[nodiscard]] Group* GetGroup() const { return group_; }

 private:
  void PutSelected(bool selected);
  void RedrawGroup() const;
  bool selected_ = false;
  Group* group_ = nullptr;
};

/// Progress from 0 to a maximum.
class QUORVEL_API ProgressBar : public Widget {
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
class QUORVEL_API StatusBar : public Widget {
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

}  // namespace quorvel
