#include "ui/review/reviewer.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "core/setting_list.h"
#include "ui/context.h"
#include "ui/review/entry_words.h"
#include "ui/review/setting_map.h"
#include "ui/review/unseen_editors.h"

namespace quorvel {

namespace {

/// The setting that the menu gives a value of its own, where it does.
std::optional<std::size_t> KeptByMenu(const SettingList& settings, const Context& context) {
  return context.device.MenuLocksKeyboard ? settings.Find("LockKeyBoard") : std::nullopt;
}

/// The settings that differ, as numbers.
std::vector<std::size_t> Differing(const Side& one, const Side& other,
                                   std::optional<std::size_t> but) {
  std::vector<std::size_t> settings;
  for (std::size_t i = 0; i < one.values.size(); ++i) {
    if (i != but && Differ(one, other, i)) settings.push_back(i);
  }
  return settings;
}

bool AreWritable(const MapEntry& entry, const SettingList& settings) {
  return std::ranges::all_of(entry.parts,
                             [&](const auto& part) { return settings.At(part.setting).writable; });
}

/// Two lines of one control that read alike are one.
bool Join(ReviewLine& line, const ReviewLine& next, const std::string& camera) {
  const bool alike = line.at.window == next.at.window && line.at.control == next.at.control &&
                     line.old_value == next.old_value && line.new_value == next.new_value;
  if (!alike) return false;
  line.at.line += ", " + camera;
  line.settings.insert(line.settings.end(), next.settings.begin(), next.settings.end());
  line.stored.insert(line.stored.end(), next.stored.begin(), next.stored.end());
  line.writable = line.writable && next.writable;
  std::set<Byte> blocks(line.blocks.begin(), line.blocks.end());
  blocks.insert(next.blocks.begin(), next.blocks.end());
  line.blocks.assign(blocks.begin(), blocks.end());
  return true;
}

/// While it lives, a text source that is asked for a text gets no review: what is known stays.
class Asking {
 public:
  explicit Asking(bool& asking) : asking_(asking) { asking_ = true; }
  ~Asking() { asking_ = false; }
  Asking(const Asking&) = delete;
  Asking& operator=(const Asking&) = delete;

 private:
  bool& asking_;
};

}  // namespace

/// What is known for the present image and its texts.
struct Reviewer::Known {
  int generation;
  int text_source;
  HostStatements host;
  std::shared_ptr<TextCatalogue::KnownTexts> texts = std::make_shared<TextCatalogue::KnownTexts>();
  std::optional<SettingList> settings = {};
  std::unique_ptr<UnseenEditors> present = {};
  std::vector<std::unique_ptr<UnseenEditors>> others = {};  ///< the last used is first
  std::optional<SettingMap> map = {};                       ///< of the present editors
};

Reviewer::Reviewer(Context& context) : context_(context) {}
Reviewer::~Reviewer() = default;

bool Reviewer::IsUpToDate() const {
  return known_ != nullptr && known_->generation == context_.device.ImageGeneration() &&
         known_->text_source == context_.texts.SourceNumber() && known_->host == context_.host;
}

bool Reviewer::Prepare() {
  if (asking_ || !context_.device.HasImage()) return false;
  const Asking asks(asking_);
  // What was being made while another image came is that of none.
  constexpr int kTries = 3;
  for (int tries = 0; tries < kTries && !(IsUpToDate() && known_->present != nullptr &&
                                          known_->present->Show(context_.device.Record()));
       ++tries) {
    MuxData& record = context_.device.Record();
    if (!IsUpToDate()) {
      known_ = std::make_unique<Known>(
          Known{context_.device.ImageGeneration(), context_.texts.SourceNumber(), context_.host});
      known_->settings.emplace(
          Configuration{record, context_.device.env.identity, context_.device.BlkImage.BlkCount()});
    }
    known_->present = std::make_unique<UnseenEditors>(context_, record, known_->texts);
    // The record of a lite model decides which controls show its cameras; of others, nothing moves.
    const bool moves = context_.device.env.identity.LiteRecordModel;
    if (IsUpToDate() && (moves || !known_->map)) {
      known_->map.emplace(*known_->present, *known_->settings);
    }
  }
  return IsUpToDate() && known_->map.has_value();
}

Side Reviewer::Present() {
  const DeviceState& device = known_->present->Surroundings().device;
  return {known_->settings->Values(
              {known_->present->Record(), device.env.identity, device.BlkImage.BlkCount()}),
          {},
          known_->present.get()};
}

/// Its values are looked for where the present device has its own.
Side Reviewer::Other(const Configuration& other) {
  const DeviceState& device = known_->present->Surroundings().device;
  const int blocks = device.BlkImage.BlkCount();
  Side side{known_->settings->Values({other.rec, device.env.identity, blocks})};
  if (other.blocks != blocks || other.id.MaxCam != device.env.identity.MaxCam) {
    const SettingList its_own(other);
    for (std::size_t i = 0; i < known_->settings->Count(); ++i) {
      side.lacks.push_back(!its_own.Find(known_->settings->At(i).name));
    }
  }
  return side;
}

const UnseenEditors& Reviewer::EditorsOf(const MuxData& record) {
  constexpr std::size_t kKept = 3;  // the device's, the factory's and a file's
  auto& others = known_->others;
  const auto found = std::ranges::find_if(others, [&](const auto& it) { return it->Show(record); });
  if (found == others.end()) {
    if (others.size() == kKept) others.pop_back();
    others.insert(others.begin(), std::make_unique<UnseenEditors>(context_, record, known_->texts));
  } else {
    std::rotate(others.begin(), found, found + 1);
  }
  return *others.front();
}

std::vector<bool> Reviewer::Telling(const EntryWords& words, Side& was, const Side& is,
                                    const MuxData& record) {
  const auto& entries = known_->map->Entries();
  std::vector<bool> meant(entries.size());
  for (const std::size_t setting : Differing(is, was, KeptByMenu(*known_->settings, context_))) {
    for (const std::size_t number : known_->map->Showing(setting)) {
      const MapEntry& entry = entries.at(number);
      if (entry.is_first && Differ(was, is, entry)) meant.at(number) = true;
    }
  }
  if (std::ranges::find(meant, true) == meant.end()) return meant;
  was.editors = &EditorsOf(record);
  LeaveOutWhatReadsAlike(words, was, is, meant);
  return meant;
}

/// A setting may stand behind several cells, as the end of a macro does behind all its steps: a
/// cell that reads as it did is no line where others tell of all that differs behind it.
void Reviewer::LeaveOutWhatReadsAlike(const EntryWords& words, const Side& was, const Side& is,
                                      std::vector<bool>& meant) const {
  const auto& entries = known_->map->Entries();
  std::vector<std::size_t> alike;
  std::set<std::pair<std::size_t, int>> told;
  const auto tell = [&](const MapEntry& entry) {
    for (const MapEntry::Part& part : entry.parts) told.insert({part.setting, part.bit});
  };
  for (std::size_t number = 0; number < meant.size(); ++number) {
    if (!meant[number]) continue;
    if (entries[number].parts.size() > 1 && words.ReadAlike(entries[number], was, is)) {
      alike.push_back(number);
    } else {
      tell(entries[number]);
    }
  }
  for (const std::size_t number : alike) {
    const auto is_told = [&](const MapEntry::Part& part) {
      return !Differ(was, is, part) || told.contains({part.setting, part.bit});
    };
    meant[number] = !std::ranges::all_of(entries[number].parts, is_told);
    if (meant[number]) tell(entries[number]);
  }
}

std::vector<ReviewLine> Reviewer::Review(const Configuration& other) {
  const Asking asks(asking_);
  const SettingList& settings = *known_->settings;
  const SettingMap& map = *known_->map;
  const Side is = Present();
  Side was = Other(other);
  const EntryWords words(settings, context_);
  const std::vector<bool> meant = Telling(words, was, is, other.rec);
  std::vector<ReviewLine> lines;
  const auto add = [&](const MapEntry& entry) {
    auto [old_value, new_value] = words.Of(entry, was, is);
    ReviewLine line{words.Place(entry, is),      entry.names,
                    StoredIn(entry, was),        std::move(old_value),
                    std::move(new_value),        BlocksOf(entry, settings, is, &was),
                    AreWritable(entry, settings)};
    const std::string camera = std::to_string(entry.camera + 1);
    if (entry.shared && !lines.empty() && Join(lines.back(), line, camera)) return;
    lines.push_back(std::move(line));
  };
  for (std::size_t number = 0; number < meant.size(); ++number) {
    if (meant[number]) add(map.Entries()[number]);
  }
  return lines;
}

std::vector<SettingRow> Reviewer::AllSettings(const Configuration& device,
                                              const Configuration& factory) {
  const Asking asks(asking_);
  const SettingList& settings = *known_->settings;
  const SettingMap& map = *known_->map;
  const Side is = Present();
  Side of_device = Other(device);
  Side of_factory = Other(factory);
  const EntryWords words(settings, context_);
  const std::vector<bool> changed = Telling(words, of_device, is, device.rec);
  const std::vector<bool> not_factory = Telling(words, of_factory, is, factory.rec);
  std::vector<SettingRow> rows;
  for (std::size_t number = 0; number < map.Entries().size(); ++number) {
    const MapEntry& entry = map.Entries()[number];
    if (!entry.is_first) continue;
    rows.push_back({words.Place(entry, is), entry.names, StoredIn(entry, is), words.Of(entry, is),
                    BlocksOf(entry, settings, is), changed[number], not_factory[number]});
  }
  return rows;
}

}  // namespace quorvel
