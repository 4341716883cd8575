#include "quorvel/widgets/dialog.h"

#include <algorithm>
#include <stdexcept>

#include "quorvel/platform.h"
#include "quorvel/widgets/grid.h"
#include "ui/widgets/failure.h"
#include "ui/widgets/gestures.h"

namespace quorvel {

Dialog::Dialog(Platform& platform, std::string name)
    : platform_(platform), name_(std::move(name)) {}

Dialog::~Dialog() {
  if (shown_) platform_.Hide(*this);
}

Widget* Dialog::FindWidget(std::string_view name) const {
  const auto found = std::find_if(widgets_.begin(), widgets_.end(),
                                  [name](const Widget* widget) { return widget->Name() == name; });
  return found == widgets_.end() ? nullptr : *found;
}

void Dialog::ThrowNoControl(std::string_view name) const {
  throw std::invalid_argument(name_ + " has no such control: " + std::string(name));
}

void Dialog::SetPasteRefusals(std::string not_a_choice, std::string does_not_fit) {
  not_a_choice_ = std::move(not_a_choice);
  does_not_fit_ = std::move(does_not_fit);
}

void Dialog::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  if (view_ != nullptr) view_->Refresh(Aspect::kState);
}

void Dialog::SetLayout(Layout layout) {
  layout_ = std::move(layout);
  Place(layout_, nullptr, -1);
  if (view_ != nullptr) view_->Refresh(Aspect::kContent);
}

void Dialog::Place(const Layout& layout, Widget* container, int page) {
  for (const Layout& part : layout.parts) Place(part, container, page);
  if (layout.widget == nullptr) return;
  layout.widget->PlaceIn(container, page);
  if (const auto* frame = dynamic_cast<const Frame*>(layout.widget)) {
    Place(frame->Content(), layout.widget, -1);
  }
  if (const auto* tabs = dynamic_cast<const TabStrip*>(layout.widget)) {
    int number = 0;
    for (const Page& it : tabs->Pages()) Place(it.content, layout.widget, number++);
  }
}

void Dialog::MoveFocus(Widget& to) {
  to.BringToFront();
  if (to.Focus() != Answer::kDone) return;
  focus_sent_to_ = &to;
  if (view_ != nullptr) view_->Refresh(Aspect::kSelection);
}

void Dialog::SetKeyButtons(Button* default_button, Button* cancel_button) {
  default_button_ = default_button;
  cancel_button_ = cancel_button;
  if (view_ != nullptr) view_->Refresh(Aspect::kState);
}

void Dialog::Show() {
  const bool was_shown = std::exchange(shown_, true);
  try {
    platform_.Show(*this);
  } catch (...) {
    shown_ = was_shown;
    if (!shown_) platform_.Hide(*this);
    throw;
  }
}

void Dialog::ShowModal() {
  const auto keep = shared_from_this();
  shown_ = true;
  try {
    platform_.ShowModal(*this);
  } catch (...) {  // whatever failed, no window stays locked behind it
    shown_ = false;
    platform_.Hide(*this);
    throw;
  }
}

void Dialog::Close() {
  if (!shown_) return;
  const auto keep = shared_from_this();
  shown_ = false;
  platform_.Hide(*this);
  RunHandler("on_closed", on_closed);
}

Answer Dialog::CloseWindow() {
  if (!shown_) return Answer::kHidden;
  if (!platform_.TakesInput(*this)) return Answer::kDisabled;
  bool closes = true;
  const auto keep = weak_from_this().lock();
  RunHandler("CloseWindow", [&] { closes = MayClose(); });
  if (closes) Close();
  return Answer::kDone;
}

void Dialog::RunHandler(const std::string& place, const Handler& handler) {
  if (!handler) return;
  const auto life = life_.lock();  // goes last: the dialog refers to it
  const auto keep = weak_from_this().lock();
  try {
    const Handler copy = handler;  // the handler may replace or destroy the one that is stored
    copy();
  } catch (...) {
    ReportFailure(platform_, name_, place);
  }
}

std::string Dialog::PageHelp() const {
  std::string page;
  for (const Widget* const control : widgets_) {
    if (!control->Showing()) continue;
    const auto* const grid = dynamic_cast<const Grid*>(control);
    std::string help =
        grid == nullptr ? HelpOf(*control) : HelpOf(*control, grid->Row(), grid->Column());
    if (help.empty()) continue;
    for (auto end = help.find('\n'); end != std::string::npos; end = help.find('\n', end)) {
      help.replace(end, 1, "; ");
    }
    const std::string& name = control->SpokenName();
    page += name.substr(0, name.find_last_not_of(" :") + 1) + ": " + help + "\n";
  }
  return page;
}

std::string Dialog::HelpOf(const Widget& control, int row, int column) const {
  const auto* const grid = dynamic_cast<const Grid*>(&control);
  const std::string note = grid == nullptr ? "" : grid->CellNote(row, column);
  const std::string& why = control.WhyDisabled();
  return note + (note.empty() || why.empty() ? "" : "\n") + why;
}

}  // namespace quorvel
