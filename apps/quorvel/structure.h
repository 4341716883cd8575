#pragma once

#include <string>
#include <vector>

#include "apps/quorvel/desk.h"

namespace quorvel::tool {

/// What is wrong with a settings file beside the values of its settings: with its length, its
/// header, and who it says that it belongs to; each in words that follow the file's name. The man
/// page lists them.
[[nodiscard]] std::vector<std::string> StructureFindings(ByteSpan file, const FileParts& parts);

}  // namespace quorvel::tool
