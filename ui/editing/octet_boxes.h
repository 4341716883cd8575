#pragma once

#include <deque>

#include "quorvel/byte.h"
#include "quorvel/widgets.h"
#include "ui/editing/number_box.h"

namespace quorvel {

/// The four boxes of a dotted address. Typing keeps them numbers that an address can hold: 0 to 223
/// in the first, 0 to 255 in the others. A box is selected whole by focus and by every click. "."
/// goes on to the next box, and a pasted address fills all four.
class OctetBoxes {
 public:
  explicit OctetBoxes(ControlArray<TextBox>& boxes);

  /// Shows a number of the address, 0-based; what the first box could not be given by typing, too.
  void Show(int place, Byte value) { At(place).Show(value); }
  [[nodiscard]] Byte Octet(int place) const;

 private:
  [[nodiscard]] NumberBox& At(int place) { return boxes_.at(static_cast<std::size_t>(place)); }

  TextSeries series_;
  std::deque<NumberBox> boxes_;
};

/// Boxes in a row with dots between them, `first_dot` the first of theirs.
[[nodiscard]] Layout Dotted(ControlArray<TextBox>& boxes, ControlArray<Label>& dots,
                            int first_dot = 0);

}  // namespace quorvel
