
#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

TEST_F(Codec, TheEncoderWritesUnrepaired) {
  Make(6, 4);
  rec_->AlarmInfo(0)->MacroLnk(9);
  rec_->PreAlDuration(7);
  rec_->TimeMacroInfo(0)->Minute(59);
  rec_->CamInfo(1)->Compress(9);
  EXPECT_EQ(Rewritten(34), "09 00 00 00 ee ee ee ee ee ee ee ee ee ee ee ee");
  EXPECT_EQ(Rewritten(59), "00 00 00 00 00 00 00 00 00 00 00 00 00 07 00 00");
  EXPECT_EQ(Rewritten(64), "00 00 3b 00 00 00 00 00 00 00 00 00 00 00 00 00");
  EXPECT_EQ(Rewritten(44), "00 00 00 00 00 00 00 00 0c ee ee ee ee ee ee ee");
}

TEST_F(Codec, ModifiedBlocksOnlyAndTheClockOfThePc) {
  Make(6);
  Put(61, "01 02 03 04 05 06 00 00 00 00 00 00 00 00 00 00");
  Decode();
  rec_->MuxLang(9);
  rec_->MultiDwell(8);
  const ClockTime now{23, 58, 57};
  env_.blocks.AddBlk(60);
  EncodeModifiedBlocks(image_, env_, *rec_, &now);
  EXPECT_EQ(image_.Block(60)[4], 9);
  EXPECT_EQ(image_.Block(59)[4], 0);
  EXPECT_EQ(rec_->TDInfo.CurrentHour(), 1);
  env_.blocks.AddBlk(61);
  EncodeModifiedBlocks(image_, env_, *rec_);
  EXPECT_EQ(image_.Block(61)[0], 1);
  EncodeModifiedBlocks(image_, env_, *rec_, &now);
  EXPECT_EQ(Hex(61), "17 3a 39 04 05 06 00 00 00 00 00 00 00 00 00 01");
  EXPECT_EQ(rec_->TDInfo.CurrentMin(), 58);
  EXPECT_EQ(env_.blocks.BlkSavIdx(), 2);
  Make(6, 16, 60);  // there is no block to take the time
  EncodeModifiedBlocks(image_, env_, *rec_, &now);
  EXPECT_EQ(rec_->TDInfo.CurrentHour(), 0);
}

TEST_F(Codec, ReadOnlyBlocksAndBlocksBeyondTheImageStay) {
  Make(6, 16, 200);
  rec_->CamInfo(0)->VidLoss(true);
  rec_->TDInfo.NTPUpdate(1);
  const auto before = std::vector<Byte>(image_.Bytes().begin(), image_.Bytes().end());
  for (int block : {182, 185, 217, 255, 0, -1}) Encode(block);
  EXPECT_TRUE(
      std::equal(before.begin(), before.end(), image_.Bytes().begin(), image_.Bytes().end()));
}

TEST_F(Codec, RefusesWhatIsNoImageBeforeAnythingChanges) {
  Make(6, 4);
  rec_->CamInfo(0)->title("Kept");
  const auto refuse = [this](BlockImage image) {
    EXPECT_THROW(DecodeImage(image, env_, *rec_), ImageError);
    EXPECT_EQ(rec_->CamInfo(0)->title(), "Kept");
    EXPECT_EQ(env_.identity.MaxCam, 4);
    EXPECT_EQ(env_.identity.ModelCode, 6);
  };
  refuse(BlockImage());
  BlockImage cut = image_;
  cut.ResizeBlocks(224);
  refuse(cut);
  BlockImage crowded = image_;
  crowded.Block(185)[0] = 17;
  refuse(crowded);
}

TEST_F(Codec, WhatAnImageLeavesOutOfAnEarlierOne) {
  Make(6);
  image_.Block(219)[0] = 1;
  image_.Block(45)[13] = 1;
  image_.Block(44)[8] = 0xC3;
  Decode();
  EXPECT_EQ(image_.Block(44)[8], 0x83);  // the repair is made in the image, too
  image_.Block(1)[15] = 218;  // Rec120sp is of the image, whether it holds block 219 or not
  Decode();
  EXPECT_EQ(rec_->Rec120sp(), 0);
  Make(14, 4, 60);
  EXPECT_EQ(env_.identity.MaxCam, 16);
  EXPECT_EQ(env_.identity.ModelCode, 0);
  EXPECT_EQ(env_.identity.MatrixModel, 0);
  image_.Block(47)[7] = 0x50;
  Decode();
  EXPECT_EQ(rec_->CamInfo(15)->SignalGain(), 5);
}

}  // namespace
}  // namespace quorvel
