#include "quorvel/identity.h"

#include <gtest/gtest.h>

#include "core/model_flags.h"

namespace quorvel {
namespace {

TEST(Identity, FlagsOfEveryModelCode) {
  std::string lite, four_l, matrix, lumacast, plexar_pro;
  for (Byte code = 0; code < 22; ++code) {
    Identity id;
    SetModelFlags(id, code);
    EXPECT_EQ(id.ModelCode, code);
    const auto add = [code](std::string& list, bool flag) {
      if (flag) list += " " + std::to_string(code);
    };
    add(lite, id.LiteRecordModel);
    add(four_l, id.Model4L);
    add(matrix, id.MatrixModel == 1);
    add(lumacast, id.LumacastModel);
    add(plexar_pro, id.PlexarProModel);
  }
  EXPECT_EQ(lite, " 4 5 8 9 10 11 12 13 16 17 20");
  EXPECT_EQ(four_l, " 16 17");
  EXPECT_EQ(matrix, " 14 15");
  EXPECT_EQ(lumacast, " 10 11 12 13 18 19");
  EXPECT_EQ(plexar_pro, " 18 19");
}

TEST(Identity, IsThatOfBlock185WhereTheImageHasIt) {
  for (const int blocks : {184, 185, 224, 225}) {
    SCOPED_TRACE(blocks);
    BlockImage image(std::vector<Byte>(std::size_t{225} * kBlockSize));
    image.Block(1)[15] = static_cast<Byte>(blocks);
    WriteIdentityBlock(image, 16, 0x80 + 9, "FIFTEEN LETTERS");
    EXPECT_EQ(image.Block(186)[0], 0);
    const Identity id = ReadIdentity(image);
    EXPECT_EQ(id.MaxCam, 16);
    EXPECT_EQ(id.ModelCode, 9) << "whatever the count";
    EXPECT_EQ(id.ExtendedImage, blocks == 225);
    image.Block(185)[0] = 17;
    EXPECT_THROW(static_cast<void>(ReadIdentity(image)), ImageError);
    image.ResizeBlocks(blocks - 1);
    EXPECT_THROW(static_cast<void>(ReadIdentity(image)), ImageError);
  }
}

}  // namespace
}  // namespace quorvel
