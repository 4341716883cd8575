#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "quorvel/export.h"
#include "quorvel/widgets/widget.h"

namespace quorvel {

/// An item of a popup menu.
struct MenuItem {
  std::string name;
  std::string caption;
  bool separator = false;
  bool visible = true;
  bool enabled = true;
  bool checked = false;
  std::vector<MenuItem> children;
  Handler on_choose;
};

/// A menu that pops up over the host. Its items are told apart by name.
class QUORVEL_API PopupMenu {
 public:
  explicit PopupMenu(MenuItem root) : root_(std::move(root)) {}

  /// The menu itself, whose children are its first level.
  [[nodiscard]] MenuItem& Root() { return root_; }
  [[nodiscard]] const MenuItem& Root() const { return root_; }
  /// The item of that name; throws std::invalid_argument when there is none.
  [[nodiscard]] MenuItem& Item(std::string_view name);

  /// What the user does with an item. Refused when the owner does not admit it, when the item, or a
  /// menu around it, is hidden or disabled, and for items that open a submenu. Calls the handler
  /// last.
  Answer Choose(std::string_view name);

  /// Asked before an item is chosen: anything but kDone refuses the choice. By default all are
  /// admitted.
  std::function<Answer()> admit;

  /// Runs a handler as an edge of its owner, who copies what may be replaced meanwhile; by default
  /// it is called directly.
  std::function<void(const std::string& place, const Handler& handler)> edge;

 private:
  MenuItem root_;
};

}  // namespace quorvel
