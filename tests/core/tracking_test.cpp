#include <array>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

struct FlagRow {
  int flag;
  const char* settings;
};
constexpr int kNever = -1;

const FlagRow kFlags[] = {
    {CommitTimeDate,
     "TransmitSpiTime TDInfo.NTPUpdate TDInfo.NTPPrimServer TDInfo.NTPBkupServer "
     "TDInfo.DaylightRegion TDInfo.TimeZoneIdx TDInfo.TDDisplay TDInfo.CurrentDay "
     "TDInfo.CurrentMonth TDInfo.CurrentYear TDInfo.CurrentHour TDInfo.CurrentMin "
     "TDInfo.CurrentSec TDInfo.TimeFormat TDInfo.DateFormat"},
    {CommitSequence, "MultiDwell FullDwell MatrixInfo.GroupSetup MatrixInfo.GroupSwEnable"},
    {CommitRecord,
     "Rec120sp DvrRecMode RecLock Alarm_Rec_Index CamInfo.Compress CamEvent.EvAssociated "
     "CamEvent.PostEvDuration CamEvent.PreEvDuration CamEvent.LnkToEvent CamEvent.EType "
     "CamEvent.Act_RRIndex CamEvent.TL_RRIndex CamEvent.Event_RRIndex MRecTimer.RTdate "
     "MRecTimer.RTstart_hh MRecTimer.RTstart_mm MRecTimer.RTstop_hh MRecTimer.RTstop_mm "
     "MRecTimer.RTmacrolnk MRecTimer.RTstatus MRecTimer.RTvalid"},
    {CommitAlarm,
     "PreAlDuration DvrArchAlm Buzzer Relay1Conf Relay2Conf FullscrAlm AlmRecMode AlarmMode "
     "AlarmTimeOut AlarmInfo.MacroLnk AlarmInfo.VlBuzzer AlarmInfo.VlRelay2 AlarmInfo.VlRelay1 "
     "AlarmInfo.ExtAlmAction AlarmInfo.InputConf AlarmInfo.Enable AlmActionInfo.GateIntrus "
     "AlmActionInfo.Preset3 AlmActionInfo.Preset2 AlmActionInfo.Preset1 AlmActionInfo.Preset0 "
     "AlmActionInfo.Display3 AlmActionInfo.Display2 AlmActionInfo.Display1 AlmActionInfo.Display0 "
     "AlmActionInfo.Relay AlmActionInfo.Freeze AlmEmailNotify.TCPNotify AlmEmailNotify.TCPPort "
     "AlmEmailNotify.TCPInterval AlmEmailNotify.TCPHost AlmEmailNotify.TCPBkUpHost "
     "AlmEmailNotify.SMTPServer AlmEmailNotify.SMTPPort AlmEmailNotify.EmailNotify "
     "AlmEmailNotify.BlkStrInit MatrixInfo.AuxMonitor"},
    {CommitMacro,
     "TimeMacroInfo.MacroNum TimeMacroInfo.Minute TimeMacroInfo.Hour TimeMacroInfo.Day "
     "SubMacroInfo.SMacroByte SubMacroInfo.SMacroLen"},
    {CommitMotion,
     "ActIndicate ActivityType ActivityEnable CamInfo.Reject CamInfo.Relay CamInfo.size "
     "CamInfo.LnkALM CamInfo.Sensitivity CamInfo.Rate"},
    {CommitCamera,
     "PubMonitor SVHS_MonB FullScrResolution AutoDisable TitleDisplay CamInfo.TextPos "
     "CamInfo.SignalGain CamInfo.covert CamInfo.disable CamInfo.color"},
    {CommitComm, "NetworkAddr BaudRatePPC BaudRate"},
    {CommitArchive, "ArchPortSelect LumacastCDW DvrArchiveOn DvrArchiveSet"},
    {CommitMenu, "MuxLang LockKeyBoard"},
    {CommitTelemetry, "TelAC_DC TelEnable PresetPGM PresetMode Tel_options"},
    {CommitVCR, "PlaybackOld VCR_Signal_Level SwitchEdge ExtCam_SwAct VCRType PlaybackFormat"},
    {kNever,
     "Normal_Rec_Index RecSeqLst CamInfo.ActGrid CamInfo.VidLoss CamInfo.title TDInfo.NTPchange "
     "AlmEmailNotify.AlmServerChange"},
};

/// The commit flag of every setting; of two it depends on the model.
std::map<std::string, int> FlagsBySetting(int code) {
  std::map<std::string, int> flags;
  for (const FlagRow& row : kFlags) {
    std::istringstream names(row.settings);
    for (std::string name; names >> name;) flags[name] = row.flag;
  }
  flags["PlayDwell"] = code == 0 ? CommitSequence : kNever;
  flags["PlayRecLnk"] = code == 0 ? CommitMacro : code >= 6 ? CommitRecord : kNever;
  return flags;
}

/// Changes one setting after the other through its setter, and compares the blocks that it lists
/// with those whose bytes change.
class TrackingCheck {
 public:
  explicit TrackingCheck(int code)
      : flags_(FlagsBySetting(code)), rec_(std::make_unique<MuxData>(env_)) {
    image_.ResizeBlocks(225);
    image_.Block(1)[15] = 225;
    WriteIdentityBlock(image_, 16, static_cast<Byte>(code), "TEST");
    DecodeImage(image_, env_, *rec_);
    EncodeImage(image_, env_, *rec_);
  }
  MuxData& rec() { return *rec_; }
  Identity& identity() { return env_.identity; }
  const std::set<std::string>& seen() const { return seen_; }

  void Device(const char* /*name*/, Byte /*value*/) {}
  template <class Item>
  void Setting(int block, Item&& item) {
    if constexpr (requires { item.array; }) {
      Check(block, item, [&](auto value) { (*item.array)(item.index, value); });
    } else if constexpr (requires { item(item()); }) {
      Check(block, item, [&](auto value) { item(value); });
    }
  }

 private:
  static bool Other(bool value) { return !value; }
  static BlockText Other(const BlockText&) { return BlockText("x"); }
  static std::string Other(const std::string&) { return "x"; }
  template <std::integral Number>
  static Number Other(Number value) {
    return static_cast<Number>(value ^ 1);
  }

  template <class Item, class Set>
  void Check(int block, Item& item, const Set& set) {
    const std::string collection = item.Owner().Collection();
    const std::string name = collection + (collection.empty() ? "" : ".") + item.Name();
    SCOPED_TRACE(layout::FullName(item.Owner(), item.Name(), item.EntryIndex()));
    seen_.insert(name);
    const auto flag = flags_.find(name);
    ASSERT_NE(flag, flags_.end());

    const auto old = item();
    for (int raised = 0; raised < kCommitFlagCount; ++raised) {
      item.Load(old);
      env_.blocks.SetMaxBlk(225);
      const CommitScope scope(env_.commit, static_cast<CommitFlag>(raised));
      set(Other(old));
      const auto expected = raised == flag->second ? Together(block) : std::vector<int>{};
      EXPECT_EQ(Listed(), expected) << "under flag " << raised;
      env_.blocks.SetMaxBlk(225);
      set(Other(old));  // the value that it has
      EXPECT_EQ(env_.blocks.BlkSavIdx(), 0) << "under flag " << raised;
    }
    EXPECT_EQ(ChangedByEncoding(), block == 182 ? std::vector<int>{} : std::vector<int>{block});
    item.Load(old);
  }
  /// The blocks that a change in one of them lists: the texts of an address's half go together.
  static std::vector<int> Together(int block) {
    const bool text = (block >= 201 && block <= 212) || block >= 220;
    if (!text) return {block};
    const int first = block - (block - (block >= 220 ? 220 : 201)) % 3;
    return {first, first + 1, first + 2};
  }
  std::vector<int> Listed() const {
    std::vector<int> numbers;
    for (Byte i = 0; i < env_.blocks.BlkSavIdx(); ++i) numbers.push_back(env_.blocks.BlkNumSav(i));
    return numbers;
  }
  std::vector<int> ChangedByEncoding() {
    BlockImage encoded = image_;
    EncodeImage(encoded, env_, *rec_);
    std::vector<int> numbers;
    for (int n = 1; n <= 225; ++n) {
      if (!std::ranges::equal(encoded.Block(n), image_.Block(n))) numbers.push_back(n);
    }
    return numbers;
  }

  std::map<std::string, int> flags_;
  RecordEnvironment env_;
  std::unique_ptr<MuxData> rec_;
  BlockImage image_;
  std::set<std::string> seen_;
};

TEST(Tracking, EverySetterListsTheBlockWhoseBytesChange) {
  std::set<std::string> seen;
  for (const int code : {0, 1, 5, 6, 14, 18}) {
    SCOPED_TRACE("code " + std::to_string(code));
    TrackingCheck check(code);
    SettingWalk<TrackingCheck, true> walk{check, 16, 5};
    layout::DescribeBlocks(walk, check.rec(), check.identity());
    seen.insert(check.seen().begin(), check.seen().end());
  }
  for (const auto& [name, flag] : FlagsBySetting(0)) {
    EXPECT_TRUE(seen.contains(name)) << name;
  }
}

}  // namespace
}  // namespace quorvel
