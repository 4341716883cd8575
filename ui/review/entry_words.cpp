#include "ui/review/entry_words.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdio>
#include <optional>

#include "ui/context.h"

namespace quorvel {

namespace {

bool IsBareNumber(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char it) {
    return std::isdigit(static_cast<unsigned char>(it)) != 0;
  });
}

/// The camera of a cell's number, from 0; -1 for a text that is none.
int CameraCalled(std::string_view text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return IsBareNumber(text) ? number - 1 : -1;
}

/// Control characters of a device's text as \xHH: a line stays one.
std::string InOneLine(const std::string& text) {
  std::string line;
  constexpr char kDelete = 0x7F;
  for (const char character : text) {
    if (static_cast<unsigned char>(character) >= ' ' && character != kDelete) {
      line += character;
      continue;
    }
    std::array<char, 8> code{};
    std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(character));
    line += code.data();
  }
  return line;
}

int BitOf(const layout::SettingValue& value, int bit) { return value.number >> bit & 1; }

/// How the controls of a side show an entry; nothing where they have no words for it.
std::optional<std::string> ShownOn(const Side& side, const MapEntry& entry) {
  const auto& lines = side.editors->Lines();
  if (entry.line >= lines.size()) return std::nullopt;
  const FieldLine& line = lines[entry.line];
  return line.field->OpenedText(line.line);
}

}  // namespace

bool Differ(const Side& one, const Side& other, std::size_t setting, int mask) {
  const auto lacks = [setting](const Side& side) {
    return !side.lacks.empty() && side.lacks.at(setting);
  };
  const layout::SettingValue& a = one.values.at(setting);
  const layout::SettingValue& b = other.values.at(setting);
  return !(a == b) && (a.text != b.text || ((a.number ^ b.number) & mask) != 0) && !lacks(one) &&
         !lacks(other);
}

bool Differ(const Side& one, const Side& other, const MapEntry::Part& part) {
  return Differ(one, other, part.setting, part.bit < 0 ? -1 : 1 << part.bit);
}

bool Differ(const Side& one, const Side& other, const MapEntry& entry) {
  return std::ranges::any_of(entry.parts,
                             [&](const auto& part) { return Differ(one, other, part); });
}

std::vector<std::string> StoredIn(const MapEntry& entry, const Side& side) {
  std::vector<std::string> stored;
  for (const MapEntry::Part& part : entry.parts) {
    const layout::SettingValue& value = side.values.at(part.setting);
    stored.push_back(part.bit < 0 ? StoredForm(value) : std::to_string(BitOf(value, part.bit)));
  }
  return stored;
}

std::vector<Byte> BlocksOf(const MapEntry& entry, const SettingList& settings, const Side& side,
                           const Side* other) {
  std::vector<Byte> blocks;
  for (const MapEntry::Part& part : entry.parts) {
    if (other != nullptr && !Differ(side, *other, part)) continue;
    const std::vector<Byte>& carriers = settings.At(part.setting).blocks;
    blocks.insert(blocks.end(), carriers.begin(), carriers.end());
  }
  std::ranges::sort(blocks);
  blocks.erase(std::unique(blocks.begin(), blocks.end()), blocks.end());
  return blocks;
}

EntryWords::EntryWords(const SettingList& settings, Context& context)
    : settings_(settings),
      platform_(context.platform),
      yes_(context.texts.Constants().cnstrYes),
      no_(context.texts.Constants().cnstrNo) {}

/// Of several settings each is named, by what it is in its record: "RTdate 3, RTvalid 0".
std::string EntryWords::Listed(const MapEntry& entry, const Side& side) {
  std::string words;
  for (std::size_t i = 0; i < entry.parts.size(); ++i) {
    const MapEntry::Part& part = entry.parts[i];
    const layout::SettingValue& value = side.values.at(part.setting);
    if (!words.empty()) words += ", ";
    if (entry.parts.size() > 1) {
      const std::string& name = entry.names.at(i);
      words += name.substr(name.rfind('.') + 1) + ' ';
    }
    words += part.bit < 0 ? value.InWords() : std::to_string(BitOf(value, part.bit));
  }
  return words;
}

std::string EntryWords::Of(const MapEntry& entry, const Side& side) const {
  const auto shown = ShownOn(side, entry);
  if (!shown) return Listed(entry, side);
  if (entry.ticks) {
    const MapEntry::Part& part = entry.parts.front();
    const layout::SettingValue& value = side.values.at(part.setting);
    const int ticked = part.bit < 0 ? value.number : BitOf(value, part.bit);
    return ticked == 0 ? no_ : *shown == "x" ? yes_ : Listed(entry, side);
  }
  if (entry.names_camera) return *shown + TitleOn(side, CameraCalled(*shown));
  const bool alone = entry.parts.size() == 1;
  if (!alone || !IsBareNumber(*shown)) return InOneLine(*shown);
  return *shown + std::string(settings_.At(entry.parts.front().setting).unit);
}

std::pair<std::string, std::string> EntryWords::Of(const MapEntry& entry, const Side& one,
                                                   const Side& other) const {
  std::pair words{Of(entry, one), Of(entry, other)};
  if (words.first == words.second) words = {Listed(entry, one), Listed(entry, other)};
  return words;
}

bool EntryWords::ReadAlike(const MapEntry& entry, const Side& one, const Side& other) {
  const auto shown = ShownOn(one, entry);
  return shown && shown == ShownOn(other, entry);
}

SettingPosition EntryWords::Place(const MapEntry& entry, const Side& side) const {
  SettingPosition at = entry.at;
  if (!entry.shared && !at.line.empty()) at.line += TitleOn(side, entry.camera);
  return at;
}

std::string EntryWords::TitleOn(const Side& side, int camera) const {
  const Cameras* const of = side.editors->Record().CamInfo(camera);
  if (of == nullptr) return {};
  std::string_view title = of->title();
  title = title.substr(0, title.find('\0'));
  title = title.substr(0, title.find_last_not_of(' ') + 1);
  return title.empty() ? "" : " \"" + InOneLine(platform_.ToUtf8(title)) + '"';
}

}  // namespace quorvel
