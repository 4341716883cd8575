#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "quorvel/review.h"

namespace quorvel::muxhost {

/// What a label says without the colon and the blanks around it: "Dwell" of "Dwell :".
[[nodiscard]] std::string LabelText(std::string_view label);
/// "Camera Setup > Gain > Camera 3 "Front door""; the names of what no editor shows.
[[nodiscard]] std::string Place(const SettingPosition& at, std::span<const std::string> settings);
/// "TelAC_DC(0), TelAC_DC(1)".
[[nodiscard]] std::string NamesIn(std::span<const std::string> settings);
/// "4 -> 7", with "" for nothing.
[[nodiscard]] std::string Change(const ReviewLine& line);
/// "12 13".
[[nodiscard]] std::string Numbers(std::span<const std::uint8_t> blocks);
/// "block 12", "blocks 12 13".
[[nodiscard]] std::string BlocksInWords(std::span<const std::uint8_t> blocks);
/// All of it in one line.
[[nodiscard]] std::string InWords(const ReviewLine& line);
/// The same of a setting and what it holds, or of how it differs from what a file has.
[[nodiscard]] std::string InWords(const SettingRow& row, std::optional<std::string_view> in_file);

}  // namespace quorvel::muxhost
