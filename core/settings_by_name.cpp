#include "core/settings_by_name.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <tuple>
#include <utility>

#include "core/change_marks.h"
#include "core/layout/blocks.h"
#include "core/layout/setting_pass.h"
#include "core/setting_value.h"

namespace quorvel {

namespace {

using layout::AnySetting;
using layout::Slot;

/// A setting's name in its parts: "CamInfo", 3, "ActGrid", 12 of "CamInfo(3).ActGrid(12)".
class NameParts {
 public:
  explicit NameParts(std::string_view full) {
    const auto dot = full.find('.');
    std::string_view last = full;
    if (dot != std::string_view::npos) {
      std::tie(collection_, index_) = Split(full.substr(0, dot));
      last = full.substr(dot + 1);
    }
    std::tie(name_, entry_) = Split(last);
  }
  [[nodiscard]] std::string_view Name() const { return name_; }
  [[nodiscard]] int Index() const { return index_; }
  [[nodiscard]] bool Is(const AnySetting& setting) const {
    return setting.Entry() == entry_ && setting.Owner().Index() == index_ &&
           setting.Name() == name_ && setting.Owner().Collection() == collection_;
  }

 private:
  static constexpr int kNone = -1;
  static constexpr int kNoNumber = -2;  // no setting has it

  static std::pair<std::string_view, int> Split(std::string_view part) {
    const auto bracket = part.find('(');
    if (bracket == std::string_view::npos) return {part, kNone};
    const std::string_view inside = part.substr(bracket + 1);
    int number = kNoNumber;
    const char* const last = inside.data() + inside.size();
    const auto [end, error] = std::from_chars(inside.data(), last, number);
    const bool closed = error == std::errc() && end + 1 == last && *end == ')';
    // "03" and "-1" are written otherwise.
    const bool plain = closed && number >= 0 && (inside.front() != '0' || inside.size() == 2);
    return {part.substr(0, bracket), plain ? number : kNoNumber};
  }

  std::string_view collection_;
  int index_ = kNone;
  std::string_view name_;
  int entry_ = kNone;
};

/// Takes the wrapper of a function type, so that every search is the same code.
using SeeSlot = std::function<void(const Slot&, AnySetting&)>;

/// Shows the places of the setting of one name.
class Seeker : public layout::SettingVisitor<Seeker> {
 public:
  Seeker(std::string_view name, SeeSlot see) : parts_(name), see_(std::move(see)) {}
  template <class Item>
  [[nodiscard]] bool Wants() const {
    return std::string_view(Item::Name()) == parts_.Name();
  }
  [[nodiscard]] bool WantsOf(const SettingOwner& owner) const {
    return owner.Index() == parts_.Index();
  }
  void See(const Slot& slot, AnySetting& setting) {
    if (parts_.Is(setting)) see_(slot, setting);
  }

 private:
  NameParts parts_;
  SeeSlot see_;
};

template <bool writing, class Visitor>
void Show(const Configuration& of, Visitor& visitor) {
  Identity id = of.id;
  layout::SettingWalk<writing, Visitor> walk(visitor, id.MaxCam, of.blocks);
  layout::DescribeBlocks(walk, of.rec, id);
}

void Seek(const Configuration& of, std::string_view name, SeeSlot see) {
  Seeker seeker(name, std::move(see));
  Show<false>(of, seeker);
}

/// The same of what the encoder writes.
void SeekWritten(const Configuration& of, std::string_view name, SeeSlot see) {
  Seeker seeker(name, [see = std::move(see)](const Slot& slot, AnySetting& setting) {
    if (slot.role == Slot::Role::kSetting && !IsDeviceBlock(slot.block) && setting.CanBeSet()) {
      see(slot, setting);
    }
  });
  Show<true>(of, seeker);
}

bool IsDescribed(const Slot& slot) { return slot.IsSetting() || slot.role == Slot::Role::kMark; }

std::string_view Bare(std::string_view unit) {
  if (!unit.empty() && unit.front() == ' ') unit.remove_prefix(1);
  return unit;
}

/// Adds a place to the description of its setting.
void AddPlace(SettingDescription& description, const Slot& slot) {
  description.places.push_back({static_cast<Byte>(slot.block), slot.at, slot.length, slot.mask,
                                slot.role == Slot::Role::kMark});
  const auto block = static_cast<Byte>(slot.block);
  const auto at = std::ranges::lower_bound(description.blocks, block);
  if (at == description.blocks.end() || *at != block) description.blocks.insert(at, block);
}

SettingDescription DescriptionOf(const Slot& slot, const AnySetting& setting, const Identity& id) {
  SettingDescription description;
  description.name = layout::FullName(setting.Owner(), setting.Name(), setting.Entry());
  description.type = setting.Type();
  const layout::SettingValue held = setting.Holds();
  description.unit = Bare(held.unit);
  if (setting.Type() == SettingType::kText) {
    description.most = slot.length;
    return description;
  }
  const AllowedNumbers allowed = setting.Allowed(id, slot.storable);
  const Range reach = allowed.Reach();
  description.least = reach.least + held.first;
  description.most = reach.most + held.first;
  for (const Code& code : allowed.codes) {
    description.codes.push_back({code.value + held.first, code.text});
  }
  description.codes_only = allowed.codes_only;
  return description;
}

/// Raises all commit flags, so that every rule tracks what is set.
class AllFlagsRaised {
 public:
  explicit AllFlagsRaised(CommitFlags& flags) : flags_(flags), before_(flags) {
    for (int flag = 0; flag < kCommitFlagCount; ++flag) {
      flags_.Set(static_cast<CommitFlag>(flag), true);
    }
  }
  ~AllFlagsRaised() { flags_ = before_; }
  AllFlagsRaised(const AllFlagsRaised&) = delete;
  AllFlagsRaised& operator=(const AllFlagsRaised&) = delete;

 private:
  CommitFlags& flags_;
  CommitFlags before_;
};

/// Sets what is at `slot`, without a list.
SetAnswer Store(const Slot& slot, AnySetting& setting, const Identity& id, std::string_view value) {
  if (setting.Type() == SettingType::kText) {
    auto text = ReadText(value);
    // Blanks at the ends are padding in the block, and would not be read again.
    if (text && !slot.zero_ended) *text = std::string(Trimmed(*text));
    if (!text || text->size() > static_cast<std::size_t>(slot.length)) return SetAnswer::kNotAValue;
    if (slot.zero_ended && text->find('\0') != std::string::npos) return SetAnswer::kNotAValue;
    if (*text == setting.Holds().text) return SetAnswer::kUnchanged;
    setting.SetText(*text);
    return SetAnswer::kSet;
  }
  const auto number = ReadNumber(value, setting, setting.Allowed(id, slot.storable));
  if (!number) return SetAnswer::kNotAValue;
  if (*number == setting.Holds().number) return SetAnswer::kUnchanged;
  setting.SetNumber(*number);
  return SetAnswer::kSet;
}

}  // namespace

const char* Describe(SetAnswer answer) {
  switch (answer) {
    case SetAnswer::kSet: return "set";
    case SetAnswer::kUnchanged: return "unchanged";
    case SetAnswer::kNoSuchSetting: return "no such setting";
    case SetAnswer::kReadOnly: return "read-only";
    case SetAnswer::kNotAValue: return "not a value of this setting";
    case SetAnswer::kNoImage: return "no configuration has arrived";
  }
  return "";
}

std::string AllowedInWords(const SettingDescription& setting) {
  if (setting.type == SettingType::kText) {
    return "up to " + std::to_string(setting.most) + " characters";
  }
  if (setting.type == SettingType::kFlag) {
    if (setting.codes.size() != 2) return "yes or no";
    return "no = " + setting.codes[0].text + ", yes = " + setting.codes[1].text;
  }
  std::string words;
  const char* separator = "";
  if (!setting.codes_only) {
    words = std::to_string(setting.least) + " to " + std::to_string(setting.most);
    if (!setting.unit.empty()) words += ' ' + setting.unit;
    const Range range{setting.least, setting.most};
    const bool among = !setting.codes.empty() && range.Holds(setting.codes.front().value);
    separator = among ? ": " : " or ";
  }
  for (const SettingCode& code : setting.codes) {
    words += separator + std::to_string(code.value) + " = " + code.text;
    separator = ", ";
  }
  return words;
}

std::optional<SettingDescription> DescribeSetting(const Configuration& of, std::string_view name) {
  std::optional<SettingDescription> description;
  Seek(of, name, [&](const Slot& slot, AnySetting& setting) {
    if (!IsDescribed(slot)) return;
    if (!description) description = DescriptionOf(slot, setting, of.id);
    AddPlace(*description, slot);
  });
  if (description) {
    SeekWritten(of, name, [&](const Slot&, AnySetting&) { description->writable = true; });
  }
  return description;
}

std::vector<SettingDescription> DescribeSettings(const Configuration& of,
                                                 std::string_view pattern) {
  std::vector<SettingDescription> descriptions;
  for (const SettingLine& line : ListSettings(of.rec, of.id, of.blocks, pattern)) {
    if (auto description = DescribeSetting(of, line.name)) {
      descriptions.push_back(*std::move(description));
    }
  }
  return descriptions;
}

std::optional<std::string> GetSetting(const Configuration& of, std::string_view name) {
  std::optional<std::string> value;
  Seek(of, name, [&value](const Slot& slot, AnySetting& setting) {
    if (slot.IsSetting()) value = setting.Value();
  });
  return value;
}

SetAnswer SetSetting(const Configuration& of, RecordEnvironment& env, std::string_view name,
                     std::string_view value) {
  std::optional<SetAnswer> answer;
  SeekWritten(of, name, [&](const Slot& slot, AnySetting& setting) {
    const AllFlagsRaised tracked(env.commit);
    if (!answer) answer = Store(slot, setting, of.id, value);
    if (answer != SetAnswer::kSet) return;
    of.rec.MarkModified(slot.block);
    RaiseChangeMark(slot.block, slot.at, of.id, of.rec);
  });
  if (answer) return *answer;
  return GetSetting(of, name) ? SetAnswer::kReadOnly : SetAnswer::kNoSuchSetting;
}

namespace {

std::optional<int> WholeNumber(std::string_view digits) {
  int number = 0;
  const char* const last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, number);
  return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

/// Sets what is at `slot` as `stored` says, of a number the bits of `mask` alone.
SetAnswer StoreAgain(const Slot& slot, AnySetting& setting, std::string_view stored, int mask) {
  const layout::SettingValue held = setting.Holds();
  if (setting.Type() == SettingType::kText) {
    if (stored.size() > static_cast<std::size_t>(slot.length)) return SetAnswer::kNotAValue;
    if (stored == held.text) return SetAnswer::kUnchanged;
    setting.SetText(stored);
    return SetAnswer::kSet;
  }
  const auto wanted = WholeNumber(stored);
  if (!wanted) return SetAnswer::kNotAValue;
  const int number = (held.number & ~mask) | (*wanted & mask);
  if (number == held.number) return SetAnswer::kUnchanged;
  setting.SetNumber(number);
  // What does not fit into the setting has become another number.
  return setting.Holds().number == number ? SetAnswer::kSet : SetAnswer::kNotAValue;
}

}  // namespace

bool SetStored(const Configuration& of, RecordEnvironment& env, std::string_view name,
               std::string_view stored, std::set<Byte>& blocks) {
  constexpr std::string_view kBit = " bit ";
  constexpr int kWhole = -1;
  int mask = kWhole;
  std::string shifted;
  if (const auto at = name.find(kBit); at != std::string_view::npos) {
    const auto bit = WholeNumber(name.substr(at + kBit.size()));
    const auto value = WholeNumber(stored);
    if (!bit || *bit < 0 || *bit > 7 || !value) return false;
    mask = 1 << *bit;
    shifted = std::to_string(*value << *bit);
    stored = shifted;
    name = name.substr(0, at);
  }
  std::optional<SetAnswer> answer;
  SeekWritten(of, name, [&](const Slot& slot, AnySetting& setting) {
    const AllFlagsRaised tracked(env.commit);
    if (!answer) answer = StoreAgain(slot, setting, stored, mask);
    blocks.insert(static_cast<Byte>(slot.block));
    if (answer != SetAnswer::kSet) return;
    of.rec.MarkModified(slot.block);
    RaiseChangeMark(slot.block, slot.at, of.id, of.rec);
  });
  return answer == SetAnswer::kSet || answer == SetAnswer::kUnchanged;
}

namespace {

/// Collects the settings that hold what they cannot have. Those that can have whatever their place
/// holds are not looked at.
class UnallowedCollector : public layout::SettingVisitor<UnallowedCollector> {
 public:
  explicit UnallowedCollector(const Identity& id) : id_(id) {}
  template <class Item>
  static constexpr bool Wants() {
    using Meaning = typename Item::Meaning;
    return HasLimits<Meaning> || HasCodes<Meaning> || HasAllowed<Meaning>;
  }
  template <class Item>
  void Setting(const Slot& slot, Item& item, int entry) {
    if constexpr (CanBeUnallowed<Item>()) {
      if (slot.role != Slot::Role::kSetting) return;
      if (layout::AllowedOf<Item>(id_, slot.storable).Holds(static_cast<int>(item()))) return;
      Add(slot, item, entry);
    }
  }
  /// What the items of a word can have is the same for all of them: it is worked out once.
  template <class Items, class SlotOf>
  void Settings(int count, Items& items, const SlotOf& slot_of) {
    using Item = std::remove_cvref_t<decltype(items[0])>;
    if constexpr (CanBeUnallowed<Item>()) {
      const Slot first = slot_of(0);
      if (first.role != Slot::Role::kSetting) return;
      const AllowedNumbers allowed = layout::AllowedOf<Item>(id_, first.storable);
      for (int k = 0; k < count; ++k) {
        auto&& item = items[k];
        if (!allowed.Holds(static_cast<int>(item()))) Add(slot_of(k), item, item.EntryIndex());
      }
    }
  }

  std::vector<SettingFinding> findings;

 private:
  template <class Item>
  static constexpr bool CanBeUnallowed() {
    return Wants<Item>() && std::integral<layout::ValueOf<Item>>;
  }
  template <class Item>
  void Add(const Slot& slot, Item& item, int entry) {
    SettingDescription description =
        DescriptionOf(slot, layout::TypedSetting<std::remove_const_t<Item>>(item, entry), id_);
    findings.push_back({std::move(description.name), layout::ValueHeldBy(item).InWords(),
                        "not " + AllowedInWords(description)});
  }

  const Identity& id_;
};

}  // namespace

std::vector<SettingFinding> FindUnallowed(const Configuration& of) {
  UnallowedCollector collector(of.id);
  Show<false>(of, collector);
  return std::move(collector.findings);
}

}  // namespace quorvel
