#pragma once

#include <string>

#include "quorvel/export.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// A handle on a scale of whole numbers.
class QUORVEL_API Slider : public Widget {
 public:
  Slider(Dialog& dialog, std::string name);
  [[nodiscard]] int Minimum() const { return minimum_; }
  [[nodiscard]] int Maximum() const { return maximum_; }
  /// What an arrow key moves the handle by, and what a page key does.
  [[nodiscard]] int Step() const { return step_; }
  [[nodiscard]] int LargeStep() const { return large_step_; }
  [[nodiscard]] int Value() const { return value_; }
  /// True once the user has moved the handle, be it to where it stood.
  [[nodiscard]] bool Edited() const { return edited_; }
  [[nodiscard]] std::string ValueText() const override;

  /// Sets the ends of the scale, a maximum below the minimum being the minimum. The value stays.
  void SetRange(int minimum, int maximum);
  void SetSteps(int step, int large_step);
  /// Sets the value; one outside the scale is kept and drawn at the nearest end. The slider counts
  /// as not edited.
  void SetValue(int value);

  /// Moves the handle to a value of the scale, also to the present one.
  Answer Slide(int value);
  Handler on_change;

 private:
  int minimum_ = 0;
  int maximum_ = 100;
  int step_ = 1;
  int large_step_ = 5;
  int value_ = 0;
  bool edited_ = false;
};

}  // namespace quorvel
