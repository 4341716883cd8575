#include "quorvel/widgets/widget.h"

#include "quorvel/platform.h"
#include "quorvel/widgets/dialog.h"
#include "quorvel/widgets/layout.h"

namespace quorvel {

const char* Describe(Answer answer) {
  switch (answer) {
    case Answer::kDone: return "done";
    case Answer::kHidden: return "is hidden";
    case Answer::kDisabled: return "is disabled";
    case Answer::kNoSuchPlace: return "has no such place";
  }
  return "";
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

void Widget::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Redraw(Aspect::kState);
}

void Widget::SetVisible(bool visible) {
  visible_ = visible;
  Redraw(Aspect::kState);
}

void Widget::SetEnabled(bool enabled) {
  enabled_ = enabled;
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

void Widget::Raise(const Handler& handler) { dialog_.RunHandler(name_, handler); }

}  // namespace quorvel
