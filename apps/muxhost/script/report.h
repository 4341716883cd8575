#pragma once

#include <span>
#include <string>
#include <string_view>

#include "quorvel/headless_platform.h"

namespace quorvel::muxhost {

/// A text on one line, in double quotes; quotes, backslashes and control characters escaped.
[[nodiscard]] std::string Quoted(std::string_view text);

/// Numbers in their order, three and more that count up by one as FIRST-LAST: "1-149 182 183".
/// "none" for no numbers.
[[nodiscard]] std::string AbbreviateRuns(std::span<const int> numbers);
[[nodiscard]] std::string AbbreviateRuns(std::span<const std::uint8_t> numbers);

/// "32 32 19": two lower-case hexadecimal digits a byte.
[[nodiscard]] std::string HexBytes(std::span<const std::uint8_t> bytes);

/// "TITLE: TEXT", the further lines of the text indented below.
[[nodiscard]] std::string DescribeMessage(const Message& message);

/// A line for one control: name, kind, caption, what keeps it from being used, value.
[[nodiscard]] std::string DescribeWidget(const Widget& widget);

/// "frm_Alarm "Alarms"" and a line for each control, in the order of their declaration.
[[nodiscard]] std::string DescribeDialog(const Dialog& dialog);

/// A line for each item, submenus indented, with marks for what is hidden, disabled or ticked.
[[nodiscard]] std::string DescribeMenu(const MenuItem& root);

}  // namespace quorvel::muxhost
