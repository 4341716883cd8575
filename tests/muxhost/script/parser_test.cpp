#include "muxhost/script/parser.h"

#include <gtest/gtest.h>

namespace quorvel::muxhost {
namespace {

using Words = std::vector<std::string>;

TEST(ScriptParser, SplitsWords) {
  const std::pair<const char*, Words> cases[] = {
      {"", {}},
      {"  \t# all comment", {}},
      {"  press  grid\t3 1\r", {"press", "grid", "3", "1"}},
      {"type m_CameraTitle(0) \"Lobby  north\"", {"type", "m_CameraTitle(0)", "Lobby  north"}},
      {"type a \"\" # nothing", {"type", "a", ""}},
      {"device name=\"TX 16\" model=6", {"device", "name=TX 16", "model=6"}},
      {R"(type a "say \"#1\" \\ \n\t")", {"type", "a", "say \"#1\" \\ \n\t"}},
      {R"(save "c:\new\type")", {"save", R"(c:\new\type)"}},
      {"type a#1 b", {"type", "a#1", "b"}},
  };
  for (const auto& [line, words] : cases) EXPECT_EQ(SplitWords(line), words) << line;
  EXPECT_THROW(static_cast<void>(SplitWords("type a \"b")), ScriptError);
  EXPECT_THROW(static_cast<void>(SplitWords("type a \"b\\\"")), ScriptError);
}

TEST(ScriptParser, NumbersAreWholeAndInRange) {
  EXPECT_EQ(ToNumber("row", "0", 0, 9), 0);
  EXPECT_EQ(ToNumber("row", "9", 0, 9), 9);
  for (const char* text : {"", "-1", "10", "1x", " 1", "+1", "0x1", "99999999999"}) {
    EXPECT_THROW(static_cast<void>(ToNumber("row", text, 0, 9)), ScriptError) << text;
  }
}

}  // namespace
}  // namespace quorvel::muxhost
