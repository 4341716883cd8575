#include "muxhost/block_states.h"

#include <gtest/gtest.h>

#include <string_view>

#include "muxhost/host_session.h"
#include "quorvel/headless_platform.h"

namespace quorvel::muxhost {
namespace {

using Bytes = std::vector<Byte>;

Exchange Sent(const Bytes& blocks) {
  Exchange exchange;
  for (const Byte block : blocks) exchange.sent_blocks[block] = Bytes(16, 0);
  return exchange;
}

TEST(BlockStates, FollowAnUploadAndWhatIsEditedAfterIt) {
  BlockStates states;
  const Bytes listed{3, 4, 5};
  const auto shown = [&states] {
    std::string text;
    for (const int block : {2, 3, 4, 5}) {
      text += std::string_view(NameOf(states.Of(static_cast<Byte>(block)))).substr(0, 2);
    }
    return text;
  };
  states.SetChanges(listed, {3, 4});
  EXPECT_EQ(shown(), "unchchch");
  EXPECT_EQ(states.Unwritten(), (Bytes{3, 4, 5}));

  Exchange upload = Sent({3, 4});
  states.Follow(upload);
  EXPECT_EQ(shown(), "unsesech");

  // Block 4 is not as sent; the list of modified blocks outlives the send.
  upload.read_back = ReadBack{2, false, {4}, false};
  states.SetChanges(listed, {4});
  states.Follow(upload);
  EXPECT_EQ(shown(), "unvefach");
  EXPECT_EQ(states.Unwritten(), (Bytes{4, 5}));
  EXPECT_EQ(states.In(BlockState::kFailed), Bytes{4});

  states.SetChanges(listed, {3, 4});
  EXPECT_EQ(shown(), "unchfach") << "edited after it was verified";

  // The packet with block 5 was never acknowledged.
  upload = Sent({4, 5});
  upload.unanswered = 5;
  states.SetChanges(listed, {});
  states.Follow(upload);
  EXPECT_EQ(shown(), "unvesese");
  upload.ended = true;
  states.Follow(upload);
  EXPECT_EQ(shown(), "unvesefa") << "also where nothing could be read back";
  upload.read_back = ReadBack{2, false, {}, false};
  states.Follow(upload);
  EXPECT_EQ(shown(), "unvevefa");

  Exchange download;
  download.arrived = true;
  states.SetChanges({}, {});
  states.Follow(download);
  EXPECT_EQ(shown(), "unununun");
}

class BlocksOfADevice : public testing::Test {
 protected:
  /// What a reader comes to: the bytes, or the reason in `failure_`.
  Bytes Read() {
    Bytes bytes;
    failure_ = "no answer";
    const auto reader = session_.NewReader();
    reader->on_progress = [this](int blocks, int of) { progress_ = {blocks, of}; };
    reader->on_failed = [this](const std::string& reason) { failure_ = reason; };
    reader->on_done = [&](const Bytes& read) {
      bytes = read;
      failure_.clear();
    };
    reader->Start();
    platform_.RunUntilIdle();
    return bytes;
  }
  HeadlessPlatform platform_;
  HostSession session_{platform_, [this](int milliseconds, std::function<void()> task) {
                         platform_.PostIn(milliseconds, std::move(task));
                       }};
  std::string failure_;
  std::pair<int, int> progress_;
};

TEST_F(BlocksOfADevice, AreReadOverTheLinkWhole) {
  const auto device = session_.Device().Bytes();
  EXPECT_EQ(Read(), Bytes(device.begin(), device.end()));
  EXPECT_EQ(progress_, std::pair(225, 225));
  EXPECT_TRUE(session_.Control().Image().empty());
  struct {
    FaultKind fault;
    const char* failure;
  } const cases[] = {
      {FaultKind::kSilent, "no answer"},
      {FaultKind::kShort, "block 3 came with 8 bytes"},
      {FaultKind::kWrong, "no answer"},
      {FaultKind::kDuplicate, ""},
  };
  for (const auto& it : cases) {
    session_.SetFault(Fault{.kind = it.fault, .at = 3});
    EXPECT_EQ(Read().size(), *it.failure == '\0' ? 3600U : 0U);
    EXPECT_EQ(failure_, it.failure);
  }
  session_.Connect(
      SimulatedDevice(DeviceSetup{.combined = CombinedSetup{.macros = 2, .macro_size = 8}}));
  EXPECT_EQ(Read().size(), 13U + 3600 + 16);
  session_.SetFault(Fault{.kind = FaultKind::kShort});
  EXPECT_TRUE(Read().empty());
  EXPECT_EQ(failure_, "the array that came is no configuration");
  session_.SwitchLink(false);
  EXPECT_TRUE(Read().empty());
  EXPECT_EQ(failure_, "the link is off");
}

}  // namespace
}  // namespace quorvel::muxhost
