#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "resources/icon.h"
#include "resources/text_table.h"

namespace quorvel {
namespace {

TEST(TextTable, HoldsEveryTextWithItsBlanks) {
  const std::pair<int, std::string_view> samples[] = {
      {56, " Notification"},
      {90, "Notification Interval (minutes) :"},
      {117, "user2@example.com"},
      {188, "Time  Format"},
      {189, "Time / Date Display"},
      {190, " days"},
      {219, "Start Time "},
      {269, "Downloading block "},
      {273, "The default setting has been loaded for model "},
      {295, "Daylight Saving "},
      {298, "Time Zone  (GMT)"},
  };
  for (const auto& [id, text] : samples) EXPECT_EQ(BuiltInText(id), text) << id;
}

TEST(TextTable, HasNoTextMissingAndNoneBeyond) {
  EXPECT_EQ(kTextCount, 333);
  for (int id = 0; id <= 332; ++id) EXPECT_FALSE(BuiltInText(id).empty()) << id;
  for (const int id : {-1, 333, 100000}) EXPECT_EQ(BuiltInText(id), "") << id;
  for (const auto& [id, text] : BuiltInTexts()) EXPECT_EQ(BuiltInText(id), text) << id;
  EXPECT_GT(BuiltInTexts().size(), 333U) << "those beyond the table";
}

TEST(TextTable, NumbersTapeFormatsInOrder) {
  int number = 0;
  for (const int id : {274, 275, 277, 278, 279, 283, 284, 285, 291, 292, 293}) {
    EXPECT_EQ(BuiltInText(id), "Format " + std::to_string(++number)) << id;
  }
}

TEST(Icon, IsAnOpaqueMonitorOnATransparentGround) {
  const Picture& icon = Icon101();
  ASSERT_EQ(icon.width, 32);
  ASSERT_EQ(icon.height, 32);
  ASSERT_EQ(icon.rgba.size(), 4096U);
  const auto opacity = [&](int x, int y) {
    return icon.rgba[static_cast<std::size_t>((y * 32 + x) * 4 + 3)];
  };
  for (const int corner : {0, 31}) {
    EXPECT_EQ(opacity(corner, 0), 0);
    EXPECT_EQ(opacity(corner, 31), 0);
  }
  for (int x = 3; x < 29; ++x) {
    for (int y = 4; y < 24; ++y) EXPECT_EQ(opacity(x, y), 255) << x << ", " << y;
  }
}

}  // namespace
}  // namespace quorvel
