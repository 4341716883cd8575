#include "resources/text_table.h"

#include <algorithm>
#include <iterator>

namespace quorvel {

namespace {

#define QUORVEL_TEXT(id, name, english) english,
constexpr std::string_view kTexts[] = {
#include "resources/text_table.inc"
};
#undef QUORVEL_TEXT

struct AddedText {
  int id;
  std::string_view english;
};
#define QUORVEL_TEXT(id, name, english) {id, english},
constexpr AddedText kAddedTexts[] = {
#include "resources/added_texts.inc"
};
#undef QUORVEL_TEXT

static_assert(std::size(kTexts) == kTextCount);

}  // namespace

std::string_view BuiltInText(int id) {
  if (id >= 0 && id < kTextCount) return kTexts[id];
  // Numbers may be left out among them.
  const auto* const added = std::find_if(std::begin(kAddedTexts), std::end(kAddedTexts),
                                         [id](const AddedText& it) { return it.id == id; });
  return added == std::end(kAddedTexts) ? std::string_view() : added->english;
}

}  // namespace quorvel
