#include <concepts>
#include <fstream>
#include <map>
#include <set>

#include "core/layout/any_setting.h"
#include "core/layout/blocks.h"
#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

/// The commit flag of every setting, from commit_flags.txt, where they stand in their order;
/// kCommitFlagCount for none.
std::map<std::string, int> FlagsBySetting(int code) {
  std::map<std::string, int> flags;
  std::ifstream file(QUORVEL_SOURCE_DIR "/tests/core/commit_flags.txt");
  int flag = -1;
  for (std::string word; file >> word;) {
    if (word == "#") {
      std::getline(file, word);
    } else if (word.ends_with(':')) {
      ++flag;
    } else {
      flags[word] = flag;
    }
  }
  flags["PlayDwell"] = code == 0 ? CommitSequence : kCommitFlagCount;
  flags["PlayRecLnk"] = code == 0  ? CommitMacro
                        : code < 6 ? kCommitFlagCount
                                   : static_cast<int>(CommitRecord);
  return flags;
}

/// A pass over the layouts of a 16-camera device, as the encoder's, that hands on each setting; of
/// long runs every fifth.
template <class Visitor>
class SettingPass {
 public:
  static constexpr bool kReading = false;
  static constexpr bool kWriting = true;
  static constexpr bool kHasImage = false;

  SettingPass(Visitor& visitor, int block) : visitor_(visitor), block_(block) {}

  void Byte(int, auto&& item) { visitor_.Setting(block_, item); }
  void ByteBelow(int, int, auto&& item) { Byte(0, item); }
  void Coded(int, int, auto& item, auto, auto) { Byte(0, item); }
  void CodedBytes(int, int count, int, auto items, auto, auto) { Bytes(0, count, items); }
  void ChangeMask(int, auto& item) { Byte(0, item); }
  void Elsewhere(int, int, auto&) {}
  void Device(int, std::uint8_t&, const char*) {}
  void Rebuilt(int, int) {}
  void Flag(int, auto& item) { Byte(0, item); }
  void BitFlags(int, auto&... items) { (Byte(0, items), ...); }
  template <class Array>
  void Bits(int, Array& array, int written = Array::kSize) {
    Bytes(0, written, layout::Each(array));
  }
  void CameraBits(int, auto items, layout::Sense = {}) { CameraBytes(items); }
  void CameraPairs(int, auto items) { CameraBytes(items); }
  void CameraNibbles(int, auto items) { CameraBytes(items); }
  void CameraBytes(auto items) { Bytes(0, 16, items); }
  void Bytes(int, int count, auto items) {
    for (int k = 0; k<count; k += count> 5 ? 5 : 1) Byte(0, items[k]);
  }
  void Word(int, auto& item) { Byte(0, item); }
  void PaddedText(int, int, auto& item) { Byte(0, item); }
  void ZeroEndedText(int, int, auto&& item) { Byte(0, item); }
  void CameraMarks(int, auto, int) {}
  void Mark(int, auto&, int) {}

 private:
  Visitor& visitor_;
  int block_;
};

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

  void Block(int number, const auto& visit) {
    SettingPass<TrackingCheck> pass(*this, number);
    visit(pass);
  }
  void Blocks(int first, int count, const auto& visit) {
    for (int i = 0; i < count; ++i) Block(first + i, [&](auto& pass) { visit(pass, i); });
  }
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
      EXPECT_EQ(Listed(env_.blocks), expected) << "under flag " << raised;
      env_.blocks.SetMaxBlk(225);
      set(Other(old));  // the value that it has
      EXPECT_EQ(env_.blocks.BlkSavIdx(), 0) << "under flag " << raised;
    }
    EXPECT_EQ(ChangedByEncoding(), block == 182 ? std::vector<int>{} : std::vector<int>{block});
    item.Load(old);
    rec_->AlmEmailNotify.AlmServerChange.Load(0);
    rec_->TDInfo.NTPchange.Load(0);
  }
  /// The blocks that a change in one of them lists: the texts of an address's half go together.
  static std::vector<int> Together(int block) {
    const bool text = (block >= 201 && block <= 212) || block >= 220;
    if (!text) return {block};
    const int first = block - (block - (block >= 220 ? 220 : 201)) % 3;
    return {first, first + 1, first + 2};
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
    layout::DescribeBlocks(check, check.rec(), check.identity());
    seen.insert(check.seen().begin(), check.seen().end());
  }
  for (const auto& [name, flag] : FlagsBySetting(0)) {
    EXPECT_TRUE(seen.contains(name)) << name;
  }
}

}  // namespace
}  // namespace quorvel
