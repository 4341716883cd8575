#pragma once

#include <span>
#include <string>

#include "quorvel/byte.h"
#include "quorvel/clock_time.h"

namespace quorvel::muxhost {

/// A name for a file of this image, UTF-8: model, name of the device where it is not the model's
/// usual one, and date: "TX16 Front gate 2026-11-23.bin". What a file's name cannot hold is
/// replaced.
[[nodiscard]] std::string ProposedFileName(std::span<const Byte> image, const CalendarDate& date);

}  // namespace quorvel::muxhost
