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
inline constexpr int kTextAddressEmptied = 1000;  ///< an e-mail address that would become empty
inline constexpr int kTextAddressCut = 1001;      ///< one that would be cut
inline constexpr int kTextNotAChoice = 1002;      ///< a paste that a grid has refused
inline constexpr int kTextDoesNotFit = 1003;      ///< one that is larger than the grid
inline constexpr int kTextLocalEmail = 1004;      ///< label of the sender's address
inline constexpr int kTextArrayNotUsed = 1005;    ///< a combined array that contradicts itself
inline constexpr int kTextMacrosMissing = 1006;   ///< one whose macro data is not all here
inline constexpr int kTextEditorOutdated = 1007;  ///< OK after another image has arrived

/// The built-in English text of id 0 to 332 or of an added text, in UTF-8; empty for other ids.
[[nodiscard]] std::string_view BuiltInText(int id);

}  // namespace quorvel
