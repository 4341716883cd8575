#include "ui/widgets/gestures.h"

#include <iterator>
#include <set>
#include <utility>

namespace quorvel {

Kept::~Kept() = default;

Gestures::Gestures(Dialog& dialog, std::unique_ptr<Edited> edited)
    : dialog_(dialog), edited_(std::move(edited)) {}

void Gestures::Keep(const void* place, std::unique_ptr<Kept> kept, Widget* widget, Aspect what) {
  if (open_.empty()) before_ = edited_->Values();  // nothing has changed yet
  open_.emplace(place, Part{std::move(kept), widget, what});
}

void Gestures::Forget() {
  keeps_ = false;  // until the gesture ends
  open_.clear();
  moved_.clear();
  steps_.clear();
  done_ = 0;
  next_moved_ = false;
  going_on_ = nullptr;
}

void Gestures::Begin(Widget& control, bool goes_on) {
  if (depth_++ > 0) return;
  control_ = &control;
  goes_on_ = goes_on;
  if (!goes_on || &control != going_on_) going_on_ = nullptr;
}

void Gestures::End() {
  if (--depth_ > 0) return;
  keeps_ = true;
  if (open_.empty() || !dialog_.Shown()) return open_.clear();
  try {
    if (going_on_ != nullptr) {
      steps_.back().changed.merge(open_);
    } else if (edited_->Values() != before_) {
      AddStep();
    } else {
      moved_.merge(open_);
      return open_.clear();
    }
    open_.clear();
    edited_->MarkChanges();
  } catch (...) {
    Forget();
    keeps_ = true;
  }
}

void Gestures::AddStep() {
  DropUndone();
  steps_.push_back({std::move(moved_), std::move(open_), control_});
  moved_.clear();
  done_ = steps_.size();
  if (goes_on_) going_on_ = control_;
}

void Gestures::DropUndone() {
  if (next_moved_) {
    steps_.at(done_).moved.merge(moved_);  // what was kept first holds
    moved_ = std::move(steps_.at(done_).moved);
    next_moved_ = false;
  }
  steps_.resize(done_);
}

void Gestures::Exchange(Parts& parts) {
  for (auto& [place, part] : parts) part.kept->Exchange();
  std::set<std::pair<Widget*, Aspect>> drawn;
  for (auto& [place, part] : parts) {
    const bool fresh = part.widget != nullptr && drawn.emplace(part.widget, part.what).second;
    if (fresh) part.widget->DrawAgain(part.what);
  }
}

void Gestures::TakeMovesBack() {
  Exchange(moved_);
  moved_.clear();
}

Answer Gestures::Undo() {
  if (!edited_->AreCurrent()) return Answer::kOutdated;
  if (done_ == 0) return Answer::kNoSuchPlace;
  TakeMovesBack();
  if (std::exchange(next_moved_, true)) Exchange(steps_.at(done_).moved);
  return GoOver(steps_.at(--done_));
}

Answer Gestures::Redo() {
  if (!edited_->AreCurrent()) return Answer::kOutdated;
  if (done_ == steps_.size()) return Answer::kNoSuchPlace;
  TakeMovesBack();
  if (!std::exchange(next_moved_, false)) Exchange(steps_.at(done_).moved);
  return GoOver(steps_.at(done_++));
}

/// The control that the user has changed comes to the front, and has the focus.
Answer Gestures::GoOver(Step& step) {
  going_on_ = nullptr;
  Exchange(step.changed);
  const Gesture gesture(*step.control);
  edited_->MarkChanges();
  dialog_.MoveFocus(*step.control);
  return Answer::kDone;
}

Gesture::Gesture(Widget& control, Kind kind) {
  Gestures* const gestures = control.Owner().GetGestures();
  if (gestures == nullptr) return;
  life_ = control.Owner().Life();
  dialog_ = control.Owner().weak_from_this().lock();
  gestures_ = gestures;
  // The focus that comes to a control, or to it again, is no use of it.
  const bool stays = kind == Kind::kFocus && &control == gestures->going_on_;
  gestures->Begin(control, kind == Kind::kGoesOn || stays);
}

Gesture::~Gesture() {
  if (gestures_ != nullptr) gestures_->End();
}

}  // namespace quorvel
