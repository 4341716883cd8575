#include "muxhost/review_text.h"

namespace quorvel::muxhost {

namespace {

std::string Shown(std::string_view value) {
  return value.empty() ? std::string(R"("")") : std::string(value);
}

}  // namespace

std::string LabelText(std::string_view label) {
  constexpr const char* kAround = " :";
  const auto first = label.find_first_not_of(kAround);
  if (first == std::string_view::npos) return std::string(label);
  return std::string(label.substr(first, label.find_last_not_of(kAround) - first + 1));
}

std::string Place(const SettingPosition& at, std::span<const std::string> settings) {
  std::string place;
  const auto add = [&place](const std::string& part, const char* separator) {
    if (part.empty()) return;
    if (!place.empty()) place += separator;
    place += part;
  };
  if (at.item.empty()) return NamesIn(settings);
  add(at.editor, "");
  if (at.page != at.editor) add(LabelText(at.page), " > ");
  add(LabelText(at.label), " > ");
  add(at.line, " > ");
  return place;
}

std::string NamesIn(std::span<const std::string> settings) {
  std::string names;
  for (const std::string& name : settings) names += (names.empty() ? "" : ", ") + name;
  return names;
}

std::string Change(const ReviewLine& line) {
  return Shown(line.old_value) + " -> " + Shown(line.new_value);
}

std::string Numbers(std::span<const std::uint8_t> blocks) {
  std::string numbers;
  for (const int block : blocks) numbers += (numbers.empty() ? "" : " ") + std::to_string(block);
  return numbers;
}

std::string BlocksInWords(std::span<const std::uint8_t> blocks) {
  return (blocks.size() == 1 ? "block " : "blocks ") + Numbers(blocks);
}

std::string InWords(const ReviewLine& line) {
  return Place(line.at, line.settings) + ": " + Change(line) + " (" + BlocksInWords(line.blocks) +
         (line.writable ? ")" : ", which only the device writes)");
}

std::string InWords(const SettingRow& row, std::optional<std::string_view> in_file) {
  return Place(row.at, row.settings) + ": " + (in_file ? Shown(*in_file) + " -> " : "") +
         Shown(row.value) + " (" + BlocksInWords(row.blocks) +
         (row.differs_from_device ? ", changed)" : ")");
}

}  // namespace quorvel::muxhost
