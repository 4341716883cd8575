#include "muxhost/review_text.h"

namespace quorvel::muxhost {

std::string LabelText(const std::string& label) {
  constexpr const char* kAround = " :";
  const auto first = label.find_first_not_of(kAround);
  if (first == std::string::npos) return label;
  return label.substr(first, label.find_last_not_of(kAround) - first + 1);
}

std::string Place(const SettingPosition& at, std::span<const std::string> settings) {
  std::string place;
  const auto add = [&place](const std::string& part, const char* separator) {
    if (part.empty()) return;
    if (!place.empty()) place += separator;
    place += part;
  };
  if (at.item.empty()) {
    for (const std::string& name : settings) add(name, ", ");
    return place;
  }
  add(at.editor, "");
  if (at.page != at.editor) add(LabelText(at.page), " > ");
  add(LabelText(at.label), " > ");
  add(at.line, " > ");
  return place;
}

std::string Change(const ReviewLine& line) {
  const auto value = [](const std::string& text) { return text.empty() ? "\"\"" : text; };
  return value(line.old_value) + " -> " + value(line.new_value);
}

std::string BlocksInWords(std::span<const std::uint8_t> blocks) {
  std::string words = blocks.size() == 1 ? "block" : "blocks";
  for (const int block : blocks) words += ' ' + std::to_string(block);
  return words;
}

std::string InWords(const ReviewLine& line) {
  return Place(line.at, line.settings) + ": " + Change(line) + " (" + BlocksInWords(line.blocks) +
         ")";
}

}  // namespace quorvel::muxhost
