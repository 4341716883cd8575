#include "ui/review/setting_map.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

#include "resources/text_table.h"

namespace quorvel {

namespace {

/// Between the name of a mask and the number of a bit.
constexpr std::string_view kBit = " bit ";

/// Where an entry comes in a list of all.
using Order = std::tuple<std::size_t, int, std::size_t, int, int>;

std::optional<int> WholeNumber(std::string_view text) {
  int number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number);
  return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

/// A caption as it reads in a line of text: single blanks, and no colon at its end.
std::string Tidy(std::string_view caption) {
  std::string tidy;
  for (const char letter : caption) {
    if (letter != ' ' || (!tidy.empty() && tidy.back() != ' ')) tidy += letter;
  }
  while (!tidy.empty() && (tidy.back() == ' ' || tidy.back() == ':')) tidy.pop_back();
  return tidy;
}

/// The number and the bit of a setting's name.
std::optional<MapEntry::Part> PartOf(const std::string& name, const SettingList& settings) {
  const auto at = name.find(kBit);
  const auto number = settings.Find(name.substr(0, at));
  if (!number) return std::nullopt;
  if (at == std::string::npos) return MapEntry::Part{*number};
  return MapEntry::Part{*number,
                        WholeNumber(std::string_view(name).substr(at + kBit.size())).value_or(0)};
}

/// One editor, whose lines become entries.
class EditorReader {
 public:
  EditorReader(const UnseenEditors& all, std::size_t number)
      : opened_(all.All().at(number)), number_(number), editor_(*opened_.editor) {
    const auto& texts = all.Surroundings().texts;
    camera_words_ = {texts.GetText(txt::kCamera), texts.GetText(txt::kCameras)};
    camera_ = camera_words_.front();
    const auto& widgets = editor_.Widgets();
    for (std::size_t i = 0; i < widgets.size(); ++i) {
      places_[widgets[i]] = i;
      const auto* const tabs = dynamic_cast<const TabStrip*>(widgets[i]);
      if (tabs == nullptr) continue;
      for (const Page& page : tabs->Pages()) {
        pages_.try_emplace(page.caption, static_cast<int>(pages_.size()));
      }
    }
  }

  [[nodiscard]] std::pair<Order, MapEntry> Read(const ShownSetting& shown, const FieldLine& line) {
    MapEntry entry;
    entry.at = {std::string(opened_.item),
                editor_.Name(),
                editor_.Caption(),
                shown.page,
                shown.caption,
                shown.line,
                shown.control->Name(),
                shown.row,
                shown.column};
    entry.at.page = Tidy(entry.at.page);
    entry.at.label = Tidy(entry.at.label);
    entry.names = shown.settings;
    entry.ticks = shown.control->Kind() == WidgetKind::kCheckBox;
    if (shown.row != Grid::kNone) {
      NameRow(dynamic_cast<const Grid&>(*shown.control), entry);
    } else if (entry.ticks) {
      NameTick(*shown.control, entry);
    } else if (shown.settings.front().starts_with("Cam")) {
      entry.camera = line.line;
    }
    const auto page = pages_.find(shown.page);
    const Widget* const control = shown.edited_by != nullptr ? shown.edited_by : shown.control;
    return {{number_, page == pages_.end() ? -1 : page->second, places_.at(control), shown.column,
             shown.row == Grid::kNone ? line.line : shown.row},
            std::move(entry)};
  }

 private:
  /// "Camera 3", "Event 1"; a row that has a name of its own is called by it. Rows with notes are
  /// cameras, whatever their heading: the notes are the titles.
  void NameRow(const Grid& grid, MapEntry& entry) const {
    entry.names_camera = grid.HasValueNotes(entry.at.column);
    const auto number = WholeNumber(entry.at.line);
    if (!number) return;
    const std::string& head = grid.Cell(0, 0);
    const bool of_camera =
        grid.HasRowNotes() || std::ranges::find(camera_words_, head) != camera_words_.end();
    if (of_camera) entry.camera = *number - 1;
    entry.at.line = (of_camera ? camera_ : head) + ' ' + entry.at.line;
  }
  /// A box among others is called by what is around them, too.
  static void NameTick(const Widget& box, MapEntry& entry) {
    const std::string& around = box.SurroundingCaption();
    if (around != box.Name() && !entry.at.label.starts_with(around)) {
      entry.at.label = Tidy(around) + ", " + entry.at.label;
    }
  }

  const UnseenEditors::Opened& opened_;
  std::size_t number_;
  const Editor& editor_;
  std::vector<std::string> camera_words_;
  std::string camera_;
  std::map<const Widget*, std::size_t> places_;
  std::map<std::string, int> pages_;
};

}  // namespace

SettingMap::SettingMap(const UnseenEditors& editors, const SettingList& settings) {
  std::vector<std::pair<Order, MapEntry>> found;
  for (std::size_t number = 0; number < editors.All().size(); ++number) {
    const UnseenEditors::Opened& opened = editors.All()[number];
    EditorReader reader(editors, number);
    std::size_t line = opened.first_line;
    for (const ShownSetting& shown : opened.editor->ShownSettings()) {
      found.push_back(reader.Read(shown, editors.Lines().at(line)));
      MapEntry& entry = found.back().second;
      entry.line = line++;
      for (const std::string& name : shown.settings) {
        if (const auto part = PartOf(name, settings)) entry.parts.push_back(*part);
      }
      // Of a setting that the device lacks there is nothing to tell.
      if (entry.parts.size() != entry.names.size()) found.pop_back();
    }
  }
  std::ranges::stable_sort(found, {}, &std::pair<Order, MapEntry>::first);

  showing_.resize(settings.Count());
  std::set<std::pair<std::size_t, int>> seen;
  for (auto& [order, entry] : found) {
    for (const MapEntry::Part& part : entry.parts) {
      if (seen.insert({part.setting, part.bit}).second) entry.is_first = true;
      showing_[part.setting].push_back(entries_.size());
    }
    entries_.push_back(std::move(entry));
  }
  MarkShared(editors.Surroundings().texts.GetText(txt::kCamera));
  AddUnseen(settings);
}

/// Of a mask whose bits have controls of their own, the other bits.
void SettingMap::AddUnseen(const SettingList& settings) {
  for (std::size_t setting = 0; setting < settings.Count(); ++setting) {
    const ListedSetting& it = settings.At(setting);
    const auto add = [&](int bit) {
      MapEntry entry;
      entry.names = {bit < 0 ? it.name : it.name + std::string(kBit) + std::to_string(bit)};
      entry.parts = {{setting, bit}};
      entry.is_first = true;
      showing_[setting].push_back(entries_.size());
      entries_.push_back(std::move(entry));
    };
    int seen = 0;
    for (const std::size_t number : showing_[setting]) {
      for (const MapEntry::Part& part : entries_.at(number).parts) {
        if (part.setting == setting) seen |= part.bit < 0 ? -1 : 1 << part.bit;
      }
    }
    if (seen == 0) {
      add(-1);
      continue;
    }
    for (int bit = 0; it.most >> bit != 0; ++bit) {
      if ((seen >> bit & 1) == 0) add(bit);
    }
  }
}

void SettingMap::MarkShared(const std::string& camera_word) {
  const auto control_of = [](const MapEntry& it) { return std::tie(it.at.window, it.at.control); };
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    MapEntry& entry = entries_[i];
    const auto is_same = [&](std::size_t other) {
      return other < entries_.size() && control_of(entries_[other]) == control_of(entry);
    };
    if (entry.at.row != Grid::kNone || entry.camera < 0 || (!is_same(i - 1) && !is_same(i + 1))) {
      continue;
    }
    entry.shared = true;
    entry.at.line = camera_word + ' ' + std::to_string(entry.camera + 1);
  }
}

}  // namespace quorvel
