#include "settings_files/comparison.h"

namespace quorvel::files {

namespace {

/// What is told of a device beside its settings, by name and value.
std::vector<SettingLine> DeviceLines(const FileParts& parts) {
  std::vector<SettingLine> lines;
  const auto device = DeviceOf(parts);
  lines.push_back({"model", device ? ModelInWords(device->model) : ""});
  lines.push_back({"cameras", device ? std::to_string(device->cameras) : ""});
  lines.push_back({"variant", VariantOf(parts).value_or("")});
  lines.push_back({"blocks", std::to_string(parts.image.size() / kBlockSize)});
  return lines;
}

}  // namespace

std::string InWords(const Difference& difference) {
  const auto shown = [](const std::string& value) { return value.empty() ? "none" : value; };
  return difference.name + ": " + shown(difference.from) + " -> " + shown(difference.to);
}

std::optional<std::vector<Difference>> DifferencesFrom(const FileParts& before,
                                                       const MainMenuCtrl& control,
                                                       const FileParts& parts) {
  const auto settings = control.DifferencesFrom(before.image);
  if (!settings) return std::nullopt;
  std::vector<Difference> differences;
  const auto theirs = DeviceLines(before);
  const auto mine = DeviceLines(parts);
  for (std::size_t i = 0; i < mine.size(); ++i) {
    if (mine.at(i) == theirs.at(i)) continue;
    differences.push_back({mine.at(i).name, theirs.at(i).value, mine.at(i).value});
  }
  for (const SettingDifference& it : *settings) {
    differences.push_back({it.name, it.other, it.value});
  }
  return differences;
}

}  // namespace quorvel::files
