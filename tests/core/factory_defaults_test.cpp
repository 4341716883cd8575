#include "core/factory_defaults.h"

#include <vector>

#include "resources/default_images.h"
#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

using Bytes = std::vector<int>;

/// Bytes of a block, from one byte on.
struct Piece {
  int block;
  int first;
  Bytes bytes;
};
using Pieces = std::vector<Piece>;

Pieces operator+(Pieces all, const Pieces& more) {
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

constexpr std::array<Byte, 14> kName = {'A', 'B', ' ', 0, 'C', 'D', 'E', 'F', 'G'};

auto Device(int code, int cameras, char variant) {
  const auto byte = [](int value) { return static_cast<Byte>(value); };
  return DefaultsDevice{byte(variant), byte(cameras), byte(code), kName};
}

/// An image of which every byte but the count tells that nobody wrote it.
BlockImage Unwritten(int blocks) {
  BlockImage image(std::vector<Byte>(static_cast<std::size_t>(blocks) * 16, 0xEE));
  image.Block(1)[15] = static_cast<Byte>(blocks);
  return image;
}

struct Case {
  int code, cameras;
  char variant;
  int combo_blocks;
  int blocks;      ///< of the result
  Pieces written;  ///< besides those of every device
};

const Pieces kEvery = {{54, 0, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}},
                       {185, 2, {'A', 'B', ' ', 0, 'C', 'D', 'E', 'F', 'G', 0, 0, 0, 0, 0}}};
const Pieces kDuplex = {{60, 5, {1}}, {60, 11, {1}}};
const Pieces kOther = {{56, 0, Bytes(16, 210)}};
const Pieces kOther208 = {{56, 0, Bytes(16, 208)}};
const Pieces kVariant = {{56, 0, Bytes(16, 146)}, {60, 15, {1}}, {59, 14, {1, 1}}, {60, 0, {1}},
                         {61, 6, {0, 0, 0, 0}},   {59, 11, {0}}, {60, 8, {4}},     {61, 14, {1, 1}},
                         {200, 5, {0, 25}}};
const Pieces kLite = {{60, 7, {1}}, {60, 12, {1}}, {61, 10, {0, 1, 0, 0}}, {48, 12, {0}}};
const Pieces kActive = {{49, 0, {255, 255, 255, 255}}};
const Pieces kInactive = {{49, 0, {0, 0, 0, 0}}};
const Pieces k4Cameras = {{38, 0, {3}}, {38, 2, {1, 2}}, {40, 2, {3, 0}}, {42, 2, {0, 1}}};
const Pieces k9Cameras = {{38, 0, {8}}, {38, 7, {6, 7}}, {40, 7, {8, 0}}, {42, 7, {0, 1}}};
const Pieces k10Cameras = {{38, 0, {9}}, {38, 8, {7, 8}}, {40, 8, {9, 0}}, {42, 8, {0, 1}}};
const Pieces kUser1 = {{201, 0, {'U', 's', 'e', 'r', '1'}},
                       {204, 0, {'e', 'x', 'a', 'm', 'p', 'l', 'e', '.', 'c', 'o', 'm'}}};

Pieces TimeLapse(int rate) { return {{62, 0, Bytes(16, rate)}}; }
Pieces Lite(int event, int time_lapse, int activity) {
  return kLite + kActive + TimeLapse(time_lapse) +
         Pieces{{58, 0, Bytes(16, event)}, {63, 0, Bytes(16, activity)}};
}

const Case kCases[] = {
    {2, 16, '1', 224, 185, kDuplex},
    {4, 4, '2', 0, 185, kDuplex + Lite(5, 20, 2) + k4Cameras},
    {5, 9, '4', 0, 185, kDuplex + kLite + kActive + k9Cameras},
    {5, 10, '4', 0, 185, kDuplex + Lite(2, 17, 6) + k10Cameras},
    {5, 16, '4', 0, 185, kDuplex + Lite(1, 15, 4)},
    {6, 16, '4', 199, 200, kOther},
    {6, 16, '4', 224, 224, kOther},  // blocks 201 to 224 stay zero
    {6, 16, '4', 456, 200, kOther},
    {20, 4, '0', 200, 200, kOther + k4Cameras},  // not lite here
    {8, 16, '4', 255, 255, kOther + Lite(2, 18, 7)},
    {17, 4, '4', 0, 200, kOther + Lite(8, 20, 13) + k4Cameras},
    {10, 5, '4', 0, 200, kOther208 + kLite + kActive},
    {11, 4, '4', 0, 200, kOther208 + Lite(7, 20, 12) + k4Cameras},
    {12, 10, '2', 0, 200, kVariant + Lite(4, 20, 9) + k10Cameras},
    {9, 10, '1', 0, 200, kVariant + Lite(3, 19, 8) + k10Cameras},
    {9, 10, '2', 0, 200, kVariant + Lite(3, 4, 8) + k10Cameras},
    {9, 16, '1', 205, 205, kVariant + Lite(2, 17, 6)},          // half an address is none
    {9, 16, '2', 211, 211, kVariant + Lite(2, 6, 6) + kUser1},  // room for one
    {13, 4, '2', 0, 200, kVariant + Lite(7, 1, 12) + k4Cameras},
    {6, 16, '1', 0, 200, kVariant + kInactive + TimeLapse(6)},
    {7, 10, '2', 0, 200, kVariant + kInactive + TimeLapse(4) + k10Cameras},
    {14, 4, '2', 0, 200, kVariant + kInactive + TimeLapse(1) + k4Cameras},
    {18, 9, '2', 0, 200, kVariant + kInactive + k9Cameras},
};

TEST(FactoryDefaults, WriteTheseBytesAndNoOthers) {
  for (const Case& it : kCases) {
    SCOPED_TRACE(testing::Message() << "model " << it.code << ", " << it.cameras
                                    << " cameras, variant " << it.variant);
    BlockImage image = Unwritten(it.code < 6 ? 185 : 200);
    BlockImage expected = image;
    expected.ResizeBlocks(it.blocks);
    const Pieces of_device = {
        {1, 15, {it.blocks}}, {183, 7, {it.variant}}, {185, 0, {it.cameras, it.code}}};
    for (const Piece& piece : of_device + kEvery + it.written) {
      std::ranges::copy(piece.bytes, expected.Block(piece.block).begin() + piece.first);
    }
    AdaptToDevice(image, Device(it.code, it.cameras, it.variant), it.combo_blocks);
    ASSERT_EQ(image.Size(), expected.Size());
    for (int n = 1; n <= it.blocks; ++n) {
      EXPECT_TRUE(std::ranges::equal(image.Block(n), expected.Block(n))) << "block " << n;
    }
  }
}

TEST(FactoryDefaults, RefuseBeforeAnythingChanges) {
  const struct {
    int code, cameras, blocks;
  } cases[] = {{6, 17, 200}, {2, 17, 185}, {6, 16, 199}, {2, 16, 184}};
  for (const auto& it : cases) {
    BlockImage image = Unwritten(it.blocks);
    EXPECT_THROW(AdaptToDevice(image, Device(it.code, it.cameras, '1'), 224), ImageError);
    EXPECT_TRUE(std::ranges::equal(image.Bytes(), Unwritten(it.blocks).Bytes())) << it.blocks;
  }
  BlockImage nothing;
  EXPECT_THROW(AdaptToDevice(nothing, Device(2, 16, '1'), 0), ImageError);
}

class FactoryDefaultsDecoded : public Codec {
 protected:
  void Load(int code, int cameras, char variant, int combo_blocks) {
    image_ = LoadDefaultImage(FactoryImageOf(static_cast<Byte>(code)));
    AdaptToDevice(image_, Device(code, cameras, variant), combo_blocks);
    rec_ = std::make_unique<MuxData>(env_);
    Decode();
  }
  /// Names, each followed by its value.
  void Expect(const char* settings) {
    std::istringstream lines(settings);
    const auto values = Values().by_name;
    for (std::string name, value; lines >> name >> value;) {
      const auto found = values.find(name);
      EXPECT_EQ(found == values.end() ? "no such setting" : found->second, value) << name;
    }
  }
};

TEST_F(FactoryDefaultsDecoded, AreTheDevicesSettings) {
  Load(5, 4, '2', 0);
  EXPECT_EQ(rec_->MuxModelName(), "AB ");
  Expect(R"(LockKeyBoard 1  FullscrAlm 1  Buzzer(0) 0  Buzzer(1) 1  Buzzer(4) 0  VariantChar 50
            CamEvent(3).TL_RRIndex 20  AlmActionInfo(3).Display1 2  CamInfo(3).LnkALM 4)");
  Load(6, 16, '1', 224);
  Expect(R"(LockKeyBoard 0  FullscrAlm 0  RecLock 1  BaudRate 4  ActivityEnable(0) 0  LumacastCDW 1
            CamEvent(15).EType 0  AlmEmailNotify.SMTPPort 25  AlmEmailNotify.TCPPort 1027)");
  const clsEmailNotify& notify = rec_->AlmEmailNotify;
  EXPECT_EQ(notify.EmailString(0), "User1@example.com");
  EXPECT_EQ(notify.EmailString(1), "User2@example.com");
  EXPECT_EQ(notify.EmailString(2), "");
}

}  // namespace
}  // namespace quorvel
