#include "apps/muxhost/simulated_device.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quorvel::muxhost {
namespace {

using Bytes = std::vector<Byte>;

TEST(SimulatedDevice, DisplaysOfSmallDevicesWrapAtTheirLastCamera) {
  struct Case {
    int model;
    int cameras;
    Bytes block38;
    Bytes block40;
    Bytes block42;
  };
  const Case cases[] = {
      {6,
       4,
       {3, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
       {1, 2, 3, 0, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0},
       {2, 3, 0, 1, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0, 1}},
      {2,
       9,
       {8, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
       {1, 2, 3, 4, 5, 6, 7, 8, 0, 10, 11, 12, 13, 14, 15, 0},
       {2, 3, 4, 5, 6, 7, 8, 0, 1, 11, 12, 13, 14, 15, 0, 1}},
      {0,
       10,
       {9, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
       {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 11, 12, 13, 14, 15, 0},
       {2, 3, 4, 5, 6, 7, 8, 9, 0, 1, 12, 13, 14, 15, 0, 1}},
      {20,
       16,
       {15, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14},
       {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0},
       {2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0, 1}},
  };
  for (const Case& it : cases) {
    const SimulatedDevice device(DeviceSetup{.model = it.model, .cameras = it.cameras});
    EXPECT_EQ(device.ReadBlock(38), it.block38) << it.cameras;
    EXPECT_EQ(device.ReadBlock(40), it.block40) << it.cameras;
    EXPECT_EQ(device.ReadBlock(42), it.block42) << it.cameras;
  }
}

TEST(SimulatedDevice, StatesItsIdentityVariantAndBlockCount) {
  const SimulatedDevice device(
      DeviceSetup{.model = 9, .cameras = 4, .blocks = 231, .variant = 'C', .name = "Gate house"});
  const Bytes identity{4, 9, 'G', 'a', 't', 'e', ' ', 'h', 'o', 'u', 's', 'e', 0, 0, 0, 0};
  EXPECT_EQ(device.ReadBlock(185), identity);
  EXPECT_EQ(device.IdentityBytes(), identity);
  EXPECT_EQ(device.ReadBlock(183).value()[7], 'C');
  EXPECT_EQ(device.ReadBlock(1).value()[15], 231);
  EXPECT_EQ(device.Bytes().size(), 3696U);
  EXPECT_EQ(device.ReadBlock(231), Bytes(16, 0));
  EXPECT_EQ(device.ReadBlock(232), std::nullopt);
  EXPECT_EQ(device.ReadBlock(0), std::nullopt);
}

TEST(SimulatedDevice, KnowsWhoItIsWithoutAnIdentityBlock) {
  const SimulatedDevice cut(DeviceSetup{.model = 3, .cameras = 10, .blocks = 20, .name = "D"});
  EXPECT_EQ(cut.ReadBlock(185), std::nullopt);
  EXPECT_EQ(cut.IdentityBytes(), (Bytes{10, 3, 'D', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  const SimulatedDevice raw(Bytes(32, 7));
  EXPECT_EQ(raw.IdentityBytes(), (Bytes{16, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(SimulatedDevice, ModelsHaveTheirUsualSize) {
  const std::pair<int, int> sizes[] = {{0, 185}, {1, 185}, {2, 185}, {5, 185}, {6, 225}, {20, 225}};
  for (const auto& [model, blocks] : sizes) {
    const SimulatedDevice device(DeviceSetup{.model = model});
    EXPECT_EQ(device.BlockCount(), blocks) << model;
    EXPECT_EQ(device.ModelCode(), model);
  }
}

TEST(SimulatedDevice, RefusesImpossibleSetups) {
  const auto reason = [](auto&& make) -> std::string {
    try {
      static_cast<void>(make());
    } catch (const std::invalid_argument& error) {
      return error.what();
    }
    return "none";
  };
  const std::pair<DeviceSetup, const char*> cases[] = {
      {{.model = -1}, "model must be 0 to 20, not -1"},
      {{.model = 21}, "model must be 0 to 20, not 21"},
      {{.cameras = 8}, "cameras must be 4, 9, 10 or 16, not 8"},
      {{.blocks = 0}, "blocks must be 1 to 255, not 0"},
      {{.blocks = 256}, "blocks must be 1 to 255, not 256"},
      {{.name = "fifteen letters"}, "name must be at most 14 characters"},
  };
  for (const auto& [setup, expected] : cases) {
    EXPECT_EQ(reason([&setup = setup] { return SimulatedDevice(setup); }), expected);
  }
  for (const int size : {0, 17, 4096}) {
    EXPECT_EQ(
        reason([&] { return SimulatedDevice(Bytes(static_cast<std::size_t>(size))); }),
        "an image must be 1 to 255 blocks of 16 bytes, not " + std::to_string(size) + " bytes");
  }
}

TEST(SimulatedDevice, TakesPackets) {
  using Written = SimulatedDevice::Written;
  const auto packet = [](Byte number, Byte fill) {
    Bytes bytes(18, fill);
    bytes.front() = number;
    bytes.back() = 0;
    return bytes;
  };
  SimulatedDevice small(DeviceSetup{.blocks = 200});
  const Bytes before(small.Bytes().begin(), small.Bytes().end());
  EXPECT_EQ(small.WritePacket(packet(255, 0)), Written::kEnd);
  EXPECT_EQ(small.WritePacket(packet(0, 5)), Written::kRefused);
  EXPECT_EQ(small.WritePacket(packet(201, 5)), Written::kRefused);
  EXPECT_EQ(small.WritePacket(Bytes(17, 5)), Written::kRefused);
  EXPECT_EQ(Bytes(small.Bytes().begin(), small.Bytes().end()), before);
  EXPECT_EQ(small.WritePacket(packet(200, 5)), Written::kBlock);
  EXPECT_EQ(small.ReadBlock(200), Bytes(16, 5));
  EXPECT_EQ(small.ReadBlock(199), Bytes(before.begin() + 198 * 16, before.begin() + 199 * 16));
}

TEST(SimulatedDevice, TellsAnEmptyLastBlockFromTheEnd) {
  using Written = SimulatedDevice::Written;
  const auto send = [](SimulatedDevice& device, int number, Byte fill) {
    Bytes packet(18, fill);
    packet.front() = static_cast<Byte>(number);
    packet.back() = 0;
    return device.WritePacket(packet);
  };
  SimulatedDevice device(DeviceSetup{.blocks = 255});
  EXPECT_EQ(send(device, 255, 9), Written::kBlock);
  EXPECT_EQ(send(device, 255, 0), Written::kEnd);
  EXPECT_EQ(device.ReadBlock(255), Bytes(16, 9));
  // Chosen blocks: what follows block 254 is the end all the same.
  send(device, 12, 1);
  send(device, 254, 1);
  EXPECT_EQ(send(device, 255, 0), Written::kEnd);
  EXPECT_EQ(device.ReadBlock(255), Bytes(16, 9));
  // All blocks, the macro blocks passed over, after a send that was stopped half-way.
  for (int number = 1; number <= 90; ++number) send(device, number, 2);
  for (int number = 1; number <= 254; ++number) {
    if ((number < 150 || number > 181) && number != 194 && number != 218) send(device, number, 3);
  }
  EXPECT_EQ(send(device, 255, 0), Written::kBlock);
  EXPECT_EQ(send(device, 255, 0), Written::kEnd);
  EXPECT_EQ(device.ReadBlock(255), Bytes(16, 0));
}

SimulatedDevice SmallCombined() {
  Bytes image(32, 0xAA);
  image[15] = 2;
  return SimulatedDevice(std::move(image), CombinedSetup{3, 4, 5, 6});
}

/// Header and content of an array: 2 blocks of `fill` bytes, macro bytes of `fill`.
Bytes Array(Bytes header, std::size_t length, Byte fill) {
  header.resize(length, fill);
  return header;
}

TEST(SimulatedDevice, GivesACombinedArray) {
  const SimulatedDevice device = SmallCombined();
  EXPECT_EQ(device.Sizes(), (Bytes{0, 4, 3, 0, 2, 5, 6}));
  Bytes expected{0, 13, 0, 32, 0, 12, 0, 4, 3, 0, 2, 5, 6};
  expected.insert(expected.end(), device.Bytes().begin(), device.Bytes().end());
  for (Byte i = 0; i < 12; ++i) expected.push_back(i);
  EXPECT_EQ(device.CombinedBytes(), expected);
  EXPECT_THROW(static_cast<void>(SimulatedDevice().Sizes()), std::logic_error);
}

TEST(SimulatedDevice, TakesCombinedArraysWholeOrNotAtAll) {
  struct Case {
    const char* what;
    Bytes array;
    bool taken;
    Bytes second_block;
    Bytes macros;
  };
  const Bytes old_block(16, 0xAA);
  const Bytes new_block(16, 1);
  const Bytes old_macros{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  const Bytes new_macros(12, 1);
  const Case cases[] = {
      {"both", Array({0, 13, 0, 32, 0, 12, 0, 4, 3, 0, 2, 5, 6}, 57, 1), true, new_block,
       new_macros},
      {"data alone, macros in place", Array({0, 13, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 57, 1), true,
       new_block, old_macros},
      {"macros alone, data in place", Array({0, 13, 0, 0, 0, 12, 0, 4, 3, 0, 2, 5, 6}, 57, 1), true,
       old_block, new_macros},
      {"a longer header", Array({0, 15, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6, 9, 9}, 47, 1), true,
       new_block, old_macros},
      {"two records of 2 bytes",
       Array({0, 13, 0, 0, 0, 4, 0, 2, 2, 0, 2, 5, 6}, 49, 1),
       true,
       old_block,
       {1, 1, 2, 3, 1, 1, 6, 7, 8, 9, 10, 11}},
      {"one block", Array({0, 13, 0, 16, 0, 0, 0, 4, 3, 0, 1, 5, 6}, 29, 1), true, old_block,
       old_macros},
      {"bytes too many", Array({0, 13, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 60, 1), true, new_block,
       old_macros},
      {"three blocks", Array({0, 13, 0, 48, 0, 0, 0, 4, 3, 0, 3, 5, 6}, 61, 1), false, {}, {}},
      {"four records", Array({0, 13, 0, 32, 0, 16, 0, 4, 4, 0, 2, 5, 6}, 61, 1), false, {}, {}},
      {"half a block", Array({0, 13, 0, 24, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 57, 1), false, {}, {}},
      {"half the macros", Array({0, 13, 0, 32, 0, 6, 0, 4, 3, 0, 2, 5, 6}, 57, 1), false, {}, {}},
      {"cut in the macros",
       Array({0, 13, 0, 32, 0, 12, 0, 4, 3, 0, 2, 5, 6}, 56, 1),
       false,
       {},
       {}},
      {"a short header", Array({0, 12, 0, 32, 0, 0, 0, 4, 3, 0, 2, 5, 6}, 57, 1), false, {}, {}},
      {"no header", Array({0, 13, 0, 32}, 12, 0), false, {}, {}},
  };
  for (const Case& it : cases) {
    SimulatedDevice device = SmallCombined();
    const Bytes before = device.CombinedBytes();
    EXPECT_EQ(device.WriteCombined(it.array), it.taken) << it.what;
    if (!it.taken) {
      EXPECT_EQ(device.CombinedBytes(), before) << it.what;
      continue;
    }
    EXPECT_EQ(device.ReadBlock(2), it.second_block) << it.what;
    EXPECT_EQ(Bytes(device.Macros().begin(), device.Macros().end()), it.macros) << it.what;
  }
  SimulatedDevice single(DeviceSetup{.blocks = 2});
  EXPECT_FALSE(single.WriteCombined(cases[0].array));
}

}  // namespace
}  // namespace quorvel::muxhost
