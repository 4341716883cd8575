#include "quorvel/widgets/popup_menu.h"

#include <stdexcept>

namespace quorvel {

namespace {

/// The way from the root down to an item: every menu around it, then the item itself.
bool FindPath(MenuItem& from, std::string_view name, std::vector<MenuItem*>& path) {
  for (MenuItem& child : from.children) {
    path.push_back(&child);
    if (child.name == name || FindPath(child, name, path)) return true;
    path.pop_back();
  }
  return false;
}

}  // namespace

MenuItem& PopupMenu::Item(std::string_view name) {
  if (root_.name == name) return root_;
  std::vector<MenuItem*> path;
  if (!FindPath(root_, name, path)) {
    throw std::invalid_argument("the menu has no item " + std::string(name));
  }
  return *path.back();
}

Answer PopupMenu::Choose(std::string_view name) {
  std::vector<MenuItem*> path;
  if (!FindPath(root_, name, path)) return Answer::kNoSuchPlace;
  if (const Answer admission = admit ? admit() : Answer::kDone; admission != Answer::kDone) {
    return admission;
  }
  for (const MenuItem* item : path) {
    if (!item->visible) return Answer::kHidden;
    if (!item->enabled) return Answer::kDisabled;
  }
  const MenuItem& item = *path.back();
  if (item.separator || !item.children.empty()) return Answer::kNoSuchPlace;
  const Handler handler = item.on_choose;
  const std::string place = item.name;
  if (edge) {
    edge(place, handler);
  } else if (handler) {
    handler();
  }
  return Answer::kDone;
}

}  // namespace quorvel
