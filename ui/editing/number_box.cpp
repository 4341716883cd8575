#include "ui/editing/number_box.h"

#include <algorithm>

#include "ui/editing/number_texts.h"

namespace quorvel {

NumberBox::NumberBox(TextBox& box, int least, int most, int otherwise)
    : box_(box), least_(least), most_(most), otherwise_(otherwise) {
  box_.on_change = [this] { Correct(); };
}

void NumberBox::Show(int number) { box_.SetText(std::to_string(number)); }

int NumberBox::Number() const { return ReadNumber(box_.Text()).value_or(otherwise_); }

void NumberBox::Correct() {
  const auto typed = ReadNumber(box_.Text());
  const int kept = typed ? std::clamp(*typed, least_, most_) : otherwise_;
  if (typed != kept) box_.RewriteText(std::to_string(kept));
}

PortBox::PortBox(TextBox& box, int least, int most, int otherwise)
    : NumberBox(box, least, most, otherwise) {
  constexpr int kMostDigits = 5;
  box.SetShownLength(kMostDigits);
  box.SetSelectOnFocus(kMostDigits);
  box.SetTakenWhenLeft(true);
}

}  // namespace quorvel
