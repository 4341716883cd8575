#pragma once

#include "quorvel/widgets.h"

namespace quorvel {

/// A text box that holds a whole number: what is typed otherwise becomes another number, one
/// outside the limits the nearest limit. Takes the box's on_change for itself.
class NumberBox {
 public:
  NumberBox(TextBox& box, int least, int most, int otherwise);
  NumberBox(const NumberBox&) = delete;
  NumberBox& operator=(const NumberBox&) = delete;
  ~NumberBox() = default;

  /// Shows a number, also one outside the limits, which stays until the user types.
  void Show(int number);
  /// The number that the box shows.
  [[nodiscard]] int Number() const;

 private:
  void Correct();

  TextBox& box_;
  int least_;
  int most_;
  int otherwise_;
};

/// A number box for a port: taken as a whole when it is left, its digits selected when it gets the
/// focus.
class PortBox : public NumberBox {
 public:
  PortBox(TextBox& box, int least, int most, int otherwise);
};

}  // namespace quorvel
