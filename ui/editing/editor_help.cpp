#include <algorithm>
#include <span>
#include <string>
#include <string_view>

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

bool IsDigit(char it) { return it >= '0' && it <= '9'; }

/// True for "12", "0.5" and, with a unit of one word, "12 pps".
bool IsNumber(std::string_view text, bool with_unit) {
  const auto end = std::min(text.find_first_not_of("0123456789."), text.size());
  if (text.empty() || !IsDigit(text.front()) || !IsDigit(text.at(end - 1))) return false;
  const std::string_view unit = text.substr(end);
  if (unit.empty() || !with_unit) return unit.empty();
  return unit.size() > 1 && unit.front() == ' ' && unit.find(' ', 1) == std::string_view::npos &&
         std::ranges::none_of(unit, IsDigit);
}

/// "NONE", or "--".
bool IsEmptyChoice(std::string_view text, std::string_view none) {
  return text == none || text.find_first_not_of(" -") == std::string_view::npos;
}

/// The ends of a list, without the choice of nothing; empty where they are no numbers, and for a
/// list that is seen whole.
std::string EndsOf(const ChoiceWidget& list, const SettingDescription& setting,
                   std::string_view none) {
  constexpr int kSeenWhole = 8;
  if (list.Count() <= kSeenWhole) return {};
  std::span<const std::string> items(list.Items());
  while (!items.empty() && IsEmptyChoice(items.front(), none)) items = items.subspan(1);
  while (!items.empty() && IsEmptyChoice(items.back(), none)) items = items.first(items.size() - 1);
  if (items.empty() || !IsNumber(items.front(), true) || !IsNumber(items.back(), true)) return {};
  const bool bare = IsNumber(items.front(), false) && IsNumber(items.back(), false);
  return items.front() + " - " + items.back() +
         (bare && !setting.unit.empty() ? " " + setting.unit : "");
}

/// The ends of what the control offers, as it offers them; empty where there are none to tell.
std::string RangeInWords(const ShownSetting& shown, const SettingDescription& setting,
                         std::string_view none) {
  const Widget* const control = shown.edited_by == nullptr ? shown.control : shown.edited_by;
  const auto* const list = dynamic_cast<const ChoiceWidget*>(control);
  if (list != nullptr) return EndsOf(*list, setting, none);
  const auto* const slider = dynamic_cast<const Slider*>(control);
  if (slider == nullptr && dynamic_cast<const TextBox*>(control) == nullptr) return {};
  const int least = slider == nullptr ? setting.least : slider->Minimum();
  const int most = slider == nullptr ? setting.most : slider->Maximum();
  return std::to_string(least) + " - " + std::to_string(most) +
         (setting.unit.empty() ? "" : " " + setting.unit);
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
  const std::string& none = Words().cnstrNone;
  const EditorWords& words = context_.texts.OfEditors();
  for (const ShownSetting& shown : ShownSettings()) {
    if (!IsAbout(shown, control, row, column)) continue;
    for (const std::string& name : shown.settings) {
      const auto setting = DescribeSetting(present, name);
      if (!setting) continue;
      if (setting->type == SettingType::kText) {
        AddLine(help, words.most_characters + std::to_string(setting->most));
      } else if (const std::string range = RangeInWords(shown, *setting, none); !range.empty()) {
        AddLine(help, words.range + range);
      }
      AddLine(help, words.blocks + Numbers(*setting) + ", " + name);
    }
    if (shown.stored) AddLine(help, words.stored + std::to_string(*shown.stored));
  }
  return help;
}

}  // namespace quorvel
