#include "resources/text_table.h"

#include <algorithm>
#include <iterator>

namespace quorvel {

namespace {

constexpr BuiltInEntry kTexts[] = {
#define QUORVEL_TEXT(id, name, english) {id, english},
#include "resources/text_table.inc"
// Behind the table.
#include "resources/added_texts.inc"
#undef QUORVEL_TEXT
};

static_assert(std::ranges::is_sorted(kTexts, {}, &BuiltInEntry::id));
static_assert(kTexts[kTextCount - 1].id == kTextCount - 1);
static_assert(kTexts[kTextCount].id >= kFirstAddedText);

}  // namespace

std::span<const BuiltInEntry> BuiltInTexts() { return kTexts; }

std::string_view BuiltInText(int id) {
  const auto* const found = std::ranges::lower_bound(kTexts, id, {}, &BuiltInEntry::id);
  return found == std::end(kTexts) || found->id != id ? std::string_view() : found->english;
}

}  // namespace quorvel
