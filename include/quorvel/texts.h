#pragma once

#include <span>
#include <string_view>

#include "quorvel/export.h"

namespace quorvel {

/// A text of the component, and the number by which it asks a host's text source for it.
struct BuiltInEntry {
  int id;
  std::string_view english;  ///< in UTF-8
};

/// The table of texts has ids from 0 up to here.
inline constexpr int kTextCount = 333;
/// Texts beyond the table, for what a host's own vocabulary need not know. They are numbered apart,
/// so that the table can grow.
inline constexpr int kFirstAddedText = 1000;

/// All built-in texts in rising order of their ids, for a host that translates them.
[[nodiscard]] QUORVEL_API std::span<const BuiltInEntry> BuiltInTexts();
/// The built-in text of id 0 to 332 or of an added text; empty for other ids.
[[nodiscard]] QUORVEL_API std::string_view BuiltInText(int id);

}  // namespace quorvel
