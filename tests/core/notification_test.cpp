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
    auto numbers = Listed(env_.blocks);
    env_.blocks.BlkSavIdx(0);
    return numbers;
  }
  /// Three text blocks, each ended by a bar.
  std::string Texts(int first) {
    std::string texts;
    for (int block = first; block < first + 3; ++block) {
      texts += std::string(std::string_view(Notify().BlkStrInit(block))) + "|";
    }
    return texts;
  }
};

TEST_F(Notification, AddressesAreSplitIntoTextBlocks) {
  const std::string a = "abcdefghijklmnop", b = "ABCDEFGHIJKLMNOP", c = "0123456789.-_+=/";
  const std::string all = a + b + c;
  const std::vector<int> local{201, 202, 203}, domain{204, 205, 206};
  const std::vector<int> both{201, 202, 203, 204, 205, 206}, none;
  const struct {
    const char* what;
    std::string address;
    std::string blocks;  ///< 201 to 206
    std::string reads_back;
    std::vector<int> listed;
  } cases[] = {
      {"16", a + "@d.ee", a + "|||d.ee|||", a + "@d.ee", both},
      {"17", a + "q@d.ee", a + "|q||d.ee|||", a + "q@d.ee", local},
      {"back to 16: an emptied block is not listed", a + "@d.ee", a + "|||d.ee|||", a + "@d.ee",
       none},
      {"32", a + b + "@d.ee", a + "|" + b + "||d.ee|||", a + b + "@d.ee", local},
      {"33", a + b + "0@d.ee", a + "|" + b + "|0|d.ee|||", a + b + "0@d.ee", local},
      {"48", all + "@d.ee", a + "|" + b + "|" + c + "|d.ee|||", all + "@d.ee", local},
      {"49", all + "X@d.ee", a + "|" + b + "|" + c + "|d.ee|||", all + "@d.ee", none},
      {"the domain only", all + "@" + b + c + "0",
       a + "|" + b + "|" + c + "|" + b + "|" + c + "|0|", all + "@" + b + c + "0", domain},
      {"the first @", "a@b@c", "a|||b@c|||", "a@b@c", both},
      {"no local part", "@d.ee", "|||d.ee|||", "", both},
      {"no domain", "a@", "a||||||", "", both},
      {"no @", "a", "||||||", "", local},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.what);
    const CommitScope scope(env_.commit, CommitAlarm);
    Notify().EmailString(0, it.address);
    EXPECT_EQ(Texts(201) + Texts(204), it.blocks);
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
    EXPECT_EQ(Texts(it.first) + Texts(it.first + 3), "local|||domain|||");
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
