#include "muxhost/device/simulated_device.h"

#include <gtest/gtest.h>

namespace quorvel::muxhost {
namespace {

using Bytes = std::vector<Byte>;
using Written = SimulatedDevice::Written;

/// Sends a block of `fill` bytes.
Written Send(SimulatedDevice& device, int number, Byte fill) {
  Bytes packet(18, fill);
  packet.front() = static_cast<Byte>(number);
  packet.back() = 0;
  return device.WritePacket(packet);
}

TEST(SimulatedDevice, TakesPackets) {
  SimulatedDevice small(DeviceSetup{.blocks = 200});
  const Bytes before(small.Bytes().begin(), small.Bytes().end());
  EXPECT_EQ(Send(small, 255, 0), Written::kEnd);
  EXPECT_EQ(Send(small, 0, 5), Written::kRefused);
  EXPECT_EQ(Send(small, 201, 5), Written::kRefused);
  EXPECT_EQ(small.WritePacket(Bytes(17, 5)), Written::kRefused);
  EXPECT_EQ(Bytes(small.Bytes().begin(), small.Bytes().end()), before);
  EXPECT_EQ(Send(small, 200, 5), Written::kBlock);
  EXPECT_EQ(small.ReadBlock(200), Bytes(16, 5));
  EXPECT_EQ(small.ReadBlock(199), Bytes(before.begin() + 198 * 16, before.begin() + 199 * 16));
}

TEST(SimulatedDevice, TellsAnEmptyLastBlockFromTheEnd) {
  SimulatedDevice device(DeviceSetup{.blocks = 255});
  EXPECT_EQ(Send(device, 255, 9), Written::kBlock);
  EXPECT_EQ(Send(device, 255, 0), Written::kEnd);
  EXPECT_EQ(device.ReadBlock(255), Bytes(16, 9));
  // Chosen blocks: what follows block 254 is the end all the same.
  Send(device, 12, 1);
  Send(device, 254, 1);
  EXPECT_EQ(Send(device, 255, 0), Written::kEnd);
  EXPECT_EQ(device.ReadBlock(255), Bytes(16, 9));
  // All blocks, the macro blocks passed over, after a send that was stopped half-way.
  for (int number = 1; number <= 90; ++number) Send(device, number, 2);
  for (int number = 1; number <= 254; ++number) {
    if ((number < 150 || number > 181) && number != 194 && number != 218) Send(device, number, 3);
  }
  EXPECT_EQ(Send(device, 255, 0), Written::kBlock);
  EXPECT_EQ(Send(device, 255, 0), Written::kEnd);
  EXPECT_EQ(device.ReadBlock(255), Bytes(16, 0));
}

SimulatedDevice SmallCombined() {
  Bytes image(32, 0xAA);
  image[15] = 2;
  return SimulatedDevice(std::move(image), CombinedSetup{3, 4, 5, 6});
}

TEST(SimulatedDevice, TakesCombinedArraysWholeOrNotAtAll) {
  constexpr Byte kOld = 0xAA;
  const Bytes old_macros{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  const Bytes new_macros(12, 1);
  const Bytes mixed{1, 1, 2, 3, 1, 1, 6, 7, 8, 9, 10, 11};
  const struct {
    const char* what;
    Bytes header;
    std::size_t length;  ///< with what follows the header, which is all 1
    Byte second_block;   ///< afterwards; 0 when the array is refused
    Bytes macros;
  } cases[] = {
      {"both", {0, 13, 0, 32, 0, 12, 0, 4, 3, 0, 2, 5, 6}, 57, 1, new_macros},
      {"data alone, macros in place", {0, 13, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 57, 1, old_macros},
      {"macros alone", {0, 13, 0, 0, 0, 12, 0, 4, 3, 0, 2, 5, 6}, 57, kOld, new_macros},
      {"a longer header", {0, 15, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6, 9, 9}, 47, 1, old_macros},
      {"two records of 2 bytes", {0, 13, 0, 0, 0, 4, 0, 2, 2, 0, 2, 5, 6}, 49, kOld, mixed},
      {"one block", {0, 13, 0, 16, 0, 0, 0, 4, 3, 0, 1, 5, 6}, 29, kOld, old_macros},
      {"bytes too many", {0, 13, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 60, 1, old_macros},
      {"three blocks", {0, 13, 0, 48, 0, 0, 0, 4, 3, 0, 3, 5, 6}, 61, 0, {}},
      {"four records", {0, 13, 0, 32, 0, 16, 0, 4, 4, 0, 2, 5, 6}, 61, 0, {}},
      {"half a block", {0, 13, 0, 24, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 57, 0, {}},
      {"half the macros", {0, 13, 0, 32, 0, 6, 0, 4, 3, 0, 2, 5, 6}, 57, 0, {}},
      {"cut in the macros", {0, 13, 0, 32, 0, 12, 0, 4, 3, 0, 2, 5, 6}, 56, 0, {}},
      {"a short header", {0, 12, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 57, 0, {}},
      {"no header", {0, 13, 0, 32}, 12, 0, {}},
  };
  for (const auto& it : cases) {
    SCOPED_TRACE(it.what);
    SimulatedDevice device = SmallCombined();
    const Bytes before = device.CombinedBytes();
    Bytes array = it.header;
    array.resize(it.length, 1);
    EXPECT_EQ(device.WriteCombined(array), it.second_block != 0);
    if (it.second_block == 0) {
      EXPECT_EQ(device.CombinedBytes(), before);
    } else {
      EXPECT_EQ(device.ReadBlock(2), Bytes(16, it.second_block));
      EXPECT_EQ(Bytes(device.Macros().begin(), device.Macros().end()), it.macros);
    }
    EXPECT_FALSE(SimulatedDevice(DeviceSetup{.blocks = 2}).WriteCombined(array));
  }
}

}  // namespace
}  // namespace quorvel::muxhost
