#include "muxhost/find/csv.h"

#include <algorithm>
#include <vector>

#include "muxhost/review_text.h"

namespace quorvel::muxhost {

namespace {

bool IsDigit(char it) { return it >= '0' && it <= '9'; }

/// "12", "-3", "0.5".
bool IsNumber(std::string_view text) {
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  const auto point = text.find('.');
  const auto is_digits = [](std::string_view part) {
    return !part.empty() && std::ranges::all_of(part, IsDigit);
  };
  if (point == std::string_view::npos) return is_digits(text);
  return is_digits(text.substr(0, point)) && is_digits(text.substr(point + 1));
}

std::string Quoted(std::string_view text) {
  std::string cell = HarmlessCell(text);
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  for (auto at = cell.find('"'); at != std::string::npos; at = cell.find('"', at + 2)) {
    cell.insert(at, 1, '"');
  }
  return '"' + cell + '"';
}

void AddLine(std::string& csv, std::span<const std::string> cells) {
  const char* separator = "";
  for (const std::string& cell : cells) {
    csv += separator + Quoted(cell);
    separator = ",";
  }
  csv += "\r\n";
}

}  // namespace

std::string HarmlessCell(std::string_view text) {
  // Blanks in front do not keep every program from reading a formula.
  const auto first = text.find_first_not_of(' ');
  constexpr std::string_view kFormulas = "=+-@\t\r";
  const bool harmless = first == std::string_view::npos ||
                        kFormulas.find(text.at(first)) == std::string_view::npos || IsNumber(text);
  return harmless ? std::string(text) : "'" + std::string(text);
}

std::string CsvOf(const SettingTable& table, std::span<const std::size_t> rows) {
  std::vector<std::string> cells{"Editor", "Page", "Label", "Line", "Value"};
  if (table.HasFile()) cells.emplace_back("In the file");
  cells.insert(cells.end(), {"Blocks", "Differs from device", "Differs from factory", "Names"});
  std::string csv = "\xEF\xBB\xBF";
  AddLine(csv, cells);
  const auto yes = [](bool it) { return std::string(it ? "yes" : "no"); };
  for (const std::size_t number : rows) {
    const SettingRow& row = table.Rows().at(number);
    cells = {row.at.editor, row.at.page, LabelText(row.at.label), row.at.line, row.value};
    if (table.HasFile()) cells.emplace_back(table.InFile(row).value_or(row.value));
    cells.insert(cells.end(), {Numbers(row.blocks), yes(row.differs_from_device),
                               yes(row.differs_from_factory), NamesIn(row.settings)});
    AddLine(csv, cells);
  }
  return csv;
}

}  // namespace quorvel::muxhost
