#pragma once

#include <span>
#include <string>

#include "quorvel/review.h"

namespace quorvel::muxhost {

/// "Camera Setup > Gain > Camera 3 "Front door""; the names of what no editor shows.
[[nodiscard]] std::string Place(const SettingPosition& at, std::span<const std::string> settings);
/// "4 -> 7", with "" for nothing.
[[nodiscard]] std::string Change(const ReviewLine& line);
/// "block 12", "blocks 12 13".
[[nodiscard]] std::string BlocksInWords(std::span<const std::uint8_t> blocks);
/// All of it in one line.
[[nodiscard]] std::string InWords(const ReviewLine& line);

}  // namespace quorvel::muxhost
