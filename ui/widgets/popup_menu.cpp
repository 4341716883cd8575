#include "quorvel/widgets/popup_menu.h"

#include <stdexcept>

namespace quorvel {

namespace {

/// An item below another, and what stands in the way of choosing it: the item itself, or a menu
/// around it, the outermost first.
struct Found {
  MenuItem* item = nullptr;
  Answer answer = Answer::kNoSuchPlace;
};

Found Find(MenuItem& from, std::string_view name) {
  for (MenuItem& child : from.children) {
    Found found = child.name == name ? Found{&child, Answer::kDone} : Find(child, name);
    if (found.item == nullptr) continue;
    if (!child.enabled) found.answer = Answer::kDisabled;
    if (!child.visible) found.answer = Answer::kHidden;
    return found;
  }
  return {};
}

}  // namespace

MenuItem& PopupMenu::Item(std::string_view name) {
  if (root_.name == name) return root_;
  MenuItem* const item = Find(root_, name).item;
  if (item == nullptr) throw std::invalid_argument("the menu has no item " + std::string(name));
  return *item;
}

Answer PopupMenu::Choose(std::string_view name) {
  const auto [item, answer] = Find(root_, name);
  const Answer admission = admit ? admit() : Answer::kDone;
  if (item != nullptr && admission != Answer::kDone) return admission;
  if (answer != Answer::kDone) return answer;
  if (item->separator || !item->children.empty()) return Answer::kNoSuchPlace;
  if (edge) {
    edge(item->name, item->on_choose);
  } else if (const Handler handler = item->on_choose) {
    handler();
  }
  return Answer::kDone;
}

}  // namespace quorvel
