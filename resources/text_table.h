#pragma once

#include "quorvel/texts.h"

namespace quorvel {

/// The texts by name: what code asks the catalogue for. A host's text source knows them by id.
namespace txt {
enum Id : int {
#define QUORVEL_TEXT(id, name, english) name = id,
#include "resources/text_table.inc"
#undef QUORVEL_TEXT
};
}  // namespace txt

/// The texts beyond the table.
#define QUORVEL_TEXT(id, name, english) inline constexpr int name = id;
#include "resources/added_texts.inc"
#undef QUORVEL_TEXT

}  // namespace quorvel
