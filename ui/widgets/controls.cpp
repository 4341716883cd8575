#include "quorvel/widgets/controls.h"

#include <algorithm>

#include "ui/widgets/gestures.h"

namespace quorvel {

Label::Label(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kLabel, std::move(name)) {
  SetCaption(std::move(caption));
}

void Label::SetRoomFor(std::vector<std::string> captions) {
  room_for_ = std::move(captions);
  Redraw(Aspect::kState);
}

Button::Button(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kButton, std::move(name)) {
  SetCaption(std::move(caption));
}

Answer Button::Click() {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  const Gesture gesture(*this);
  Raise(on_click);
  return refusal;
}

CheckBox::CheckBox(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kCheckBox, std::move(name)) {
  SetCaption(std::move(caption));
}

std::string CheckBox::ValueText() const { return checked_ ? "on" : "off"; }

void CheckBox::SetChecked(bool checked) {
  Remember(Aspect::kSelection, checked_);
  checked_ = checked;
  Redraw(Aspect::kSelection);
}

Answer CheckBox::Click() {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  const Gesture gesture(*this);
  SetChecked(!checked_);
  Raise(on_click);
  return refusal;
}

OptionButton::OptionButton(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kOptionButton, std::move(name)) {
  SetCaption(std::move(caption));
}

std::string OptionButton::ValueText() const { return selected_ ? "on" : "off"; }

/// The whole group is drawn anew: how an option is reached depends on where the selection is.
void OptionButton::Select() {
  if (group_ != nullptr) {
    for (OptionButton& option : *group_) option.PutSelected(false);
  }
  PutSelected(true);
  RedrawGroup();
}

void OptionButton::Deselect() {
  PutSelected(false);
  RedrawGroup();
}

void OptionButton::PutSelected(bool selected) {
  Remember(Aspect::kSelection, selected_);
  selected_ = selected;
}

void OptionButton::RedrawGroup() const {
  if (group_ == nullptr) return Redraw(Aspect::kSelection);
  for (const OptionButton& option : *group_) option.Redraw(Aspect::kSelection);
}

Answer OptionButton::Click() {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  const Gesture gesture(*this);
  Select();
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
