#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// Items of which one, or none, is current: what a list and a drop-down list have in common.
class QUORVEL_API ChoiceWidget : public Widget {
 public:
  static constexpr int kNone = -1;
  [[nodiscard]] const std::vector<std::string>& Items() const { return items_; }
  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  /// The current item, 0-based, or kNone.
  [[nodiscard]] int Current() const { return current_; }
  /// Text of the current item; empty when there is none.
  [[nodiscard]] const std::string& CurrentText() const;
  /// First item with this text, or kNone.
  [[nodiscard]] int IndexOf(std::string_view text) const;
  [[nodiscard]] std::string ValueText() const override;

  /// Replaces the items, also while on screen; none is current.
  void SetItems(std::vector<std::string> items);
  /// Makes an item current; an index that is not in the list makes it none.
  void Select(int index);

  /// A click on item `index`, also on the current one.
  Answer Choose(int index);
  /// The same by a key or the wheel, which go on from item to item: what they come to in a row is
  /// one step of the user's.
  Answer MoveOnTo(int index);
  Handler on_click;
  void RaiseChosen() override { Raise(on_click); }

 protected:
  using Widget::Widget;

 private:
  enum class Step { kOfItsOwn, kGoesOn };
  Answer Take(int index, Step step);

  std::vector<std::string> items_;
  int current_ = kNone;
};

/// A list that stands open.
class QUORVEL_API ListBox : public ChoiceWidget {
 public:
  ListBox(Dialog& dialog, std::string name);
  /// Lines that the list would like to show; 0: as many as it has items, within the view's limits.
  [[nodiscard]] int Rows() const { return rows_; }
  void SetRows(int rows);

 private:
  int rows_ = 0;
};

/// A list that drops down. Without a current item it is blank.
class QUORVEL_API ComboBox : public ChoiceWidget {
 public:
  ComboBox(Dialog& dialog, std::string name);
};

}  // namespace quorvel
