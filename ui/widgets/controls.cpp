#include "quorvel/widgets/controls.h"

#include <algorithm>

namespace quorvel {

namespace {

/// The first `count` characters of a UTF-8 text.
std::string_view FirstCharacters(std::string_view text, int count) {
  std::size_t end = 0;
  for (int taken = 0; end < text.size(); ++end) {
    const bool starts_character = (static_cast<unsigned char>(text[end]) & 0xC0U) != 0x80U;
    if (starts_character && taken++ == count) break;
  }
  return text.substr(0, end);
}

}  // namespace

Label::Label(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kLabel, std::move(name)) {
  SetCaption(std::move(caption));
}

Button::Button(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kButton, std::move(name)) {
  SetCaption(std::move(caption));
}

Answer Button::Click() {
  const Answer refusal = Refusal();
  if (refusal == Answer::kDone) Raise(on_click);
  return refusal;
}

CheckBox::CheckBox(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kCheckBox, std::move(name)) {
  SetCaption(std::move(caption));
}

std::string CheckBox::ValueText() const { return checked_ ? "on" : "off"; }

void CheckBox::SetChecked(bool checked) {
  checked_ = checked;
  Redraw(Aspect::kSelection);
}

Answer CheckBox::Click() {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  SetChecked(!checked_);
  Raise(on_click);
  return refusal;
}

OptionButton::OptionButton(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kOptionButton, std::move(name)) {
  SetCaption(std::move(caption));
}

std::string OptionButton::ValueText() const { return selected_ ? "on" : "off"; }

void OptionButton::Set(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  Redraw(Aspect::kSelection);
}

void OptionButton::Select() {
  if (group_ != nullptr) {
    for (OptionButton& option : *group_) {
      if (&option != this) option.Set(false);
    }
  }
  Set(true);
}

Answer OptionButton::Click() {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  Select();
  Raise(on_click);
  return refusal;
}

TextBox::TextBox(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kTextBox, std::move(name)) {}

void TextBox::SetMaxLength(int characters) {
  max_length_ = characters;
  Redraw(Aspect::kState);
}

void TextBox::SetText(std::string text) {
  edited_ = false;
  RewriteText(std::move(text));
}

void TextBox::RewriteText(std::string text) {
  text_ = std::move(text);
  Redraw(Aspect::kSelection);
}

Answer TextBox::Type(std::string_view text) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  edited_ = true;
  RewriteText(std::string(max_length_ > 0 ? FirstCharacters(text, max_length_) : text));
  Raise(on_change);
  return refusal;
}

ListBox::ListBox(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kListBox, std::move(name)) {}

const std::string& ListBox::CurrentText() const {
  static const std::string none;
  return current_ == kNone ? none : items_[static_cast<std::size_t>(current_)];
}

int ListBox::IndexOf(std::string_view text) const {
  const auto found = std::find(items_.begin(), items_.end(), text);
  return found == items_.end() ? kNone : static_cast<int>(found - items_.begin());
}

std::string ListBox::ValueText() const {
  if (current_ == kNone) return "none of " + std::to_string(Count());
  return std::to_string(current_) + " \"" + CurrentText() + "\" of " + std::to_string(Count());
}

void ListBox::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  current_ = kNone;
  Redraw(Aspect::kContent);
}

void ListBox::Select(int index) {
  current_ = index >= 0 && index < Count() ? index : kNone;
  Redraw(Aspect::kSelection);
}

Answer ListBox::Choose(int index) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (index < 0 || index >= Count()) return Answer::kNoSuchPlace;
  Select(index);
  Raise(on_click);
  return refusal;
}

ProgressBar::ProgressBar(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kProgressBar, std::move(name)) {}

std::string ProgressBar::ValueText() const {
  return std::to_string(value_) + " of " + std::to_string(maximum_);
}

void ProgressBar::SetMaximum(int maximum) {
  maximum_ = std::max(maximum, 0);
  value_ = std::min(value_, maximum_);
  Redraw(Aspect::kState);
}

void ProgressBar::SetValue(int value) {
  value_ = std::clamp(value, 0, maximum_);
  Redraw(Aspect::kSelection);
}

StatusBar::StatusBar(Dialog& dialog, std::string name, int panels)
    : Widget(dialog, WidgetKind::kStatusBar, std::move(name)),
      texts_(static_cast<std::size_t>(panels)) {}

std::string StatusBar::ValueText() const {
  std::string line;
  for (const std::string& text : texts_) line += (line.empty() ? "\"" : " | \"") + text + "\"";
  return line;
}

void StatusBar::SetPanel(int number, std::string text) {
  texts_.at(Place(number)) = std::move(text);
  Redraw(Aspect::kSelection);
}

}  // namespace quorvel
