#include "quorvel/image_settings.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "quorvel/default_images.h"

namespace quorvel {
namespace {

TEST(ImageSettings, TellWhatABlockHolds) {
  BlockImage image = LoadDefaultImage(301);
  std::ranges::copy(std::string_view("Yard        !"), image.Block(2).begin());
  const auto settings = SettingsByBlock(image);
  for (const BlockSetting& one :
       {BlockSetting{2, "CamInfo(1).title", "\"Yard        !\""},
        BlockSetting{59, "MultiDwell", "5 s"}, BlockSetting{185, "MaxCam", "16"}}) {
    EXPECT_EQ(std::ranges::count(settings, one), 1) << one.name;
  }
  EXPECT_EQ(std::ranges::count(settings, 86, &BlockSetting::block), 16);

  std::string unknown;
  const auto known = KnownBlocks(image);
  for (int n = 1; n <= 116; ++n) {
    if (std::ranges::count(known, n) == 0) unknown += " " + std::to_string(n);
  }
  EXPECT_EQ(unknown, " 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 32 35 37 39 41 43 46 53 55");
  EXPECT_EQ(std::vector<Byte>(std::ranges::find(known, 116), known.end()),
            (std::vector<Byte>{116, 149, 182, 183, 184, 185}));

  image.ResizeBlocks(184);
  EXPECT_THROW(static_cast<void>(SettingsByBlock(image)), ImageError);
  EXPECT_THROW(static_cast<void>(KnownBlocks(image)), ImageError);
}

}  // namespace
}  // namespace quorvel
