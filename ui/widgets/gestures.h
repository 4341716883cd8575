#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "quorvel/widgets/dialog.h"

namespace quorvel {

/// A value that the user edits, as it can be compared: a number, a text, or both.
struct EditedValue {
  int number = 0;
  std::string text;
  bool operator==(const EditedValue&) const = default;
};
using EditedValues = std::vector<EditedValue>;

/// What the steps of a dialog are about: the values behind its controls.
class Edited {
 public:
  Edited() = default;
  Edited(const Edited&) = delete;
  Edited& operator=(const Edited&) = delete;
  virtual ~Edited() = default;

  /// All values, always in the same order.
  [[nodiscard]] virtual EditedValues Values() const = 0;
  /// False once they belong to settings that are gone.
  [[nodiscard]] virtual bool AreCurrent() const = 0;
  /// Marks what differs from when the dialog opened.
  virtual void MarkChanges() = 0;
  /// Whether anything does.
  [[nodiscard]] virtual bool AreChanged() const = 0;
  /// Whether there is anything that a control edits, in a grid its selected cells.
  [[nodiscard]] virtual bool Edits(const Widget& control) const = 0;
  /// Puts back what a control edits: kOtherKind where it edits nothing, kNoSuchPlace where it is
  /// not known what to put back.
  virtual Answer PutBack(Widget& control, PutBackTo to) = 0;
};

/// What the user has done in a dialog, gesture by gesture, to be taken back and done again. A
/// gesture is all that comes of one verb of the user's. It is a step when it has changed an edited
/// value. What else it has changed, as where the user looks, goes back with the step before or
/// after it.
///
/// Nothing is copied until the user does something, and then only what changes.
class Gestures {
 public:
  Gestures(Dialog& dialog, std::unique_ptr<Edited> edited);

  /// For widgets and parts of dialogs, before a value changes: see Widget::Remember.
  [[nodiscard]] bool IsToBeKept(const void* place) const {
    return depth_ > 0 && keeps_ && !open_.contains(place);
  }
  void Keep(const void* place, std::unique_ptr<Kept> kept, Widget* widget, Aspect what);
  /// There is not enough memory for steps: those that there are could not be taken back whole.
  void Forget();

  [[nodiscard]] bool CanUndo() const { return edited_->AreCurrent() && done_ > 0; }
  [[nodiscard]] bool CanRedo() const { return edited_->AreCurrent() && done_ < steps_.size(); }
  Answer Undo();
  Answer Redo();
  /// How many steps can be taken back.
  [[nodiscard]] std::size_t Done() const { return done_; }
  /// Whether the last step goes on when its control is used again.
  [[nodiscard]] bool GoesOn() const { return going_on_ != nullptr; }
  [[nodiscard]] Edited& What() const { return *edited_; }
  [[nodiscard]] bool UnderWay() const { return depth_ > 0; }

 private:
  friend class Gesture;
  struct Part {
    std::unique_ptr<Kept> kept;
    Widget* widget;
    Aspect what;
  };
  using Parts = std::map<const void*, Part>;
  struct Step {
    Parts moved;    ///< what other gestures have changed since the step before
    Parts changed;  ///< what the gesture has changed
    Widget* control;
  };

  void Begin(Widget& control, bool goes_on);
  void End();
  void AddStep();
  void Exchange(Parts& parts);
  /// Takes back what no step has changed since the last one was made, taken back or done again.
  void TakeMovesBack();
  Answer GoOver(Step& step);
  void DropUndone();

  Dialog& dialog_;
  std::unique_ptr<Edited> edited_;
  std::deque<Step> steps_;
  std::size_t done_ = 0;
  Parts moved_;                 ///< since the last step, or since one was taken back
  bool next_moved_ = false;     ///< `moved` of the next step has not been taken back
  Widget* going_on_ = nullptr;  ///< where the last step goes on when its control is used again

  // The gesture that is under way.
  int depth_ = 0;
  bool keeps_ = true;
  bool goes_on_ = false;
  Widget* control_ = nullptr;
  Parts open_;
  EditedValues before_;
};

/// The scope of a verb of the user's; verbs inside it are part of its gesture. In dialogs without
/// steps it is nothing. What it refers to stays alive until it ends.
class Gesture {
 public:
  enum class Kind {
    kOnce,
    kGoesOn,  ///< one step with those before it of the same control: typing, moving a handle
    kClick,   ///< into a box: what is typed then is a step of its own
    kFocus,
  };
  explicit Gesture(Widget& control, Kind kind = Kind::kOnce);
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;
  ~Gesture();

 private:
  // The dialog goes before what it refers to.
  std::shared_ptr<const void> life_;
  std::shared_ptr<Dialog> dialog_;
  Gestures* gestures_ = nullptr;
};

}  // namespace quorvel
