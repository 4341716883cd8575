#include "core/setting_list.h"

#include <algorithm>
#include <type_traits>

#include "core/layout/blocks.h"
#include "core/layout/setting_pass.h"

namespace quorvel {

namespace {

using layout::SettingValue;
using layout::Slot;

template <bool writing = false, class Visitor>
void Show(const Configuration& of, Visitor& visitor) {
  Identity id = of.id;
  layout::SettingWalk<writing, Visitor> walk(visitor, id.MaxCam, of.blocks);
  layout::DescribeBlocks(walk, of.rec, id);
}

/// Shows every place of a setting, in their order, to `see(slot, item, entry)`.
template <class See>
class PlaceVisitor : public layout::SettingVisitor<PlaceVisitor<See>> {
 public:
  explicit PlaceVisitor(See see) : see_(std::move(see)) {}
  template <class Item>
  void Setting(const Slot& slot, Item& item, int entry) {
    if (slot.IsSetting()) see_(slot, item, entry);
  }

 private:
  See see_;
};

}  // namespace

SettingList::SettingList(const Configuration& of) {
  constexpr std::size_t kUsualCount = 2048;
  settings_.reserve(kUsualCount);
  at_place_.reserve(kUsualCount);
  PlaceVisitor visitor([this](const Slot& slot, const auto& item, int entry) {
    std::string name = layout::FullName(item.Owner(), item.Name(), entry);
    const auto [known, is_new] = by_name_.try_emplace(std::move(name), settings_.size());
    if (is_new) settings_.push_back({known->first, layout::ValueHeldBy(item).unit, {}, 0, false});
    at_place_.push_back(known->second);
    ListedSetting& setting = settings_[known->second];
    setting.most = std::max(setting.most, slot.storable.most);
    std::vector<Byte>& blocks = setting.blocks;
    const auto block = static_cast<Byte>(slot.block);
    const auto at = std::ranges::lower_bound(blocks, block);
    if (at == blocks.end() || *at != block) blocks.insert(at, block);
  });
  Show(of, visitor);

  PlaceVisitor written([this](const Slot& slot, const auto& item, int entry) {
    if (std::remove_cvref_t<decltype(item)>::kReadOnly || IsDeviceBlock(slot.block)) return;
    const auto known = by_name_.find(layout::FullName(item.Owner(), item.Name(), entry));
    if (known != by_name_.end()) settings_[known->second].writable = true;
  });
  Show<true>(of, written);
}

std::optional<std::size_t> SettingList::Find(const std::string& name) const {
  const auto found = by_name_.find(name);
  return found == by_name_.end() ? std::nullopt : std::optional(found->second);
}

std::vector<SettingValue> SettingList::Values(const Configuration& of) const {
  std::vector<SettingValue> values(settings_.size());
  std::size_t place = 0;
  PlaceVisitor visitor([&](const Slot& /*slot*/, const auto& item, int /*entry*/) {
    values.at(at_place_.at(place++)) = layout::ValueHeldBy(item);
  });
  Show(of, visitor);
  return values;
}

std::string StoredForm(const SettingValue& value) {
  return value.type == SettingType::kText ? std::string(value.text) : std::to_string(value.number);
}

}  // namespace quorvel
