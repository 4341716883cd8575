#include "ui/editing/octet_boxes.h"

namespace quorvel {

OctetBoxes::OctetBoxes(ControlArray<TextBox>& boxes) : series_(boxes, TextSeries::Kind::kDotted) {
  constexpr int kMostDigits = 3;
  constexpr int kMostFirst = 223;  // higher ones are no host's address
  constexpr int kMost = 255;
  for (TextBox& box : boxes) {
    boxes_.emplace_back(box, 0, boxes_.empty() ? kMostFirst : kMost, 0);
    box.SetShownLength(kMostDigits);
    box.SetSelectOnFocus(TextBox::kWhole, true);
  }
}

Byte OctetBoxes::Octet(int place) const {
  return static_cast<Byte>(boxes_.at(static_cast<std::size_t>(place)).Number());
}

Layout Dotted(ControlArray<TextBox>& boxes, ControlArray<Label>& dots, int first_dot) {
  Layout row{Layout::Kind::kRow, nullptr, {}};
  for (int i = 0; i < boxes.Count(); ++i) {
    if (i > 0) {
      Label& dot = dots(first_dot + i - 1);
      dot.SetCaption(".");
      layout_detail::Add(row, dot);
    }
    layout_detail::Add(row, boxes(i));
  }
  return row;
}

}  // namespace quorvel
