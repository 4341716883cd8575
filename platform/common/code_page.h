#pragma once

#include <string>
#include <string_view>

namespace quorvel {

/// The single-byte code page of hosts and devices: the Western European "1252". Bytes that it
/// leaves undefined stand for the control characters of the same number, so that every byte has a
/// character and comes back as itself.
[[nodiscard]] std::string CodePageToUtf8(std::string_view bytes);

/// Characters that the code page lacks, and broken UTF-8, become "?".
[[nodiscard]] std::string Utf8ToCodePage(std::string_view text);

}  // namespace quorvel
