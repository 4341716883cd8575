#include "quorvel/widgets/layout.h"

#include <utility>

#include "ui/widgets/gestures.h"

namespace quorvel {

Frame::Frame(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kFrame, std::move(name)) {
  SetCaption(std::move(caption));
}

TabStrip::TabStrip(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kTabStrip, std::move(name)) {}

bool TabStrip::CanBeInFront(int page) const {
  return page >= 0 && page < Count() && pages_[static_cast<std::size_t>(page)].visible;
}

bool TabStrip::InFront(int page) const { return page == current_ && CanBeInFront(page); }

std::string TabStrip::ValueText() const {
  std::string text;
  for (int page = 0; page < Count(); ++page) {
    const Page& it = pages_[static_cast<std::size_t>(page)];
    text += (text.empty() ? "" : ", ") + std::string(page == current_ ? "*" : "") +
            std::to_string(page) + " \"" + it.caption + "\"" + (it.visible ? "" : " hidden");
  }
  return text;
}

void TabStrip::SetPages(std::vector<Page> pages) {
  pages_ = std::move(pages);
  current_ = 0;
  Redraw(Aspect::kContent);
  LeaveHiddenPage();
}

void TabStrip::SetPageCaption(int page, std::string caption) {
  Page& it = pages_.at(static_cast<std::size_t>(page));
  Remember(Aspect::kState, it.caption);
  it.caption = std::move(caption);
  Redraw(Aspect::kState);
}

void TabStrip::SetPageVisible(int page, bool visible) {
  Page& it = pages_.at(static_cast<std::size_t>(page));
  Remember(Aspect::kState, it.visible);
  it.visible = visible;
  Redraw(Aspect::kState);
  LeaveHiddenPage();
}

void TabStrip::SetPageChanged(int page, bool changed) {
  Page& it = pages_.at(static_cast<std::size_t>(page));
  if (std::exchange(it.changed, changed) != changed) Redraw(Aspect::kState);
}

void TabStrip::LeaveHiddenPage() {
  if (CanBeInFront(current_)) return;
  for (int page = 0; page < Count(); ++page) {
    if (CanBeInFront(page)) return SetCurrent(page);
  }
}

void TabStrip::SetCurrent(int page) {
  if (!CanBeInFront(page)) return;
  Remember(Aspect::kSelection, current_);
  current_ = page;
  Redraw(Aspect::kSelection);
}

Answer TabStrip::Choose(int page) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!CanBeInFront(page)) return Answer::kNoSuchPlace;
  if (page == current_) return refusal;
  const Gesture gesture(*this);
  SetCurrent(page);
  Raise(on_change);
  return refusal;
}

}  // namespace quorvel
