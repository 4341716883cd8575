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

/// What stands at one place: a number, or the number of a text.
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

/// All places in their order. There are some 1,800 of them, and two configurations of one model
/// differ in few: no name is made here.
struct MarkCollector : layout::SettingVisitor<MarkCollector> {
  MarkCollector() { marks.reserve(kUsualCount); }
  template <class Item>
  void Setting(const Slot& slot, Item& item, int entry) {
    if (!IsCompared(slot)) return;
    const SettingValue value = layout::ValueHeldBy(item);
    std::int32_t number = value.number;
    if (value.type == SettingType::kText) {
      number = static_cast<std::int32_t>(texts.size());
      texts.push_back(value.text);
    }
    marks.push_back({Item::Name(), static_cast<std::int16_t>(entry),
                     static_cast<std::int8_t>(item.Owner().Index()), static_cast<Byte>(slot.block),
                     number});
    is_text.push_back(value.type == SettingType::kText);
  }
  [[nodiscard]] bool HoldsSame(const MarkCollector& other, std::size_t i) const {
    if (!is_text[i]) return marks[i].number == other.marks[i].number;
    return texts.at(static_cast<std::size_t>(marks[i].number)) ==
           other.texts.at(static_cast<std::size_t>(other.marks[i].number));
  }

  static constexpr std::size_t kUsualCount = 2048;
  std::vector<Mark> marks;
  std::vector<std::string_view> texts;
  std::vector<bool> is_text;
};

/// The places at which two configurations differ, by their number; nothing where they have other
/// settings.
std::optional<std::vector<std::size_t>> DifferingPlaces(const Configuration& one,
                                                        const Configuration& other) {
  MarkCollector mine;
  MarkCollector theirs;
  Show(one, mine);
  Show(other, theirs);
  if (!std::ranges::equal(mine.marks, theirs.marks,
                          [](const Mark& a, const Mark& b) { return a.IsSamePlace(b); })) {
    return std::nullopt;
  }
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < mine.marks.size(); ++i) {
    if (!mine.HoldsSame(theirs, i)) places.push_back(i);
  }
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
  void See(const Slot& slot, const AnySetting& setting) {
    if (!IsCompared(slot) || !TakesNext()) return;
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
