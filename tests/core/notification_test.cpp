#include <functional>
#include <vector>

#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

/// An empty record of a device with all blocks.
class Notification : public Codec {
 protected:
  Notification() { Make(6); }
  clsEmailNotify& Notify() { return rec_->AlmEmailNotify; }
  /// The blocks listed since last asked.
  std::vector<int> TakeListed() {
    std::vector<int> numbers;
    for (Byte i = 0; i < env_.blocks.BlkSavIdx(); ++i) numbers.push_back(env_.blocks.BlkNumSav(i));
    env_.blocks.BlkSavIdx(0);
    return numbers;
  }
  std::vector<std::string> Texts(int first) {
    const auto text = [this](int block) {
      return std::string(std::string_view(Notify().BlkStrInit(block)));
    };
    return {text(first), text(first + 1), text(first + 2)};
  }
};

struct MaskCase {
  int block;
  Byte mask;
  CommitFlag flag;
  std::function<void(MuxData&)> change;
};

TEST_F(Notification, ServerOctetsMarkTheirServerInTheBlock) {
  const MaskCase cases[] = {
      {213, 1, CommitAlarm, [](MuxData& r) { r.AlmEmailNotify.SMTPServer(2, 9); }},
      {213, 2, CommitAlarm, [](MuxData& r) { r.AlmEmailNotify.TCPHost(0, 9); }},
      {213, 4, CommitAlarm, [](MuxData& r) { r.AlmEmailNotify.TCPBkUpHost(3, 9); }},
      {217, 1, CommitTimeDate, [](MuxData& r) { r.TDInfo.NTPPrimServer(1, 9); }},
      {217, 2, CommitTimeDate, [](MuxData& r) { r.TDInfo.NTPBkupServer(2, 9); }},
      {217, 0, CommitTimeDate, [](MuxData& r) { r.TDInfo.NTPUpdate(1); }},
      {213, 5, CommitAlarm,
       [](MuxData& r) {
         r.AlmEmailNotify.TCPBkUpHost(0, 1);
         r.AlmEmailNotify.SMTPServer(0, 1);
       }},
  };
  for (const MaskCase& it : cases) {
    SCOPED_TRACE("block " + std::to_string(it.block) + " mask " + std::to_string(it.mask));
    for (const bool committing : {false, true}) {
      Make(6);
      const auto change = [&] {
        env_.commit.Set(it.flag, committing);
        it.change(*rec_);
        env_.commit.Clear();
      };
      change();
      EXPECT_EQ(TakeListed(), committing ? std::vector<int>{it.block} : std::vector<int>{});
      Encode(it.block);
      EXPECT_EQ(image_.Block(it.block)[0], committing ? it.mask : 0);
      change();  // to the value that it has
      EXPECT_EQ(TakeListed(), std::vector<int>{});
      Encode(it.block);
      EXPECT_EQ(image_.Block(it.block)[0], 0);
    }
  }
}

struct AddressCase {
  const char* what;
  std::string address;
  std::vector<std::string> local, domain;
  std::string reads_back;
  std::vector<int> listed;
};

TEST_F(Notification, AddressesAreSplitIntoTextBlocks) {
  const std::string a = "abcdefghijklmnop", b = "ABCDEFGHIJKLMNOP", c = "0123456789.-_+=/";
  const std::vector<std::string> d = {"d.ee", "", ""};
  const AddressCase cases[] = {
      {"16", a + "@d.ee", {a, "", ""}, d, a + "@d.ee", {201, 202, 203, 204, 205, 206}},
      {"17", a + "q@d.ee", {a, "q", ""}, d, a + "q@d.ee", {201, 202, 203}},
      {"back to 16: an emptied block is not listed", a + "@d.ee", {a, "", ""}, d, a + "@d.ee", {}},
      {"32", a + b + "@d.ee", {a, b, ""}, d, a + b + "@d.ee", {201, 202, 203}},
      {"33", a + b + "0@d.ee", {a, b, "0"}, d, a + b + "0@d.ee", {201, 202, 203}},
      {"48", a + b + c + "@d.ee", {a, b, c}, d, a + b + c + "@d.ee", {201, 202, 203}},
      {"49", a + b + c + "X@d.ee", {a, b, c}, d, a + b + c + "@d.ee", {}},
      {"the domain only",
       a + b + c + "@" + b + c + "0",
       {a, b, c},
       {b, c, "0"},
       a + b + c + "@" + b + c + "0",
       {204, 205, 206}},
      {"the first @",
       "a@b@c",
       {"a", "", ""},
       {"b@c", "", ""},
       "a@b@c",
       {201, 202, 203, 204, 205, 206}},
      {"no local part", "@d.ee", {"", "", ""}, d, "", {201, 202, 203, 204, 205, 206}},
      {"no domain", "a@", {"a", "", ""}, {"", "", ""}, "", {201, 202, 203, 204, 205, 206}},
      {"no @", "a", {"", "", ""}, {"", "", ""}, "", {201, 202, 203}},
  };
  for (const AddressCase& it : cases) {
    SCOPED_TRACE(it.what);
    const CommitScope scope(env_.commit, CommitAlarm);
    Notify().EmailString(0, it.address);
    EXPECT_EQ(Texts(201), it.local);
    EXPECT_EQ(Texts(204), it.domain);
    EXPECT_EQ(Notify().EmailString(0), it.reads_back);
    EXPECT_EQ(TakeListed(), it.listed);
  }
}

TEST_F(Notification, EachAddressHasItsBlocks) {
  const struct { int address, first; } cases[] = {{0, 201}, {1, 207}, {2, 220}};
  for (const auto& it : cases) {
    Make(6);
    Notify().EmailString(it.address, "local@domain");
    EXPECT_EQ(TakeListed(), std::vector<int>{});  // nobody commits
    EXPECT_EQ(Texts(it.first), (std::vector<std::string>{"local", "", ""}));
    EXPECT_EQ(Texts(it.first + 3), (std::vector<std::string>{"domain", "", ""}));
    EXPECT_EQ(Rewritten(it.first + 3), "64 6f 6d 61 69 6e 00 00 00 00 00 00 00 00 00 00");
    const CommitScope scope(env_.commit, CommitAlarm);
    Notify().BlkStrInit(it.first + 4, BlockText("x"));
    EXPECT_EQ(TakeListed(), (std::vector<int>{it.first + 3, it.first + 4, it.first + 5}));
    EXPECT_EQ(Notify().EmailString(it.address), "local@domainx");
  }
}

TEST_F(Notification, NoSuchTextAddressOrTimeZone) {
  const CommitScope scope(env_.commit, CommitAlarm);
  const auto before = std::make_unique<MuxData>(env_);
  *before = *rec_;
  for (const int block : {200, 213, 219, 226, -1}) {
    Notify().BlkStrInit(block, BlockText("x"));
    EXPECT_TRUE(Notify().BlkStrInit(block).empty()) << block;
  }
  for (const int address : {-1, 3}) {
    Notify().EmailString(address, "a@b");
    EXPECT_EQ(Notify().EmailString(address), "");
  }
  Notify().TimeZone(5);
  EXPECT_EQ(Notify().TimeZone(), 0);
  EXPECT_TRUE(*rec_ == *before);
  EXPECT_EQ(TakeListed(), std::vector<int>{});
}

}  // namespace
}  // namespace quorvel
