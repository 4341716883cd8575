#include "core/survey.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>

#include "core/block_map.h"
#include "core/codec.h"
#include "resources/default_images.h"
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

TEST(Survey, EndsWithTheImage) {
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  for (const int blocks : {185, 199, 200, 213, 217, 219, 225, 255}) {
    const auto places = SurveyRecord(*rec, IdentityOf(6, 16), blocks);
    const auto last =
        std::max_element(places.begin(), places.end(),
                         [](const auto& a, const auto& b) { return a.block < b.block; });
    EXPECT_EQ(last->block, std::min(blocks, 225));
  }
}

TEST(Survey, FindsOverlaps) {
  const Place whole{5, 3, 2, 0xFF, Place::Role::kSetting, false, 1, "A", ""};
  Place bit = whole;
  bit.at = 4;
  bit.length = 1;
  bit.mask = 0x10;
  bit.name = "B";
  EXPECT_EQ(FindOverlaps({whole, bit}), std::vector<std::string>{"block 5 byte 4: A and B"});
  bit.role = Place::Role::kElsewhere;
  EXPECT_TRUE(FindOverlaps({whole, bit}).empty());
}

struct WhereCase {
  const char* name;
  int code;
  int block, at;
  Byte mask;
};

TEST(Survey, LocatesSettings) {
  const WhereCase cases[] = {{"CamInfo(2).SignalGain", 6, 47, 2, 0xFF},
                             {"CamInfo(2).SignalGain", 5, 47, 1, 0x0F},
                             {"CamInfo(9).disable", 6, 33, 13, 0x02},
                             {"CamInfo(6).TextPos", 6, 149, 9, 0x30},
                             {"CamEvent(3).EType", 6, 56, 3, 0xC0},
                             {"CamEvent(3).EvAssociated(2)", 6, 216, 3, 0xFF},
                             {"RecSeqLst(39)", 1, 58, 7, 0xFF},
                             {"Relay2Conf", 6, 60, 6, 0x02},
                             {"TDInfo.CurrentYear", 6, 61, 5, 0xFF},
                             {"TimeMacroInfo(5).Hour", 6, 65, 5, 0xFF},
                             {"MRecTimer(7).RTvalid", 6, 198, 15, 0xFF},
                             {"AlmEmailNotify.BlkStrInit(220)", 6, 220, 0, 0xFF},
                             {"MatrixInfo.GroupSetup(4)", 14, 46, 4, 0xFF},
                             {"PubMonitor(4)", 6, 45, 12, 0x10},
                             {"CamInfo(15).ActGrid(31)", 6, 116, 15, 0xFF},
                             {"PreAlDuration", 1, 59, 13, 0xFF},
                             {"PlaybackFormat", 0, 59, 13, 0xFF},
                             {"SubMacroInfo(15).SMacroByte(9)", 6, 84, 10, 0xFF}};
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  for (const WhereCase& it : cases) {
    const auto places = Locate(*rec, IdentityOf(it.code, 16), 225, it.name);
    ASSERT_EQ(places.size(), 1U) << it.name;
    EXPECT_EQ(places[0].block, it.block) << it.name;
    EXPECT_EQ(places[0].at, it.at) << it.name;
    EXPECT_EQ(places[0].mask, it.mask) << it.name;
  }
  EXPECT_EQ(Locate(*rec, IdentityOf(18, 16), 225, "CamEvent(1).TL_RRIndex").size(), 2U);
  EXPECT_TRUE(Locate(*rec, IdentityOf(6, 16), 225, "VCRType").empty());
}

TEST(Survey, ListsSettingsInAnInstallersTerms) {
  BlockImage image = LoadDefaultImage(401);
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *rec);
  rec->CamInfo(0)->title(std::string("A\"\0", 3));
  rec->MultiDwell.Load(7);
  const auto list = [&](std::string_view pattern) {
    return ListSettings(*rec, env.identity, 200, pattern);
  };
  rec->AlarmTimeOut.Load(9);
  EXPECT_EQ(list("multidwell"), (std::vector<SettingLine>{{"MultiDwell", "7 s"}}));
  EXPECT_EQ(list("TimeOut"), (std::vector<SettingLine>{{"AlarmTimeOut", "10 s"}}));
  EXPECT_EQ(list("CamInfo(0).ti*"),
            (std::vector<SettingLine>{{"CamInfo(0).title", R"("A\x22\x00")"}}));
  EXPECT_EQ(list("Relay?Conf"),
            (std::vector<SettingLine>{{"Relay1Conf", "yes"}, {"Relay2Conf", "yes"}}));
  EXPECT_EQ(list("caminfo(*).covert").size(), 16U);
  EXPECT_TRUE(list("PlaybackFormat").empty());
  EXPECT_TRUE(list("BlkStrInit").empty());  // beyond block 200
  EXPECT_GT(list("").size(), 1000U);
  EXPECT_TRUE(list(std::string(40, '*') + "#").empty());
}

TEST(Survey, ComparesConfigurations) {
  TestHost host;
  host.Download();
  auto& editor = host.OpenCameraSetup();
  editor.Find<TextBox>("m_CameraTitle(4)").Type("Gate");
  editor.Find<CheckBox>("m_CameraCovert(15)").Click();
  editor.Find<Button>("cmd_OK").Click();
  const auto device = host.device.Bytes();
  EXPECT_EQ(host.control->DifferencesFrom(device),
            (std::vector<SettingDifference>{
                {"CamInfo(4).title", "\"Gate\"", R"("Camera 05   \x00")", {5}},
                {"CamInfo(15).covert", "yes", "no", {49}}}));
  EXPECT_EQ(host.control->DifferencesFrom({}), std::nullopt);
  EXPECT_EQ(TestHost().control->DifferencesFrom(device), std::nullopt);

  BlockImage longer = host.device;
  longer.ResizeBlocks(201);
  longer.Block(1)[15] = 201;
  longer.Block(201)[0] = 'a';
  const auto differences = host.control->DifferencesFrom(longer.Bytes()).value();
  ASSERT_EQ(differences.size(), 3U);
  EXPECT_EQ(differences[2],
            (SettingDifference{"AlmEmailNotify.BlkStrInit(201)", "", "\"a\"", {201}}));
}

TEST(BlockMap, IsUpToDate) {
  std::ifstream file(QUORVEL_SOURCE_DIR "/docs/block-map.md");
  const std::string written((std::istreambuf_iterator<char>(file)),
                            std::istreambuf_iterator<char>());
  EXPECT_TRUE(written == BlockMapMarkdown()) << "run scripts/block-map";
}

}  // namespace
}  // namespace quorvel
