#include "quorvel/platform.h"
#include "quorvel/widgets/dialog.h"
#include "ui/widgets/gestures.h"

namespace quorvel {

void Dialog::KeepSteps(std::unique_ptr<Edited> edited) {
  gestures_ = std::make_unique<Gestures>(*this, std::move(edited));
}

bool Dialog::IsToBeKept(const void* place) const {
  return gestures_ != nullptr && gestures_->IsToBeKept(place);
}

void Dialog::Keep(const void* place, std::unique_ptr<Kept> kept) {
  gestures_->Keep(place, std::move(kept), nullptr, Aspect::kState);
}

void Dialog::ForgetSteps() { gestures_->Forget(); }

bool Dialog::CanUndo() const { return gestures_ != nullptr && gestures_->CanUndo(); }
bool Dialog::CanRedo() const { return gestures_ != nullptr && gestures_->CanRedo(); }

bool Dialog::IsChanged() const { return gestures_ != nullptr && gestures_->What().AreChanged(); }

Answer Dialog::StepRefusal() const {
  if (!shown_) return Answer::kHidden;
  const bool busy = gestures_ != nullptr && gestures_->UnderWay();
  if (busy || !platform_.TakesInput(*this)) return Answer::kDisabled;
  return gestures_ == nullptr ? Answer::kNoSuchPlace : Answer::kDone;
}

Answer Dialog::Undo() {
  Answer answer = StepRefusal();
  if (answer == Answer::kDone) RunHandler("Undo", [&] { answer = gestures_->Undo(); });
  return answer;
}

Answer Dialog::Redo() {
  Answer answer = StepRefusal();
  if (answer == Answer::kDone) RunHandler("Redo", [&] { answer = gestures_->Redo(); });
  return answer;
}

Answer Dialog::PutBack(Widget& control, PutBackTo to) {
  Answer answer = control.Refusal();
  if (answer != Answer::kDone) return answer;
  if (gestures_ == nullptr) return Answer::kOtherKind;
  if (!gestures_->What().AreCurrent()) return Answer::kOutdated;
  const Gesture gesture(control);
  RunHandler(control.Name(), [&] { answer = gestures_->What().PutBack(control, to); });
  return answer;
}

std::vector<ContextEntry> Dialog::ContextEntries(Widget& control) {
  if (gestures_ == nullptr) return {};
  const bool edits = gestures_->What().Edits(control) && control.Refusal() == Answer::kDone;
  const auto put_back = [&](const std::string& text, PutBackTo to) {
    return ContextEntry{text, [this, &control, to] { return PutBack(control, to); }, edits};
  };
  return {{context_words_.undo, [this] { return Undo(); }, CanUndo()},
          {context_words_.redo, [this] { return Redo(); }, CanRedo()},
          put_back(context_words_.put_back, PutBackTo::kOpened),
          put_back(context_words_.put_back_to_device, PutBackTo::kDevice)};
}

}  // namespace quorvel
