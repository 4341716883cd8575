#include <ostream>

#include "muxhost/find/csv.h"
#include "muxhost/review_text.h"
#include "muxhost/script/commands.h"
#include "muxhost/script/parser.h"

namespace quorvel::muxhost::commands {

namespace {

/// The settings that `which`, a file or one of the words for others, and the words behind it leave.
std::vector<std::size_t> Choose(Desk& desk, const std::string& which, Words words) {
  SettingTable& table = desk.table;
  table.Update();
  if (table.Rows().empty()) throw ScriptError("the component has no configuration");
  const Among among = which == "all"       ? Among::kAll
                      : which == "changed" ? Among::kChanged
                      : which == "factory" ? Among::kNotFactory
                                           : Among::kNotFile;
  table.CompareWith(among == Among::kNotFile ? std::optional(desk.platform.ReadFile(which))
                                             : std::nullopt);
  if (!table.Cause().empty())
    throw ScriptError("not compared with " + which + ": " + table.Cause());
  std::string all;
  for (const std::string& word : words) all += word + ' ';
  return table.List(among, all);
}

void Show(Desk& desk, const std::string& which, Words words) {
  const auto chosen = Choose(desk, which, words);
  desk.found.clear();
  for (const std::size_t number : chosen) {
    const SettingRow& row = desk.table.Rows().at(number);
    desk.out << InWords(row, desk.table.InFile(row)) << '\n';
    desk.found.push_back(row);
  }
  if (chosen.empty()) desk.out << "no setting is found\n";
}

}  // namespace

void Find(Desk& desk, Words words) {
  if (words[1] != "open" || words.size() != 3) return Show(desk, "all", words.subspan(1));
  if (desk.found.empty()) throw ScriptError("no setting was found");
  const int number = ToNumber("line", words[2], 1, static_cast<int>(desk.found.size()));
  const SettingRow& row = desk.found.at(static_cast<std::size_t>(number - 1));
  OpenEditorAt(desk, row.at, row.settings);
}

void List(Desk& desk, Words words) { Show(desk, words[1], words.subspan(2)); }

void Export(Desk& desk, Words words) {
  const bool all = words.size() == 2;
  const auto rows = Choose(desk, all ? "all" : words[2], words.subspan(all ? 2 : 3));
  const std::string csv = CsvOf(desk.table, rows);
  desk.platform.StoreFile(words[1], {reinterpret_cast<const Byte*>(csv.data()), csv.size()});
  desk.out << "exported " << rows.size() << (rows.size() == 1 ? " setting\n" : " settings\n");
}

}  // namespace quorvel::muxhost::commands
