#include "quorvel/widgets/choice.h"

#include <algorithm>

#include "ui/widgets/gestures.h"

namespace quorvel {

const std::string& ChoiceWidget::CurrentText() const {
  static const std::string none;
  return current_ == kNone ? none : items_.at(static_cast<std::size_t>(current_));
}

int ChoiceWidget::IndexOf(std::string_view text) const {
  const auto found = std::find(items_.begin(), items_.end(), text);
  return found == items_.end() ? kNone : static_cast<int>(found - items_.begin());
}

std::string ChoiceWidget::ValueText() const {
  if (current_ == kNone) return "none of " + std::to_string(Count());
  return std::to_string(current_) + " \"" + CurrentText() + "\" of " + std::to_string(Count());
}

void ChoiceWidget::SetItems(std::vector<std::string> items) {
  Remember(Aspect::kContent, items_);
  Remember(Aspect::kSelection, current_);
  items_ = std::move(items);
  current_ = kNone;
  Redraw(Aspect::kContent);
}

void ChoiceWidget::Select(int index) {
  Remember(Aspect::kSelection, current_);
  current_ = index >= 0 && index < Count() ? index : kNone;
  Redraw(Aspect::kSelection);
}

Answer ChoiceWidget::Choose(int index) { return Take(index, Step::kOfItsOwn); }

Answer ChoiceWidget::MoveOnTo(int index) { return Take(index, Step::kGoesOn); }

Answer ChoiceWidget::Take(int index, Step step) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (index < 0 || index >= Count()) return Answer::kNoSuchPlace;
  const Gesture gesture(*this,
                        step == Step::kGoesOn ? Gesture::Kind::kGoesOn : Gesture::Kind::kOnce);
  Select(index);
  Raise(on_click);
  return refusal;
}

ListBox::ListBox(Dialog& dialog, std::string name)
    : ChoiceWidget(dialog, WidgetKind::kListBox, std::move(name)) {}

void ListBox::SetRows(int rows) {
  rows_ = std::max(rows, 0);
  Redraw(Aspect::kState);
}

ComboBox::ComboBox(Dialog& dialog, std::string name)
    : ChoiceWidget(dialog, WidgetKind::kComboBox, std::move(name)) {}

}  // namespace quorvel
