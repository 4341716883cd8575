#include "quorvel/widgets/layout.h"

namespace quorvel {

Frame::Frame(Dialog& dialog, std::string name, std::string caption)
    : Widget(dialog, WidgetKind::kFrame, std::move(name)) {
  SetCaption(std::move(caption));
}

TabStrip::TabStrip(Dialog& dialog, std::string name)
    : Widget(dialog, WidgetKind::kTabStrip, std::move(name)) {}

bool TabStrip::InFront(int page) const {
  return page == current_ && IsPage(page) && pages_[static_cast<std::size_t>(page)].visible;
}

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
}

void TabStrip::SetPageCaption(int page, std::string caption) {
  pages_.at(static_cast<std::size_t>(page)).caption = std::move(caption);
  Redraw(Aspect::kState);
}

void TabStrip::SetPageVisible(int page, bool visible) {
  pages_.at(static_cast<std::size_t>(page)).visible = visible;
  Redraw(Aspect::kState);
}

void TabStrip::SetCurrent(int page) {
  if (!IsPage(page)) return;
  current_ = page;
  Redraw(Aspect::kSelection);
}

Answer TabStrip::Choose(int page) {
  const Answer refusal = Refusal();
  if (refusal != Answer::kDone) return refusal;
  if (!IsPage(page) || !pages_[static_cast<std::size_t>(page)].visible) {
    return Answer::kNoSuchPlace;
  }
  if (page == current_) return refusal;
  SetCurrent(page);
  Raise(on_change);
  return refusal;
}

}  // namespace quorvel
