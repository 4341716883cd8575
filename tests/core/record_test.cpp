#include <stdexcept>

#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

TEST(ModifiedBlocks, DistinctInOrderOfFirstChange) {
  clsBlkSave list;
  for (const Byte blk : {12, 5, 12, 40, 0}) list.AddBlk(blk);
  EXPECT_EQ(Listed(list), (std::vector<int>{12, 5, 40}));
  EXPECT_EQ(list.BlkNumSav(3), 0);
  list.SetMaxBlk(185);
  EXPECT_EQ(list.BlkSavIdx(), 0);
  EXPECT_EQ(list.BlkNumSav(0), 0);
  list.AddBlk(9);
  list.BlkSavIdx(0);
  list.AddBlk(7);
  EXPECT_EQ(Listed(list), (std::vector<int>{7}));
  for (int blk = 1; blk <= 255; ++blk) list.AddBlk(static_cast<Byte>(blk));
  EXPECT_EQ(list.BlkSavIdx(), 255);
}

TEST(Record, DisplaysOfMonitorsCToEListABlockThatHasNoByteForThem) {
  RecordEnvironment env;
  clsMatrix matrix(env);
  const auto listed_under = [&](CommitFlag flag, auto change) {
    env.blocks.BlkSavIdx(0);
    const CommitScope scope(env.commit, flag);
    change();
    return Listed(env.blocks);
  };
  EXPECT_EQ(listed_under(CommitCamera, [&] { matrix.TDDspCDE(1); }), (std::vector<int>{}));
  EXPECT_EQ(listed_under(CommitTimeDate, [&] { matrix.TDDspCDE(2); }), (std::vector<int>{59}));
  EXPECT_EQ(listed_under(CommitTimeDate, [&] { matrix.TitleDspCDE(1); }), (std::vector<int>{}));
  EXPECT_EQ(listed_under(CommitCamera, [&] { matrix.TitleDspCDE(2); }), (std::vector<int>{59}));
}

TEST(Record, CommitFlagsFallWithTheirScopeAndWithFillData) {
  RecordEnvironment env;
  MuxData record(env);
  try {
    const CommitScope scope(env.commit, CommitMenu);
    EXPECT_TRUE(env.commit.Raised(CommitMenu));
    throw std::runtime_error("an editor fails while it commits");
  } catch (const std::runtime_error&) {
    EXPECT_FALSE(env.commit.Raised(CommitMenu));
  }
  for (int flag = 0; flag < kCommitFlagCount; ++flag) {
    env.commit.Set(static_cast<CommitFlag>(flag), true);
  }
  record.FillData();
  record.MuxLang(3);
  record.NetworkAddr(3);
  EXPECT_EQ(Listed(env.blocks), (std::vector<int>{}));
}

static_assert(!std::invocable<decltype(MuxData::MacroEditDL1)&, Byte>, "no editor sets it");
static_assert(std::invocable<decltype(MuxData::MuxLang)&, Byte>);
template <class S, class... Args>
concept Settable = requires(S& setting, Args... args) {
  setting.Set(args...);
};
static_assert(!Settable<decltype(MuxData::MacroEditDL1), Byte>, "no editor sets it");
static_assert(!Settable<decltype(MuxData::TelEnable), Byte>, "an entry of an array has an index");

TEST(Record, SetIsTheSetter) {
  RecordEnvironment env;
  const auto record = std::make_unique<MuxData>(env);
  const CommitScope scope(env.commit, CommitTelemetry);
  record->TelEnable.Set(3, 1);
  record->Tel_options.Set(1);
  EXPECT_EQ(record->TelEnable(3), 1);
  EXPECT_EQ(record->TelEnable(2), 0);
  EXPECT_EQ(record->Tel_options(), 1);
  EXPECT_EQ(Listed(env.blocks), (std::vector<int>{61, 59}));
  record->TelEnable.Set(16, 1);
  record->TelEnable.Set(3, 1);
  EXPECT_EQ(Listed(env.blocks), (std::vector<int>{61, 59}));
}

/// A setting has no pointer to its owner and finds it by its distance.
TEST(Record, SettingsFindTheirOwner) {
  RecordEnvironment env;
  env.identity.MaxCam = 16;
  const auto record = std::make_unique<MuxData>(env);
  const auto other = std::make_unique<MuxData>(env);
  *record = *other;
  const auto owner = [](const auto& setting) { return &setting.Owner(); };
  EXPECT_EQ(owner(record->AlarmMode), record.get());
  EXPECT_EQ(owner(record->TelEnable), record.get());
  EXPECT_EQ(owner(record->MatrixInfo.AuxMonitor), &record->MatrixInfo);
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(owner(record->CamInfo(i)->SignalGain), record->CamInfo(i));
    EXPECT_EQ(owner(record->AlmActionInfo(i)->Display3), record->AlmActionInfo(i));
  }
  // What the owner is told is what its settings see.
  clsRecTimer timer(env, 0);
  const CommitScope scope(env.commit, CommitRecord);
  for (const Byte place : {3, 8, 1}) {
    timer.SetRTIdx(place);
    timer.RTdate.Set(place);
  }
  EXPECT_EQ(Listed(env.blocks), (std::vector<int>{196, 199, 195}));
}

TEST(Record, IndicesOutOfRange) {
  RecordEnvironment env;
  env.identity.MaxCam = 8;
  const auto record = std::make_unique<MuxData>(env);
  EXPECT_EQ(record->CamInfo(8), nullptr);
  EXPECT_EQ(record->CamInfo(-1), nullptr);
  EXPECT_NE(record->CamInfo(7), nullptr);
  EXPECT_EQ(record->TimeMacroInfo(20), nullptr);
  EXPECT_EQ(record->MRecTimer(10), nullptr);
  env.commit.Set(CommitAlarm, true);
  record->Buzzer(5, 1);
  EXPECT_EQ(record->Buzzer(5), 0);
  EXPECT_EQ(Listed(env.blocks), (std::vector<int>{}));
  clsSubMacro& script = *record->SubMacroInfo(3);
  script.SetSubMacroIdx(16);
  EXPECT_EQ(script.Index(), 3);
  script.SMacroLen(200);
  EXPECT_EQ(script.SMacroLen(), 10);
  Cameras& camera = *record->CamInfo(0);
  camera.ActGrid(32, 9);
  EXPECT_EQ(camera.ActGrid(32), 0);
  EXPECT_EQ(camera.ActGrid(-1), 0);
  env.identity.MaxCam = 200;  // nothing lets this through, and nothing would come of it
  EXPECT_EQ(record->CamInfo(16), nullptr);
}

TEST(Record, ReplacingAnElementCopiesItsSettingsOnly) {
  RecordEnvironment env;
  RecordEnvironment other_env;
  env.identity.MaxCam = other_env.identity.MaxCam = 16;
  const auto record = std::make_unique<MuxData>(env);
  const auto other = std::make_unique<MuxData>(other_env);
  other->CamInfo(2)->title("Gate");
  other->CamInfo(2)->SignalGain(9);
  record->CamInfo(5, *other->CamInfo(2));
  EXPECT_EQ(record->CamInfo(5)->title(), "Gate");
  const CommitScope scope(env.commit, CommitCamera);
  record->CamInfo(5)->SignalGain(1);
  EXPECT_EQ(Listed(env.blocks), (std::vector<int>{47}));
  EXPECT_EQ(Listed(other_env.blocks), (std::vector<int>{}));
}

}  // namespace
}  // namespace quorvel
