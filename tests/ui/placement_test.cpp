#include "quorvel/widgets/placement.h"

#include <gtest/gtest.h>

#include "quorvel/headless_platform.h"
#include "quorvel/widgets.h"

namespace quorvel {
namespace {

/// Space from 0 to 3, then what else there is to say, part by part.
std::string InWords(const Layout& layout) {
  std::string words;
  for (const Placement& it : PlacementsIn(layout)) {
    words += (words.empty() ? "" : ", ") + std::to_string(static_cast<int>(it.space)) +
             (it.one_line ? " line" : "") + (it.at_top ? " top" : "") + (it.ends ? " ends" : "");
  }
  return words;
}

TEST(Placement, LayoutsSayWhatAFaceWouldOtherwiseGuess) {
  HeadlessPlatform platform;
  Dialog dialog(platform, "frm_Some");
  Label label(dialog, "lb"), other(dialog, "lbOther");
  TextBox text(dialog, "txt");
  CheckBox check(dialog, "chk");
  ListBox few(dialog, "lstFew"), many(dialog, "lstMany"), lines(dialog, "lstLines");
  Grid small(dialog, "MSFG_Small"), tall(dialog, "MSFG_Tall");
  Frame titled(dialog, "Frame1", "Titles"), bare(dialog, "Frame2"), around(dialog, "Frame3");
  few.SetItems(std::vector<std::string>(14, "1"));
  many.SetItems(std::vector<std::string>(15, "1"));
  lines.SetItems(std::vector<std::string>(15, "1"));
  lines.SetRows(5);
  small.SetSize(17, 2);
  tall.SetHeaderRows(2);
  tall.SetSize(19, 2);
  const Layout frames[] = {Framed(titled, Lines(Row(label, text))), Framed(bare, Row(check)),
                           Framed(around, Column(tall))};
  EXPECT_EQ(InWords(Row(label, text, Stretch())), "0 line, 2 line, 3");
  EXPECT_EQ(InWords(Row(label, text, few)), "0 line top, 2 line top, 0 ends");
  EXPECT_EQ(InWords(Row(small, Column(check, Stretch()))), "3 ends, 0");
  EXPECT_EQ(InWords(Column(small, tall, few, many, lines)), "0 ends, 3 ends, 0, 1, 0");
  EXPECT_EQ(InWords(Row(frames[0], frames[1], frames[2])), "2 top, 2 line top, 3");
  EXPECT_EQ(InWords(Lines(frames[0], frames[1], frames[2])), "0, 0 line, 3");
  EXPECT_TRUE(titled.HasBorder() && around.HasBorder() && !bare.HasBorder());

  using Groups = std::vector<std::vector<std::size_t>>;
  const Layout rows[] = {Row(label, text), Row(check, few), Row(other, few), Row(label), Row(few)};
  EXPECT_EQ(RowsThatBeginAlike(Column(rows[0], rows[1], rows[2], rows[3], rows[4])),
            (Groups{{0, 2}, {1}}));
  EXPECT_EQ(RowsThatBeginAlike(Row(rows[0], rows[2])), Groups{});
}

}  // namespace
}  // namespace quorvel
