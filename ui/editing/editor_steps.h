#pragma once

#include <vector>

#include "ui/editing/field.h"
#include "ui/widgets/gestures.h"

namespace quorvel {

class Editor;

/// What the user's steps in an editor are about: the values that its fields stand at.
class EditorSteps final : public Edited {
 public:
  explicit EditorSteps(Editor& editor) : editor_(editor) {}

  [[nodiscard]] EditedValues Values() const override;
  [[nodiscard]] bool AreCurrent() const override;
  void MarkChanges() override;
  [[nodiscard]] bool AreChanged() const override { return changed_; }
  [[nodiscard]] bool Edits(const Widget& control) const override;
  Answer PutBack(Widget& control, PutBackTo to) override;

 private:
  struct Place {
    Field* field;
    int line;
  };
  [[nodiscard]] std::vector<Place> EditedBy(const Widget& control) const;
  [[nodiscard]] std::vector<FieldChange> Changes() const;
  [[nodiscard]] ChangeMark MarkOf(const FieldChange& change) const;
  void MarkPages();
  /// What a choice in a grid, or in another control, brings with it.
  void FollowInGrids(const std::vector<Place>& places, PutBackTo to);
  void FollowIn(Widget& control, const std::vector<Place>& places, PutBackTo to);

  Editor& editor_;
  bool changed_ = false;
};

}  // namespace quorvel
