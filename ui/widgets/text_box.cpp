#include "quorvel/widgets/text_box.h"

#include <algorithm>

#include "quorvel/widgets/text_series.h"
#include "ui/widgets/gestures.h"
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

/// Bytes of the control character that a text begins with; 0 when it begins with another one.
std::size_t ControlAtStart(std::string_view text) {
  const auto byte = static_cast<unsigned char>(text[0]);
  if (byte < 0x20U || byte == 0x7FU) return 1;
  const bool high = byte == 0xC2U && text.size() > 1 && !StartsCharacter(text[1]) &&
                    static_cast<unsigned char>(text[1]) < 0xA0U;
  return high ? 2 : 0;
}

std::string WithoutControls(std::string_view text) {
  std::string kept;
  while (!text.empty()) {
    const std::size_t control = ControlAtStart(text);
    if (control == 0) kept += text[0];
    text.remove_prefix(std::max<std::size_t>(control, 1));
  }
  return kept;
}

}  // namespace

TextBox::TextBox(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kTextBox, std::move(name)) {}

char TextBox::GoesOnWith() const { return series_ == nullptr ? '\0' : series_->GoesOnWith(); }

void TextBox::SetNote(std::string note) {
  Remember(Aspect::kState, note_);
  note_ = std::move(note);
  Redraw(Aspect::kState);
}

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
  RememberText();
  text_ = std::move(text);
  selected_ = std::min(selected, CountCharacters(text_));
  Redraw(Aspect::kSelection);
}

void TextBox::SetText(std::string text) {
  RememberText();
  edited_ = false;
  Put(std::move(text), 0);
}

void TextBox::RewriteText(std::string text) { Put(std::move(text), select_on_focus_); }

void TextBox::RememberText() {
  Remember(Aspect::kSelection, text_, selected_, edited_, not_taken_);
}

void TextBox::TakeFocus(bool by_click) {
  RememberText();
  selected_ =
      by_click && !select_on_click_ ? 0 : std::min(select_on_focus_, CountCharacters(text_));
  Redraw(Aspect::kSelection);
}

std::size_t TextBox::HeldBefore(std::string_view text) const {
  const auto end = std::ranges::mismatch(text, text_).in1;
  return static_cast<std::size_t>(end - text.begin());
}

void TextBox::Take(std::string_view text, std::string_view after, bool lines_left_over) {
  const std::string behind = text_.ends_with(after) ? std::string(after) : WithoutControls(after);
  std::string_view fresh = text.substr(HeldBefore(text));
  const std::string before(text.substr(0, text.size() - fresh.size()));
  if (fresh.ends_with('\n')) fresh.remove_suffix(1);  // a line is often copied with its end
  if (fresh.ends_with('\r')) fresh.remove_suffix(1);
  const std::string typed = WithoutControls(fresh);
  RememberText();
  not_taken_ = {typed.size() < fresh.size() || behind.size() < after.size(), lines_left_over};
  std::string kept = before + typed;
  if (max_length_ > 0) {
    kept = FirstCharacters(kept, std::max(max_length_ - CountCharacters(behind), 0));
  }
  kept += behind;
  edited_ = true;
  Put(std::string(max_length_ > 0 ? FirstCharacters(kept, max_length_) : kept), 0);
  Raise(on_change);
}

Answer TextBox::Type(std::string_view text, std::string_view after) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  const Gesture gesture(*this, Gesture::Kind::kGoesOn);
  if (series_ == nullptr || !series_->Spread(*this, text, after)) Take(text, after);
  return refusal;
}

}  // namespace quorvel
