#include "resources/text_table.h"

#include <iterator>

namespace quorvel {

namespace {

#define QUORVEL_TEXT(id, name, english) english,
constexpr std::string_view kTexts[] = {
#include "resources/text_table.inc"
};
constexpr std::string_view kAddedTexts[] = {
#include "resources/added_texts.inc"
};
#undef QUORVEL_TEXT

static_assert(std::size(kTexts) == kTextCount);

}  // namespace

std::string_view BuiltInText(int id) {
  const auto in = [id](const auto& texts, int first) {
    return id >= first && id - first < static_cast<int>(std::size(texts));
  };
  if (in(kTexts, 0)) return kTexts[id];
  return in(kAddedTexts, kFirstAddedText) ? kAddedTexts[id - kFirstAddedText] : std::string_view();
}

}  // namespace quorvel
