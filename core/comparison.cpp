#include "core/comparison.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "core/layout/blocks.h"
#include "core/layout/setting_pass.h"

namespace quorvel {

namespace {

using layout::AnySetting;
using layout::SettingValue;
using layout::Slot;

bool IsCompared(const Slot& slot) { return slot.IsSetting() || slot.role == Slot::Role::kMark; }

template <class Visitor>
void Show(const Configuration& configuration, Visitor& visitor) {
  Identity id = configuration.id;
  layout::SettingWalk<false, Visitor> walk(visitor, id.MaxCam, configuration.blocks);
  layout::DescribeBlocks(walk, configuration.rec, id);
}

/// What stands at one place: a number, 0 of a text.
struct Mark {
  const char* name;  ///< the same for settings of one name
  std::int16_t entry;
  std::int8_t owner;
  Byte block;
  std::int32_t number;

  [[nodiscard]] bool IsSamePlace(const Mark& other) const {
    return name == other.name && entry == other.entry && owner == other.owner &&
           block == other.block;
  }
};

/// Shows what stands at all places, in their order, to `see(mark, value)`. There are some 1,800 of
/// them, and two configurations of one model differ in few: no name is made here.
template <class See>
class MarkVisitor : public layout::SettingVisitor<MarkVisitor<See>> {
 public:
  explicit MarkVisitor(See see) : see_(std::move(see)) {}
  template <class Item>
  void Setting(const Slot& slot, Item& item, int entry) {
    if (!IsCompared(slot)) return;
    const SettingValue value = layout::ValueHeldBy(item);
    see_(Mark{Item::Name(), static_cast<std::int16_t>(entry),
              static_cast<std::int8_t>(item.Owner().Index()), static_cast<Byte>(slot.block),
              value.number},
         value);
  }

 private:
  See see_;
};

/// The places at which two configurations differ, by their number; nothing where they have other
/// settings.
std::optional<std::vector<std::size_t>> DifferingPlaces(const Configuration& one,
                                                        const Configuration& other) {
  constexpr std::size_t kUsualCount = 2048;
  std::vector<Mark> marks;
  marks.reserve(kUsualCount);
  std::vector<std::string_view> texts;
  MarkVisitor keep([&](const Mark& mark, const SettingValue& value) {
    marks.push_back(mark);
    if (value.type == SettingType::kText) texts.push_back(value.text);
  });
  Show(one, keep);

  std::vector<std::size_t> places;
  std::size_t place = 0;
  std::size_t text = 0;
  bool same_settings = true;
  MarkVisitor compare([&](const Mark& mark, const SettingValue& value) {
    same_settings = same_settings && place < marks.size() && mark.IsSamePlace(marks[place]);
    if (!same_settings) return;
    const bool same = value.type == SettingType::kText ? value.text == texts.at(text++)
                                                       : mark.number == marks[place].number;
    if (!same) places.push_back(place);
    ++place;
  });
  Show(other, compare);
  if (!same_settings || place != marks.size()) return std::nullopt;
  return places;
}

/// What a configuration holds under one name, and every block that has a part in it.
struct Holding {
  std::string value;
  std::set<Byte> blocks;
};

/// Collects by name what stands at some of the places, or at all.
class HoldingCollector : public layout::SettingVisitor<HoldingCollector> {
 public:
  explicit HoldingCollector(const std::optional<std::vector<std::size_t>>& places)
      : places_(places) {}
  template <class Item>
  void Setting(const Slot& slot, Item& item, int entry) {
    if (IsCompared(slot) && TakesNext()) SettingVisitor::Setting(slot, item, entry);
  }
  void See(const Slot& slot, const AnySetting& setting) {
    Holding& holding = holdings[layout::FullName(setting.Owner(), setting.Name(), setting.Entry())];
    holding.value = setting.Value();
    holding.blocks.insert(static_cast<Byte>(slot.block));
  }

  std::map<std::string, Holding> holdings;

 private:
  bool TakesNext() {
    const std::size_t place = place_++;
    if (!places_) return true;
    if (next_ == places_->size() || (*places_)[next_] != place) return false;
    ++next_;
    return true;
  }

  const std::optional<std::vector<std::size_t>>& places_;
  std::size_t place_ = 0;
  std::size_t next_ = 0;
};

std::map<std::string, Holding> HoldingsOf(const Configuration& configuration,
                                          const std::optional<std::vector<std::size_t>>& places) {
  HoldingCollector collector(places);
  Show(configuration, collector);
  return std::move(collector.holdings);
}

}  // namespace

std::vector<SettingDifference> CompareConfigurations(const Configuration& one,
                                                     const Configuration& other) {
  const auto places = DifferingPlaces(one, other);
  if (places && places->empty()) return {};
  auto others = HoldingsOf(other, places);
  std::multimap<Byte, SettingDifference> by_block;
  const auto add = [&by_block](const std::string& name, const Holding& mine,
                               const Holding& theirs) {
    std::set<Byte> blocks = mine.blocks;
    blocks.insert(theirs.blocks.begin(), theirs.blocks.end());
    by_block.insert(
        {*blocks.begin(), {name, mine.value, theirs.value, {blocks.begin(), blocks.end()}}});
  };
  for (const auto& [name, mine] : HoldingsOf(one, places)) {
    const auto theirs = others.extract(name);
    const Holding none;
    const Holding& it = theirs.empty() ? none : theirs.mapped();
    if (it.value != mine.value) add(name, mine, it);
  }
  for (const auto& [name, theirs] : others) add(name, {}, theirs);
  std::vector<SettingDifference> differences;
  for (auto& [block, difference] : by_block) differences.push_back(std::move(difference));
  return differences;
}

}  // namespace quorvel
