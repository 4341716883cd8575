#include "quorvel/widgets/text_box.h"

#include <algorithm>

#include "ui/widgets/utf8.h"

namespace quorvel {

namespace {

/// The first `count` characters of a UTF-8 text.
std::string_view FirstCharacters(std::string_view text, int count) {
  std::size_t end = 0;
  for (int taken = 0; end < text.size(); ++end) {
    if (StartsCharacter(text[end]) && taken++ == count) break;
  }
  return text.substr(0, end);
}

}  // namespace

TextBox::TextBox(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kTextBox, std::move(name)) {}

void TextBox::SetMaxLength(int characters) {
  max_length_ = characters;
  Redraw(Aspect::kState);
}

void TextBox::SetShownLength(int characters) {
  shown_length_ = characters;
  Redraw(Aspect::kState);
}

void TextBox::SetTakenWhenLeft(bool whole) {
  taken_when_left_ = whole;
  Redraw(Aspect::kState);
}

void TextBox::SetSelectOnFocus(int characters, bool on_click) {
  select_on_focus_ = characters;
  select_on_click_ = on_click;
}

void TextBox::Put(std::string text, int selected) {
  text_ = std::move(text);
  selected_ = std::min(selected, CountCharacters(text_));
  Redraw(Aspect::kSelection);
}

void TextBox::SetText(std::string text) {
  edited_ = false;
  Put(std::move(text), 0);
}

void TextBox::RewriteText(std::string text) { Put(std::move(text), select_on_focus_); }

void TextBox::TakeFocus(bool by_click) {
  selected_ =
      by_click && !select_on_click_ ? 0 : std::min(select_on_focus_, CountCharacters(text_));
  Redraw(Aspect::kSelection);
}

Answer TextBox::Type(std::string_view text) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  edited_ = true;
  Put(std::string(max_length_ > 0 ? FirstCharacters(text, max_length_) : text), 0);
  Raise(on_change);
  return refusal;
}

}  // namespace quorvel
