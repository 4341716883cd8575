#pragma once

#include <string_view>

namespace quorvel {

/// The texts by name: what code asks the catalogue for. A host's text source knows them by id.
namespace txt {
enum Id : int {
#define QUORVEL_TEXT(id, name, english) name = id,
#include "resources/text_table.inc"
#undef QUORVEL_TEXT
};
}  // namespace txt

inline constexpr int kTextCount = 333;

/// Texts beyond the table, for what a host's own vocabulary need not know. They are numbered apart,
/// so that the table can grow.
inline constexpr int kFirstAddedText = 1000;
#define QUORVEL_TEXT(id, name, english) inline constexpr int name = id;
#include "resources/added_texts.inc"
#undef QUORVEL_TEXT

/// The built-in English text of id 0 to 332 or of an added text, in UTF-8; empty for other ids.
[[nodiscard]] std::string_view BuiltInText(int id);

}  // namespace quorvel
