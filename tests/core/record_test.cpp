#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include "core/record/mux_data.h"

namespace quorvel {
namespace {

std::vector<int> Listed(const clsBlkSave& list) {
  std::vector<int> numbers;
  for (Byte i = 0; i < list.BlkSavIdx(); ++i) numbers.push_back(list.BlkNumSav(i));
  return numbers;
}

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

struct TrackingCase {
  const char* what;
  CommitFlag flag;
  Byte model_code;
  std::function<void(MuxData&)> change;
  std::vector<int> listed;
};

TEST(Record, SettersListTheirBlockUnderTheirFlag) {
  const TrackingCase cases[] = {
      {"a plain setting", CommitMenu, 6, [](MuxData& r) { r.MuxLang(3); }, {60}},
      {"the value it has", CommitMenu, 6, [](MuxData& r) { r.MuxLang(0); }, {}},
      {"another editor's flag", CommitCamera, 6, [](MuxData& r) { r.AlarmMode(2); }, {}},
      {"another editor's flag in a camera",
       CommitCamera,
       6,
       [](MuxData& r) { r.CamInfo(0)->Sensitivity(4); },
       {}},
      {"buzzers",
       CommitAlarm,
       6,
       [](MuxData& r) {
         r.Buzzer(4, 1);
         r.Buzzer(3, 1);
         r.Buzzer(5, 1);
       },
       {48, 61}},
      {"auto delete on a triplex", CommitRecord, 6, [](MuxData& r) { r.PlayRecLnk(7); }, {60}},
      {"auto delete on a duplex", CommitRecord, 5, [](MuxData& r) { r.PlayRecLnk(7); }, {}},
      {"play/record link on a multiplexer",
       CommitMacro,
       0,
       [](MuxData& r) { r.PlayRecLnk(1); },
       {60}},
      {"playback dwell on a multiplexer",
       CommitSequence,
       0,
       [](MuxData& r) { r.PlayDwell(4); },
       {61}},
      {"playback dwell on a DVR", CommitSequence, 1, [](MuxData& r) { r.PlayDwell(4); }, {}},
      {"never tracked",
       CommitRecord,
       0,
       [](MuxData& r) {
         r.RecSeqLst(0, 1);
         r.Normal_Rec_Index(3);
         r.CamInfo(0)->title("X");
       },
       {}},
      {"associated camera",
       CommitRecord,
       6,
       [](MuxData& r) { r.CamEvent(3)->EvAssociated(2, 1); },
       {216}},
      {"relay of a camera and of an alarm",
       CommitMotion,
       6,
       [](MuxData& r) {
         r.CamInfo(1)->Relay(1);
         r.AlmActionInfo(1)->Relay(1);
       },
       {149}},
      {"timed macro 5", CommitMacro, 6, [](MuxData& r) { r.TimeMacroInfo(5)->Hour(3); }, {65}},
      {"submacro of camera 9",
       CommitMacro,
       6,
       [](MuxData& r) { r.SubMacroInfo(8)->SMacroLen(12); },
       {77}},
      {"record timer 7", CommitRecord, 6, [](MuxData& r) { r.MRecTimer(7)->RTvalid(1); }, {198}},
  };
  for (const TrackingCase& it : cases) {
    SCOPED_TRACE(it.what);
    RecordEnvironment env;
    env.identity.MaxCam = 16;
    SetModelFlags(env.identity, it.model_code);
    const auto record = std::make_unique<MuxData>(env);
    {
      const CommitScope scope(env.commit, it.flag);
      it.change(*record);
    }
    EXPECT_EQ(Listed(env.blocks), it.listed);
    EXPECT_FALSE(env.commit.Raised(it.flag));
  }
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

TEST(Record, EventSettingsUnpack) {
  RecordEnvironment env;
  clsEvents events(env, 0);
  const struct {
    Byte packed, pre, link, type;
  } cases[] = {{0xD5, 5, 1, 2}, {0x80, 0, 0, 0}, {0x40, 0, 0, 1}, {0x7F, 7, 1, 1}};
  for (const auto& it : cases) {
    events.EventSettings(it.packed);
    EXPECT_EQ(events.PreEvDuration(), it.pre);
    EXPECT_EQ(events.LnkToEvent(), it.link);
    EXPECT_EQ(events.EType(), it.type);
  }
}

}  // namespace
}  // namespace quorvel
