#include "resources/text_table.h"

#include <iterator>

namespace quorvel {

namespace {

// clang-format off
constexpr std::string_view kTexts[] = {
#define QUORVEL_TEXT(id, name, english) english,
#include "resources/text_table.inc"
#undef QUORVEL_TEXT
};

constexpr std::string_view kAddedTexts[] = {
    /* 1000 */ "Needs text before and after \"@\": the address will be empty",
    /* 1001 */ "More than 48 characters before or after \"@\": it will be cut",
    /* 1002 */ "Nothing was pasted: a value is not a choice of its column",
    /* 1003 */ "Nothing was pasted: it does not fit into the table here",
    /* 1004 */ "Local email address:",
    /* 1005 */ "What has arrived contradicts itself and could not be used. The settings are those of before.",
    /* 1006 */ "What has arrived lacks macro data: the settings are used, the macros cannot be sent.",
    /* 1007 */ "Other data has arrived since this window was opened. Nothing was changed: close it and open it again.",
};
// clang-format on

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
