#include <vector>

#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

TEST_F(Codec, ValuesThatADeviceCannotMeanAreRepaired) {
  const struct { Byte read, repaired; } durations[] = {{0, 1}, {1, 1}, {5, 5}, {6, 1}, {255, 1}};
  for (const auto& it : durations) {
    Make(1);
    image_.Block(59)[13] = it.read;
    Decode();
    EXPECT_EQ(rec_->PreAlDuration(), it.repaired);
  }
  // What no timed macro can mean leaves the value of before.
  Make(6);
  Put(65, "08 17 3a 10 00 00 00 00 00 00 00 00 00 00 00 00");
  Decode();
  Put(65, "09 18 3b 00 00 00 00 00 00 00 00 00 00 00 00 00");
  Decode();
  EXPECT_EQ(Rewritten(65), "08 17 3a 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

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

TEST_F(Codec, YearsOfTwoDigits) {
  const struct {
    Byte byte;
    int year;
  } years[] = {{0, 2000}, {7, 2007}, {59, 2059}, {60, 1960}, {99, 1999}};
  Make(6);
  for (const auto& it : years) {
    image_.Block(61)[5] = it.byte;
    Decode();
    EXPECT_EQ(rec_->TDInfo.CurrentYear(), it.year);
    Encode(61);
    EXPECT_EQ(image_.Block(61)[5], it.byte);
  }
}

TEST_F(Codec, ModifiedBlocksOnlyAndTheClockOfThePc) {
  Make(6);
  Put(61, "01 02 03 04 05 06 00 00 00 00 00 00 00 00 00 00");
  Decode();
  rec_->MuxLang(9);
  rec_->MultiDwell(8);
  const TimeOfDay now{23, 58, 57};
  env_.blocks.AddBlk(60);
  EncodeModifiedBlocks(image_, env_, *rec_, &now);
  EXPECT_EQ(image_.Block(60)[4], 9);
  EXPECT_EQ(image_.Block(59)[4], 0);
  EXPECT_EQ(rec_->TDInfo.CurrentHour(), 1);
  env_.blocks.AddBlk(61);
  EncodeModifiedBlocks(image_, env_, *rec_);
  EXPECT_EQ(image_.Block(61)[0], 1);
  EncodeModifiedBlocks(image_, env_, *rec_, &now);
  EXPECT_EQ(Hex(61), "17 3a 39 04 05 06 00 00 00 00 00 00 00 00 00 00");
  EXPECT_EQ(rec_->TDInfo.CurrentMin(), 58);
  EXPECT_EQ(env_.blocks.BlkSavIdx(), 2);
}

TEST_F(Codec, TurboMarksTurnRatesOf0Into99) {
  Make(6, 10);
  Put(62, "00 00 07 00 00 00 00 00 00 00 00 00 00 00 00 00");
  Put(58, "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
  Put(63, "00 00 00 00 00 00 00 00 00 14 00 00 00 00 00 00");
  const std::string marks = "01 05 06 02 00 00 03 01 00 00 00 00 00 00 00 00";
  Put(219, marks);  // camera 10, in byte 2, is none of the device's
  Decode();
  Encode(219);
  EXPECT_EQ(Hex(219), marks);
  EXPECT_EQ(Rewritten(62), "63 00 07 00 00 00 00 00 00 63 00 00 00 00 00 00");
  EXPECT_EQ(Rewritten(58), "00 63 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
  EXPECT_EQ(Rewritten(63), "00 00 00 00 00 00 00 00 63 14 00 00 00 00 00 00");
  EXPECT_EQ(Rewritten(59), "00 00 00 00 00 00 00 63 00 00 00 00 00 01 00 00");
  image_.Block(59)[7] = 5;
  Decode();
  EXPECT_EQ(rec_->Alarm_Rec_Index(), 5);
  image_.Block(59)[7] = 0;
  image_.Block(219)[7] = 2;
  Decode();
  EXPECT_EQ(rec_->Alarm_Rec_Index(), 0);
  EXPECT_EQ(rec_->Rec120sp(), 1);
  image_.Block(1)[15] = 218;  // Rec120sp is of the image, whether it holds block 219 or not
  Decode();
  EXPECT_EQ(rec_->Rec120sp(), 0);
}

TEST_F(Codec, QualityNibblesAreRepairedInTheImageToo) {
  Make(6);
  image_.Block(45)[13] = 1;
  image_.Block(44)[8] = 0xC3;
  image_.Block(44)[15] = 0x79;
  Decode();
  EXPECT_EQ(rec_->CamInfo(0)->Compress(), 3);
  EXPECT_EQ(rec_->CamInfo(1)->Compress(), 8);
  EXPECT_EQ(image_.Block(44)[8], 0x83);
  EXPECT_EQ(Rewritten(44), "00 00 00 00 00 00 00 00 83 00 00 00 00 00 00 78");
}

TEST_F(Codec, TitlesAreTrimmedPaddedAndCut) {
  const struct {
    const char* title;
    const char* bytes;
  } titles[] = {{"Lobby", "4c 6f 62 62 79 20 20 20 20 20 20 20 20 ee ee ee"},
                {"A title of twenty ch", "41 20 74 69 74 6c 65 20 6f 66 20 74 77 ee ee ee"},
                {"", "20 20 20 20 20 20 20 20 20 20 20 20 20 ee ee ee"}};
  Make(6, 15);
  for (const auto& it : titles) {
    rec_->CamInfo(14)->title(it.title);
    EXPECT_EQ(Rewritten(15), it.bytes);
  }
  const std::string of_a_default_image = "43 61 6d 65 72 61 20 30 31 20 20 20 00 ee ee ee";
  Put(1, "20 20 41 20 42 20 20 20 20 20 20 20 20 00 00 e1");
  Put(2, of_a_default_image);
  Put(16, "4e 6f 20 63 61 6d 65 72 61 20 20 20 20 00 00 00");
  Decode();
  EXPECT_EQ(rec_->CamInfo(0)->title(), "A B");
  EXPECT_EQ(rec_->CamInfo(1)->title(), std::string("Camera 01   \0", 13));
  EXPECT_EQ(rec_->AllCameras()[15].title(), "");
  EXPECT_EQ(Rewritten(2), of_a_default_image);
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

TEST_F(Codec, AnImageWithoutIdentityBlock) {
  Make(6);
  Make(14, 4, 60);
  EXPECT_EQ(env_.identity.MaxCam, 16);
  EXPECT_EQ(env_.identity.ModelCode, 0);
  EXPECT_EQ(env_.identity.MatrixModel, 0);
  image_.Block(47)[7] = 0x50;
  Decode();
  EXPECT_EQ(rec_->CamInfo(15)->SignalGain(), 5);
}

TEST_F(Codec, IdentityAndRecorderKind) {
  Make(0x86, 0);
  EXPECT_EQ(env_.identity.ModelCode, 6);
  EXPECT_TRUE(env_.identity.ExtendedImage);
  Make(19, 16, 224);
  EXPECT_FALSE(env_.identity.ExtendedImage);
  EXPECT_TRUE(env_.identity.PlexarProModel && env_.identity.LumacastModel);
  const struct {
    const char* name;
    Byte kind;
  } names[] = {{"AB16T", 2},  {"AB16D", 1},  {"AB16DX", 1}, {"AB16TMX", 2},
               {"AB16DM", 1}, {"AB16T ", 0}, {"XM", 0},     {"", 0}};
  for (const auto& it : names) {
    Make(0);
    WriteIdentityBlock(image_, 16, 0, it.name);
    image_.Block(182)[8] = 7;
    Decode();
    EXPECT_EQ(env_.identity.RecorderKind, it.kind) << it.name;
  }
  Make(6);
  image_.Block(182)[8] = 7;
  Decode();
  EXPECT_EQ(env_.identity.RecorderKind, 7);
}

}  // namespace
}  // namespace quorvel
