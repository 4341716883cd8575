#pragma once

#include <string>
#include <string_view>

#include "quorvel/export.h"

namespace quorvel {

/// The single-byte code page of hosts and devices: the Western European "1252". Bytes that it
/// leaves undefined stand for the control characters of the same number, so that every byte has a
/// character and comes back as itself.
[[nodiscard]] QUORVEL_PLATFORM_API std::string CodePageToUtf8(std::string_view bytes);

/// Characters that the code page lacks, and broken UTF-8, become "?".
[[nodiscard]] QUORVEL_PLATFORM_API std::string Utf8ToCodePage(std::string_view text);

}  // namespace quorvel
