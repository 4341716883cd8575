#include "core/survey.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>

#include "core/codec.h"
#include "core/model_flags.h"
#include "quorvel/block_map.h"
#include "quorvel/default_images.h"
#include "tests/host/test_host.h"

namespace quorvel {
namespace {

using layout::Place;

Identity IdentityOf(int code, int cameras) {
  Identity id;
  id.MaxCam = static_cast<Byte>(cameras);
  SetModelFlags(id, static_cast<Byte>(code));
  return id;
}

TEST(Survey, NoLayoutOverlapsOrLeavesItsBlock) {
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  const auto check = [&rec](const Identity& id, Direction direction, Byte extra_quality) {
    rec->Extra_Quality_Feature.Load(extra_quality);
    EXPECT_EQ(FindOverlaps(SurveyRecord(*rec, id, 255, direction)), std::vector<std::string>{})
        << "code " << int{id.ModelCode} << ", cameras " << int{id.MaxCam};
  };
  for (int code = 0; code <= 127; code = code == 21 ? 127 : code + 1) {
    for (const int cameras : {0, 1, 4, 9, 10, 16}) {
      check(IdentityOf(code, cameras), Direction::kRead, 0);
      check(IdentityOf(code, cameras), Direction::kRead, 1);
      check(IdentityOf(code, cameras), Direction::kWritten, 0);
    }
  }
}

TEST(Survey, FindsOverlaps) {
  const Place whole{{5, 3, 2, 0xFF, Place::Role::kSetting, false, 1}, "A", ""};
  Place bit = whole;
  bit.at = 4;
  bit.length = 1;
  bit.mask = 0x10;
  bit.name = "B";
  EXPECT_EQ(FindOverlaps({whole, bit}), std::vector<std::string>{"block 5 byte 4: A and B"});
  bit.role = Place::Role::kElsewhere;
  EXPECT_TRUE(FindOverlaps({whole, bit}).empty());
}

TEST(Survey, LocatesSettings) {
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  const auto where = [&rec](int code, std::string_view name) {
    std::string text;
    for (const Place& it : Locate(*rec, IdentityOf(code, 16), 225, name)) {
      text += std::to_string(it.block) + "." + std::to_string(it.at) + "/" +
              std::to_string(it.mask) + " ";
    }
    return text;
  };
  EXPECT_EQ(where(6, "CamInfo(2).SignalGain"), "47.2/255 ");
  EXPECT_EQ(where(5, "CamInfo(2).SignalGain"), "47.1/15 ");
  EXPECT_EQ(where(6, "CamInfo(6).TextPos"), "149.9/48 ");
  EXPECT_EQ(where(6, "AlmEmailNotify.BlkStrInit(220)"), "220.0/255 ");
  EXPECT_EQ(where(18, "CamEvent(1).TL_RRIndex"), "62.1/255 219.1/2 ");
  EXPECT_EQ(where(6, "VCRType"), "");
}

TEST(Survey, ComparesConfigurations) {
  TestHost host;
  host.Download();
  BlockImage longer = host.device;
  longer.ResizeBlocks(201);
  longer.Block(1)[15] = 201;
  longer.Block(1)[0] = 'K';
  longer.Block(201)[0] = 'a';
  EXPECT_EQ(host.control->DifferencesFrom(longer.Bytes()),
            (std::vector<SettingDifference>{
                {"CamInfo(0).title", R"("Camera 01   \x00")", R"("Kamera 01   \x00")", {1}},
                {"AlmEmailNotify.BlkStrInit(201)", "", "\"a\"", {201}}}));
  EXPECT_EQ(host.control->DifferencesFrom({}), std::nullopt);
  EXPECT_EQ(TestHost().control->DifferencesFrom(longer.Bytes()), std::nullopt);
}

TEST(BlockMap, IsUpToDate) {
  std::ifstream file(QUORVEL_SOURCE_DIR "/docs/block-map.md");
  const std::string written((std::istreambuf_iterator<char>(file)),
                            std::istreambuf_iterator<char>());
  EXPECT_TRUE(written == BlockMapMarkdown()) << "run scripts/block-map";
}

}  // namespace
}  // namespace quorvel
