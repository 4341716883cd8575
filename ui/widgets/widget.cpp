#include "quorvel/widgets/widget.h"

#include "quorvel/platform.h"
#include "quorvel/widgets/controls.h"
#include "quorvel/widgets/dialog.h"
#include "quorvel/widgets/layout.h"
#include "ui/widgets/gestures.h"

namespace quorvel {

const char* Describe(Answer answer) {
  switch (answer) {
    case Answer::kDone: return "done";
    case Answer::kHidden: return "is hidden";
    case Answer::kDisabled: return "is disabled";
    case Answer::kNoSuchPlace: return "has no such place";
    case Answer::kNotAChoice: return "has no such choice";
    case Answer::kOutdated: return "belongs to data that has been replaced";
    case Answer::kNoSuchControl: return "is on no open window";
    case Answer::kOtherKind: return "is of another kind";
  }
  return "";
}

const char* KindName(WidgetKind kind) {
  switch (kind) {
    case WidgetKind::kLabel: return "label";
    case WidgetKind::kButton: return "button";
    case WidgetKind::kCheckBox: return "check box";
    case WidgetKind::kOptionButton: return "option";
    case WidgetKind::kTextBox: return "text box";
    case WidgetKind::kListBox: return "list";
    case WidgetKind::kComboBox: return "drop-down list";
    case WidgetKind::kSlider: return "slider";
    case WidgetKind::kTimePicker: return "time";
    case WidgetKind::kDatePicker: return "date";
    case WidgetKind::kGrid: return "grid";
    case WidgetKind::kTabStrip: return "tabs";
    case WidgetKind::kFrame: return "frame";
    case WidgetKind::kProgressBar: return "progress";
    case WidgetKind::kStatusBar: return "status";
  }
  return "control";
}

Widget::Widget(Dialog& dialog, WidgetKind kind, std::string name)
    : dialog_(dialog), kind_(kind), name_(std::move(name)) {
  dialog_.Register(*this);
}

bool Widget::Showing() const {
  if (!visible_) return false;
  if (container_ == nullptr) return true;
  if (container_->kind_ == WidgetKind::kTabStrip &&
      !static_cast<const TabStrip*>(container_)->InFront(page_)) {
    return false;
  }
  return container_->Showing();
}

const std::string& Widget::SpokenName() const {
  if (!spoken_name_.empty()) return spoken_name_;
  return caption_.empty() ? SurroundingCaption() : caption_;
}

const std::string& Widget::SurroundingCaption() const {
  if (label_ != nullptr && !label_->caption_.empty()) return label_->caption_;
  for (const Widget* around = container_; around != nullptr; around = around->container_) {
    if (around->kind_ == WidgetKind::kFrame && !around->caption_.empty()) return around->caption_;
  }
  return name_;
}

std::string Widget::PageCaption() const {
  const Widget* inner = this;
  while (inner->container_ != nullptr && inner->container_->kind_ != WidgetKind::kTabStrip) {
    inner = inner->container_;
  }
  if (inner->container_ == nullptr) return {};
  const auto& pages = static_cast<const TabStrip*>(inner->container_)->Pages();
  return pages.at(static_cast<std::size_t>(inner->page_)).caption;
}

bool Widget::IsInside(const Widget& container) const {
  const Widget* around = container_;
  while (around != nullptr && around != &container) around = around->container_;
  return around != nullptr;
}

void Widget::SetCaption(std::string caption) {
  Remember(Aspect::kState, caption_);
  caption_ = std::move(caption);
  DrawAgain(Aspect::kState);
}

void Widget::DrawAgain(Aspect what) const {
  Redraw(what);
  if (view_ == nullptr || what != Aspect::kState) return;
  for (const Widget* other : dialog_.Widgets()) {  // those that are called by this caption
    if (other->label_ == this || other->IsInside(*this)) other->Redraw(Aspect::kState);
  }
}

void Widget::SetSpokenName(std::string name) {
  Remember(Aspect::kState, spoken_name_);
  spoken_name_ = std::move(name);
  Redraw(Aspect::kState);
}

void Widget::SetLabel(const Label& label) {
  Remember(Aspect::kState, label_);
  label_ = &label;
  Redraw(Aspect::kState);
}

const std::string& Widget::WhyDisabled() const {
  static const std::string kNothing;
  if (enabled_) return kNothing;
  return why_disabled_.empty() ? dialog_.DisabledWords() : why_disabled_;
}

std::string Widget::SpokenNote() const {
  std::string note = WhyDisabled();
  if (enabled_ && edits_cell_) note = dialog_.EditsCellWords() + edited_column_;
  if (change_) note += (note.empty() ? "" : ". ") + change_->note;
  return note;
}

void Widget::SetEditsCell(bool edits, std::string column) {
  if (edits == edits_cell_ && column == edited_column_) return;
  Remember(Aspect::kState, edits_cell_, edited_column_);
  edits_cell_ = edits;
  edited_column_ = std::move(column);
  Redraw(Aspect::kState);
}

void Widget::SetChange(std::optional<ChangeMark> change) {
  if (change == change_) return;
  change_ = std::move(change);
  Redraw(Aspect::kState);
}

void Widget::SetKeepsPlace(bool keeps) {
  keeps_place_ = keeps;
  Redraw(Aspect::kState);
}

void Widget::BringToFront() {
  if (container_ == nullptr) return;
  container_->BringToFront();
  if (container_->kind_ == WidgetKind::kTabStrip) {
    static_cast<TabStrip*>(container_)->SetCurrent(page_);
  }
}

Answer Widget::Focus(bool by_click) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  const Gesture gesture(*this, by_click ? Gesture::Kind::kClick : Gesture::Kind::kFocus);
  TakeFocus(by_click);
  return refusal;
}

void Widget::SetVisible(bool visible) {
  Remember(Aspect::kState, visible_);
  visible_ = visible;
  Redraw(Aspect::kState);
}

void Widget::SetEnabled(bool enabled, std::string why) {
  Remember(Aspect::kState, enabled_);
  enabled_ = enabled;
  why_disabled_ = std::move(why);
  Redraw(Aspect::kState);
}

Answer Widget::Refusal() const {
  if (!dialog_.Shown() || !Showing()) return Answer::kHidden;
  if (!dialog_.GetPlatform().TakesInput(dialog_)) return Answer::kDisabled;
  for (const Widget* widget = this; widget != nullptr; widget = widget->container_) {
    if (!widget->enabled_) return Answer::kDisabled;
  }
  return Answer::kDone;
}

bool Widget::IsToBeKept(const void* place) const {
  const Gestures* const gestures = dialog_.GetGestures();
  return gestures != nullptr && gestures->IsToBeKept(place);
}

void Widget::Keep(const void* place, std::unique_ptr<Kept> kept, Aspect what) {
  dialog_.GetGestures()->Keep(place, std::move(kept), this, what);
}

void Widget::ForgetSteps() { dialog_.GetGestures()->Forget(); }

void Widget::Raise(const Handler& handler) { dialog_.RunHandler(name_, handler); }

}  // namespace quorvel
