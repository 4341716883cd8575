#include "resources/text_table.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvel {
namespace {

TEST(TextTable, HoldsEveryTextWithItsBlanks) {
  struct Sample {
    int id;
    std::string_view text;
  };
  const Sample samples[] = {
      {0, "AC"},
      {32, "Message"},
      {56, " Notification"},
      {57, "(Time in seconds)"},
      {90, "Notification Interval (minutes) :"},
      {111, "User1's email address:"},
      {116, "user1@example.com"},
      {117, "user2@example.com"},
      {188, "Time  Format"},
      {189, "Time / Date Display"},
      {190, " days"},
      {219, "Start Time "},
      {269, "Downloading block "},
      {273, "The default setting has been loaded for model "},
      {287, "SVHS/Composite"},
      {295, "Daylight Saving "},
      {298, "Time Zone  (GMT)"},
      {300, "hh:mm:ss tt"},
      {332, "Current"},
  };
  for (const auto& [id, text] : samples) EXPECT_EQ(BuiltInText(id), text) << id;
}

TEST(TextTable, HasNoTextMissingAndNoneBeyond) {
  EXPECT_EQ(kTextCount, 333);
  for (int id = 0; id <= 332; ++id) EXPECT_FALSE(BuiltInText(id).empty()) << id;
  for (const int id : {-1, 333, 100000}) EXPECT_EQ(BuiltInText(id), "") << id;
}

TEST(TextTable, NumbersTapeFormatsInOrder) {
  int number = 0;
  for (const int id : {274, 275, 277, 278, 279, 283, 284, 285, 291, 292, 293}) {
    EXPECT_EQ(BuiltInText(id), "Format " + std::to_string(++number)) << id;
  }
}

}  // namespace
}  // namespace quorvel
