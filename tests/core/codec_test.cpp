#include "core/codec.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "resources/default_images.h"

namespace quorvel {
namespace {

/// An empty image of a device, and a record decoded from it.
class Codec : public ::testing::Test {
 protected:
  void Make(Byte model_code, Byte cameras = 16, int blocks = 225) {
    image_ = BlockImage();
    image_.ResizeBlocks(blocks);
    image_.Block(1)[15] = static_cast<Byte>(blocks);
    if (blocks >= 185) WriteIdentityBlock(image_, cameras, model_code, "TEST");
    rec_ = std::make_unique<MuxData>(env_);
    Decode();
  }
  void Decode() { DecodeImage(image_, env_, *rec_); }
  void Encode(int block) { EncodeBlock(block, image_, env_, *rec_); }
  std::string Hex(int block) const {
    std::string text;
    for (const Byte byte : image_.Block(block)) {
      std::array<char, 4> digits{};
      std::snprintf(digits.data(), digits.size(), "%02x", byte);
      text += (text.empty() ? "" : " ") + std::string(digits.data());
    }
    return text;
  }

  BlockImage image_;
  RecordEnvironment env_;
  std::unique_ptr<MuxData> rec_;
};

struct DecodeCase {
  const char* what;
  Byte model_code;
  int block;
  int at;
  Byte byte;
  std::function<int(MuxData&)> value;
  int expected;
};

TEST_F(Codec, DecodesEachPackingAndModelCondition) {
  const DecodeCase cases[] = {
      {"covert, direct", 6, 49, 8, 0x04, [](MuxData& r) { return r.CamInfo(2)->covert(); }, 1},
      {"covert, inverted", 5, 49, 8, 0x04, [](MuxData& r) { return r.CamInfo(2)->covert(); }, 0},
      {"disable is inverted", 6, 33, 13, 0x01, [](MuxData& r) { return r.CamInfo(8)->disable(); },
       0},
      {"disable is inverted", 6, 33, 13, 0xFE, [](MuxData& r) { return r.CamInfo(8)->disable(); },
       1},
      {"gain in a byte", 6, 47, 3, 100, [](MuxData& r) { return r.CamInfo(3)->SignalGain(); }, 100},
      {"gain in a nibble", 5, 47, 1, 0x9A, [](MuxData& r) { return r.CamInfo(3)->SignalGain(); },
       9},
      {"text position pair", 6, 149, 9, 0x10, [](MuxData& r) { return r.CamInfo(6)->TextPos(); },
       1},
      {"macro link the device lacks", 6, 34, 2, 17,
       [](MuxData& r) { return r.AlarmInfo(2)->MacroLnk(); }, 0},
      {"pre-alarm in range", 1, 59, 13, 5, [](MuxData& r) { return r.PreAlDuration(); }, 5},
      {"pre-alarm repaired", 1, 59, 13, 6, [](MuxData& r) { return r.PreAlDuration(); }, 1},
      {"playback format", 0, 59, 13, 6, [](MuxData& r) { return r.PlaybackFormat(); }, 6},
      {"pre-alarm not of a multiplexer", 0, 59, 13, 5, [](MuxData& r) { return r.PreAlDuration(); },
       0},
      {"relay contacts", 6, 60, 6, 0x02,
       [](MuxData& r) { return 2 * r.Relay2Conf() + r.Relay1Conf(); }, 2},
      {"full screen alarm is 1 only", 6, 60, 7, 2, [](MuxData& r) { return r.FullscrAlm(); }, 0},
      {"field or frame", 0, 60, 11, 1, [](MuxData& r) { return r.FullScrResolution(); }, 1},
      {"archive alarm in its place", 2, 60, 11, 1,
       [](MuxData& r) { return 10 * r.DvrArchAlm() + r.FullScrResolution(); }, 10},
      {"public monitors", 6, 45, 12, 0x1A, [](MuxData& r) { return r.PubMonitor(4); }, 1},
      {"no public monitors on a duplex", 2, 45, 12, 0x1A,
       [](MuxData& r) { return 10 * r.AlarmInfo(12)->ExtAlmAction() + r.PubMonitor(4); }, 260},
      {"playback of a multiplexer", 0, 183, 5, 9, [](MuxData& r) { return r.PlaybackOld(); }, 9},
      {"no playback on a duplex", 2, 183, 8, 9, [](MuxData& r) { return r.PlaybackOld(); }, 0},
      {"playback of a triplex", 6, 183, 8, 9, [](MuxData& r) { return r.PlaybackOld(); }, 9},
      {"record list", 1, 57, 2, 7, [](MuxData& r) { return r.RecSeqLst(18); }, 7},
      {"post-event", 2, 57, 2, 7, [](MuxData& r) { return r.CamEvent(2)->PostEvDuration(); }, 7},
      {"gate", 6, 184, 9, 0x80, [](MuxData& r) { return r.AlmActionInfo(15)->GateIntrus(); }, 1},
      {"year 59", 6, 61, 5, 59, [](MuxData& r) { return r.TDInfo.CurrentYear(); }, 2059},
      {"year 60", 6, 61, 5, 60, [](MuxData& r) { return r.TDInfo.CurrentYear(); }, 1960},
  };
  for (const DecodeCase& it : cases) {
    SCOPED_TRACE(it.what);
    Make(it.model_code);
    image_.Block(it.block)[static_cast<std::size_t>(it.at)] = it.byte;
    Decode();
    EXPECT_EQ(it.value(*rec_), it.expected);
  }
}

TEST_F(Codec, QualityNibblesAreRepairedInTheImageToo) {
  Make(6);
  image_.Block(45)[13] = 1;
  image_.Block(44)[8] = 0xC3;
  Decode();
  EXPECT_EQ(rec_->CamInfo(0)->Compress(), 3);
  EXPECT_EQ(rec_->CamInfo(1)->Compress(), 8);
  EXPECT_EQ(image_.Block(44)[8], 0x83);
}

TEST_F(Codec, EncodesLiterally) {
  Make(6, 4);
  for (int block : {2, 33, 47, 59, 149}) {
    for (Byte& byte : image_.Block(block)) byte = 0xEE;
  }
  rec_->CamInfo(1)->title("Lobby");
  for (int c = 0; c < 4; ++c) rec_->CamInfo(c)->disable(c == 2);
  rec_->AlarmInfo(3)->Enable(1);
  rec_->CamInfo(2)->SignalGain(25);
  rec_->CamInfo(3)->TextPos(2);
  for (int i = 0; i < 5; ++i) rec_->TitleDisplay(i, 1);
  rec_->PreAlDuration(3);
  for (int block : {2, 33, 47, 59, 149}) Encode(block);
  EXPECT_EQ(Hex(2), "4c 6f 62 62 79 20 20 20 20 20 20 20 20 ee ee ee");
  EXPECT_EQ(Hex(33), "08 00 ee ee 00 00 ee ee 00 00 ee ee 0b 00 ee ee");
  EXPECT_EQ(Hex(47), "00 00 19 00 ee ee ee ee ee ee ee ee ee ee ee ee");
  EXPECT_EQ(Hex(59), "00 00 00 00 00 00 00 00 03 00 00 00 00 03 00 00");
  EXPECT_EQ(Hex(149), "00 ee ee ee ee ee ee ee 80 ee ee ee ee ee ee ee");
}

TEST_F(Codec, LongTitlesAreCutAndOnlyTheirThirteenBytesWritten) {
  Make(6);
  rec_->CamInfo(15)->title("A title of twenty ch");
  Encode(16);
  EXPECT_EQ(Hex(16), "41 20 74 69 74 6c 65 20 6f 66 20 74 77 00 00 00");
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

TEST_F(Codec, DecodeEncodeDecodeKeepsEverySetting) {
  std::mt19937 random(20);
  for (int code = 0; code <= 21; ++code) {
    for (const int cameras : {0, 1, 4, 9, 10, 16}) {
      Make(static_cast<Byte>(code), static_cast<Byte>(cameras));
      for (int block = 1; block <= 225; ++block) {
        if (block == 185) continue;
        for (std::size_t i = 0; i < 15; ++i) image_.Block(block)[i] = static_cast<Byte>(random());
      }
      // A year byte of 160 and more means a year that two digits cannot say.
      image_.Block(61)[5] = static_cast<Byte>(random() % 160);
      if (env_.identity.MatrixModel == 0) {  // monitors C to E: read, but only a matrix has them
        image_.Block(59)[0] &= 3;
        image_.Block(59)[8] &= 3;
      }
      Decode();
      for (int block = 1; block <= 225; ++block) Encode(block);
      const auto second = std::make_unique<MuxData>(env_);
      DecodeImage(image_, env_, *second);
      EXPECT_TRUE(*second == *rec_) << "code " << code << ", cameras " << cameras;
    }
  }
}

}  // namespace
}  // namespace quorvel
