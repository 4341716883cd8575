#include <string>

#include "core/settings_by_name.h"
#include "ui/context.h"
#include "ui/editing/editor.h"

namespace quorvel {

namespace {

/// Whether a control is the one of a setting, or another option of its group.
bool IsOf(const ShownSetting& shown, const Widget& control) {
  if (shown.control == &control) return true;
  const auto* const option = dynamic_cast<const OptionButton*>(&control);
  const auto* const first = dynamic_cast<const OptionButton*>(shown.control);
  return option != nullptr && first != nullptr && option->GetGroup() != nullptr &&
         option->GetGroup() == first->GetGroup();
}

/// Of a grid, a cell's own; of a control beside it, that of the current cell.
bool IsAbout(const ShownSetting& shown, const Widget& control, int row, int column) {
  if (shown.row == Grid::kNone) return IsOf(shown, control);
  if (shown.control == &control) return shown.row == row && shown.column == column;
  if (shown.edited_by != &control) return false;
  const auto& grid = dynamic_cast<const Grid&>(*shown.control);
  return shown.row == grid.Row() && shown.column == grid.Column();
}

/// Adds a line of text, unless it is there already.
void AddLine(std::string& text, const std::string& line) {
  if (text.find(line) != std::string::npos) return;
  if (!text.empty()) text += '\n';
  text += line;
}

/// The ends of what the control offers, as it offers them; empty for a list that is seen whole.
std::string RangeInWords(const ShownSetting& shown, const SettingDescription& setting) {
  constexpr int kSeenWhole = 8;
  const Widget* const control = shown.edited_by == nullptr ? shown.control : shown.edited_by;
  const auto* const list = dynamic_cast<const ChoiceWidget*>(control);
  const auto* const slider = dynamic_cast<const Slider*>(control);
  std::string least = std::to_string(slider == nullptr ? setting.least : slider->Minimum());
  std::string most = std::to_string(slider == nullptr ? setting.most : slider->Maximum());
  if (list != nullptr) {
    if (list->Count() <= kSeenWhole) return {};
    least = list->Items().front();
    most = list->Items().back();
  } else if (slider == nullptr && dynamic_cast<const TextBox*>(control) == nullptr) {
    return {};
  }
  return least + " - " + most + (setting.unit.empty() ? "" : " " + setting.unit);
}

std::string Numbers(const SettingDescription& setting) {
  std::string numbers;
  for (const std::uint8_t block : setting.blocks) {
    numbers += (numbers.empty() ? "" : ", ") + std::to_string(block);
  }
  return numbers;
}

}  // namespace

std::string Editor::HelpOf(const Widget& control, int row, int column) const {
  std::string help = Dialog::HelpOf(control, row, column);
  if (!BelongsToImage()) return help;
  DeviceState& device = context_.device;
  const Configuration present{device.Record(), device.env.identity, device.BlkImage.BlkCount()};
  for (const ShownSetting& shown : ShownSettings()) {
    if (!IsAbout(shown, control, row, column)) continue;
    for (const std::string& name : shown.settings) {
      const auto setting = DescribeSetting(present, name);
      if (!setting) continue;
      if (setting->type == SettingType::kText) {
        AddLine(help, help_words_.most_characters + std::to_string(setting->most));
      } else if (const std::string range = RangeInWords(shown, *setting); !range.empty()) {
        AddLine(help, help_words_.range + range);
      }
      AddLine(help, help_words_.blocks + Numbers(*setting) + ", " + name);
    }
    if (shown.value) AddLine(help, help_words_.stored + std::to_string(*shown.value));
  }
  return help;
}

}  // namespace quorvel
