#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvel::muxhost {

/// The bytes of a PDF file of a report in HTML, pages of A4. Needs no screen, nor an application
/// around it.
[[nodiscard]] std::vector<std::uint8_t> PdfOf(const std::string& html);

}  // namespace quorvel::muxhost
