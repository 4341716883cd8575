#pragma once

#include <span>
#include <string>
#include <string_view>

#include "muxhost/find/setting_table.h"

namespace quorvel::muxhost {

/// A text as it may stand in a cell of a spreadsheet, which would take some for a formula: they get
/// an apostrophe in front. Numbers stay numbers.
[[nodiscard]] std::string HarmlessCell(std::string_view text);

/// Rows of a table as a file for spreadsheets, with a line that names the columns: UTF-8 behind a
/// byte order mark, by which spreadsheets know it. What a file has stands beside the value.
[[nodiscard]] std::string CsvOf(const SettingTable& table, std::span<const std::size_t> rows);

}  // namespace quorvel::muxhost
