#pragma once

#include <string>

#include "quorvel/export.h"

namespace quorvel {

/// The map of all blocks in Markdown, for reading a hex dump: every block with its
/// bytes, bits and settings by model family. Made from the block layouts themselves.
[[nodiscard]] QUORVEL_API std::string BlockMapMarkdown();

}  // namespace quorvel
