#include "muxhost/gallery/texts.h"

#include <utility>
#include <vector>

#include "quorvel/texts.h"

namespace quorvel::muxhost {

namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

void MakeItemsLonger(ChoiceWidget& choice) {
  const int current = choice.Current();
  std::vector<std::string> items;
  for (const std::string& item : choice.Items()) items.push_back(Longer(item));
  choice.SetItems(std::move(items));
  choice.Select(current);
}

void MakeCellsLonger(Grid& grid) {
  for (int row = 0; row < grid.Rows(); ++row) {
    for (int column = 0; column < grid.Columns(); ++column) {
      grid.SetCell(row, column, Longer(grid.Cell(row, column)), grid.Value(row, column));
    }
  }
}

void MakeLonger(Widget& widget) {
  widget.SetCaption(Longer(widget.Caption()));
  if (auto* const choice = dynamic_cast<ChoiceWidget*>(&widget)) MakeItemsLonger(*choice);
  if (auto* const grid = dynamic_cast<Grid*>(&widget)) MakeCellsLonger(*grid);
  if (auto* const tabs = dynamic_cast<TabStrip*>(&widget)) {
    for (int page = 0; page < tabs->Count(); ++page) {
      tabs->SetPageCaption(page, Longer(tabs->Pages().at(static_cast<std::size_t>(page)).caption));
    }
  }
  if (auto* const bar = dynamic_cast<StatusBar*>(&widget)) {
    for (int panel = 1; panel <= bar->Panels(); ++panel) {
      bar->SetPanel(panel, Longer(bar->Panel(panel)));
    }
  }
}

}  // namespace

std::string Longer(std::string_view text) {
  std::string longer;
  bool second = false;
  for (const char c : text) {
    longer += c;
    if (!IsLetter(c)) continue;
    if (second) longer += c;
    second = !second;
  }
  return longer;
}

void MakeLonger(Dialog& dialog) {
  dialog.SetCaption(Longer(dialog.Caption()));
  for (Widget* const widget : dialog.Widgets()) MakeLonger(*widget);
}

std::shared_ptr<const Language> LongTexts(const std::shared_ptr<const Language>& language) {
  auto longer = std::make_shared<Language>();
  for (const BuiltInEntry& entry : BuiltInTexts()) longer->texts[entry.id] = Longer(entry.english);
  for (const std::string& text : WindowTexts()) longer->window[text] = Longer(text);
  if (language == nullptr) return longer;
  for (const auto& [id, text] : language->texts) longer->texts[id] = Longer(text);
  for (const auto& [english, text] : language->window) longer->window[english] = Longer(text);
  return longer;
}

}  // namespace quorvel::muxhost
