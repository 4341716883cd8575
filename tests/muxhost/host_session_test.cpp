#include "muxhost/host_session.h"

#include <gtest/gtest.h>

#include "quorvel/headless_platform.h"

namespace quorvel::muxhost {
namespace {

using Lines = std::vector<std::string>;

class HostSessionTest : public testing::Test {
 protected:
  /// Closes each modal dialog at once, so that answers are still under way when it has gone.
  void CloseAtOnce() {
    platform_.at_modal = [](Dialog& dialog) {
      dialog.CloseWindow();
      return true;
    };
  }

  HeadlessPlatform platform_;
  HostSession session_{platform_, [this](int milliseconds, std::function<void()> task) {
                         platform_.PostIn(milliseconds, std::move(task));
                       }};
};

TEST_F(HostSessionTest, AnswersUnderWayAreDroppedWithTheDeviceTheyCameFrom) {
  CloseAtOnce();
  session_.Download();
  session_.Connect(SimulatedDevice(DeviceSetup{.model = 2}));
  platform_.RunUntilIdle();
  EXPECT_TRUE(session_.Control().Image().empty());
  EXPECT_EQ(session_.TakeLog(), (Lines{"RequestBlk 1"}));
}

TEST_F(HostSessionTest, AnswersUnderWayAreDroppedByTheNextDownload) {
  CloseAtOnce();
  session_.Download();
  platform_.at_modal = nullptr;
  session_.Download();
  // Without anybody at the dialog it is closed when nothing more happens: after all blocks.
  const auto bytes = session_.Device().Bytes();
  EXPECT_EQ(session_.Control().Image(), std::vector<Byte>(bytes.begin(), bytes.end()));
  EXPECT_EQ(session_.LastExchange().blocks_read, 225);
  EXPECT_TRUE(session_.LastExchange().arrived);
}

TEST_F(HostSessionTest, AnswersUnderWayOutliveTheSessionWithoutEffect) {
  CloseAtOnce();
  auto session = std::make_unique<HostSession>(
      platform_, [this](int milliseconds, std::function<void()> task) {
        platform_.PostIn(milliseconds, task);
      });
  session->Download();
  session.reset();
  platform_.RunUntilIdle();
  EXPECT_TRUE(platform_.TakeMessages().empty());
}

TEST_F(HostSessionTest, ObserverSeesEveryEntry) {
  session_.Connect(SimulatedDevice(DeviceSetup{.blocks = 2}));
  Lines seen;
  session_.on_change = [&] {
    for (std::string& entry : session_.TakeLog()) seen.push_back(std::move(entry));
  };
  session_.Download();
  session_.Control().Surface().Click();
  EXPECT_EQ(seen, (Lines{"RequestBlk 1", "RequestBlk 2", "UploadSucceeded", "Click"}));
}

TEST_F(HostSessionTest, RefusedWritesAreNotAcknowledged) {
  session_.Configure({.sync = true});
  session_.Connect(SimulatedDevice(std::vector<Byte>(16, 0)));
  std::vector<Byte> packet(18, 3);
  session_.DownLoadData(packet);
  platform_.RunUntilIdle();
  EXPECT_EQ(session_.TakeLog(),
            (Lines{"DownLoadData 3", "not written: the device refuses block 3"}));
  EXPECT_TRUE(session_.LastExchange().blocks_written.empty());
}

TEST(Exchange, ReadBackShowsWhatTheDeviceDoesNotHold) {
  SimulatedDevice device(DeviceSetup{.blocks = 255, .combined = CombinedSetup{2, 4}});
  std::vector<Byte> packet(18, 9);
  packet[0] = 255;
  device.WritePacket(packet);
  Exchange exchange;
  EXPECT_FALSE(CompareWith(device, exchange).has_value());
  // Only the second packet of this kind shows that the first was a block.
  packet.assign(18, 0);
  packet[0] = 255;
  exchange.NoteEnd(packet);
  EXPECT_FALSE(CompareWith(device, exchange).has_value());
  exchange.NoteEnd(packet);
  const std::vector<Byte> macros_of_2_bytes{0, 13, 0, 0, 0, 4, 0, 2, 2, 0, 0, 5, 6, 0, 1, 2, 3};
  exchange.NoteArray(macros_of_2_bytes);
  EXPECT_TRUE(device.WriteCombined(macros_of_2_bytes));
  EXPECT_EQ(InWords(CompareWith(device, exchange).value()),
            (Lines{"block 255 is not as sent", "the macro data is not as sent"}));
}

}  // namespace
}  // namespace quorvel::muxhost
