#include "ui/review/unseen_editors.h"

#include <algorithm>
#include <utility>

#include "ui/menu/menu_editors.h"
#include "ui/menu/menu_items.h"

namespace quorvel {

namespace {

/// The items below `menu` that open something, in their order.
void AddItems(const MenuItem& menu, std::vector<std::string>& names) {
  for (const MenuItem& item : menu.children) {
    if (item.children.empty()) names.push_back(item.name);
    AddItems(item, names);
  }
}

}  // namespace

UnseenEditors::UnseenEditors(Context& of, const MuxData& record,
                             std::shared_ptr<TextCatalogue::KnownTexts> known)
    : context_(of.platform), record_(std::make_unique<MuxData>(env_)) {
  env_.identity = of.device.env.identity;
  *record_ = record;
  context_.texts.Follow(of.texts, std::move(known));
  context_.host = of.host;
  context_.device.BlkImage = of.device.BlkImage;
  context_.device.ComboArray = of.device.ComboArray;
  context_.device.env.identity = of.device.env.identity;
  context_.device.Record() = record;
  const Identity& device = context_.device.env.identity;
  const auto hidden = HiddenItems(device);
  std::vector<std::string> names;
  AddItems(MainMenuItems(), names);
  for (const std::string& name : names) {
    const MenuEditor* const it = EditorOf(name, device);
    if (it == nullptr || std::ranges::find(hidden, name) != hidden.end()) continue;
    editors_.push_back({it->item, it->create(context_), lines_.size()});
    const auto lines = editors_.back().editor->FieldLines();
    lines_.insert(lines_.end(), lines.begin(), lines.end());
  }
}

}  // namespace quorvel
