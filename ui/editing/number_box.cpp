#include "ui/editing/number_box.h"

#include <algorithm>
#include <string_view>

#include "ui/editing/number_texts.h"

namespace quorvel {

NumberBox::NumberBox(TextBox& box, int least, int most, int otherwise)
    : box_(box), least_(least), most_(most), otherwise_(otherwise) {
  box_.on_change = [this] { Correct(); };
}

void NumberBox::Show(int number) { box_.SetText(std::to_string(number)); }

int NumberBox::Number() const { return ReadNumber(box_.Text()).value_or(otherwise_); }

void NumberBox::Correct() {
  // What is pasted often has blanks around it, or a sign before it.
  std::string_view text = box_.Text();
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  text = text.substr(0, text.find_last_not_of(' ') + 1);
  if (text.starts_with('+')) text.remove_prefix(1);
  const auto typed = ReadNumber(text);
  const int kept = typed ? std::clamp(*typed, least_, most_) : otherwise_;
  if (ReadNumber(box_.Text()) != kept) box_.RewriteText(std::to_string(kept));
}

PortBox::PortBox(TextBox& box, int least, int most, int otherwise)
    : NumberBox(box, least, most, otherwise) {
  constexpr int kMostDigits = 5;
  box.SetShownLength(kMostDigits);
  box.SetSelectOnFocus(kMostDigits);
  box.SetTakenWhenLeft(true);
}

}  // namespace quorvel
