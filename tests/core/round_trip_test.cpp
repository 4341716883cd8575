#include <random>
#include <vector>

#include "tests/core/codec_fixture.h"

namespace quorvel {
namespace {

/// What an image is after it was decoded and every block encoded again: the same, apart from the
/// changes listed here, each with its reason.
class AfterTrip {
 public:
  explicit AfterTrip(const BlockImage& before)
      : before_(before),
        after_(before),
        blocks_(before.Block(1)[15]),
        cameras_(before.Block(185)[0]),
        code_(before.Block(185)[1] & 0x7F) {}

  BlockImage Image() {
    RebuildPackedBytes();
    TrimTexts();
    RepairValues();
    RepairSchedules();
    MarkTurboRates();
    return after_;
  }
  [[nodiscard]] bool IsMatrix() const { return code_ == 14 || code_ == 15; }

 private:
  /// A byte of the result; blocks that the device lacks are changed to no effect.
  Byte& At(int block, int byte) {
    return block <= blocks_ ? after_.Block(block)[static_cast<std::size_t>(byte)] : nothing_;
  }
  void Keep(int block, int byte, unsigned mask) {
    At(block, byte) = static_cast<Byte>(At(block, byte) & mask);
  }

  /// Clears what is beyond the last camera of a field a camera: two bytes of bits, or of 2-bit
  /// fields and nibbles the rest of the last byte.
  void ClearSpare(int block, std::initializer_list<int> places, int bits) {
    const int used = cameras_ * bits;
    const int bytes = bits == 1 ? 2 : (used + 7) / 8;
    for (const int at : places) {
      for (int i = 0; i < bytes; ++i) {
        Keep(block, at + i, (1U << std::clamp(used - 8 * i, 0, 8)) - 1);
      }
    }
  }

  // Bytes that pack several settings are rebuilt: bits of absent cameras and without meaning are 0.
  void RebuildPackedBytes() {
    for (const int block : {48, 49}) ClearSpare(block, {0, 4, 8}, 1);
    ClearSpare(33, {0, 4, 8, 12}, 1);
    ClearSpare(61, {6}, 1);
    ClearSpare(184, {0, 4}, 1);
    if (code_ >= 6) ClearSpare(184, {8}, 1);
    for (const int block : {51, 149}) ClearSpare(block, {0, 8}, 2);
    if (IsMatrix()) ClearSpare(45, {0}, 2);
    ClearSpare(50, {0}, 4);
    if (code_ < 6) ClearSpare(47, {0}, 4);
    ClearSpare(44, {0}, 2);
    if (code_ != 0) ClearSpare(44, {8}, before_.Block(45)[13] != 0 ? 4 : 2);
    // Alarm relays fill bytes 0 to 3 and clear the four after them.
    for (int i = (cameras_ + 3) / 4; i < 8; ++i) At(44, i) = 0;
    if (code_ >= 6) Keep(45, 12, 0x1F);
    for (int k = 0; k < 16 && code_ >= 2; ++k) Keep(56, k, (At(56, k) & 0x40) != 0 ? 0xD7 : 0x17);
    Keep(59, 0, IsMatrix() ? 0x1F : 0x03);
    Keep(59, 8, IsMatrix() ? 0x1F : 0x03);
    Keep(60, 6, 0x03);
  }

  // Titles lose the blanks at both ends, texts what follows their end; the masks that tell what
  // changed are written, and nothing has.
  void TrimTexts() {
    for (int block = 1; block <= cameras_; ++block) {
      const auto bytes = after_.Block(block).first(13);
      const auto start = std::ranges::find_if(bytes, [](Byte b) { return b != ' '; });
      std::fill(std::copy(start, bytes.end(), bytes.begin()), bytes.end(), Byte{' '});
    }
    for (int block = 201; block <= 225; ++block) {
      bool ended = block >= 213 && block <= 219;
      if (ended) continue;
      for (int k = 0; k < 16; ++k) {
        ended = ended || At(block, k) == 0;
        if (ended) At(block, k) = 0;
      }
    }
    At(213, 0) = 0;
    At(217, 0) = 0;
  }

  // Values that the device cannot mean.
  void RepairValues() {
    for (int k = 0; k < cameras_; ++k) {
      if (At(34, k) > cameras_) At(34, k) = 0;
      const int shift = k % 2 * 4;
      Byte& quality = At(44, 8 + k / 2);
      if (code_ != 0 && before_.Block(45)[13] != 0 && (quality >> shift & 15) > 8) {
        quality = static_cast<Byte>((quality & ~(15 << shift)) | 8 << shift);
      }
    }
    // Booleans are true for 1 only.
    if (At(59, 1) != 1) At(59, 1) = 0;
    if (At(60, 7) != 1) At(60, 7) = 0;
    if (code_ != 0 && (At(59, 13) < 1 || At(59, 13) > 5)) At(59, 13) = 1;
    // Years from 2000 on are written as what they are above 2000.
    if (At(61, 5) >= 100) At(61, 5) = static_cast<Byte>(At(61, 5) - 100);
  }

  void RepairSchedules() {
    for (int entry = 0; entry < 20; ++entry) {
      const int block = 64 + entry / 4;
      const int at = entry % 4 * 4;
      if (At(block, at) > 8) At(block, at) = 0;
      if (At(block, at + 1) > 23) At(block, at + 1) = 0;
      if (At(block, at + 2) > 58) At(block, at + 2) = 0;
      if (At(block, at + 3) > cameras_) At(block, at + 3) = 1;
    }
    for (int c = 0; c < cameras_; ++c) {
      if (At(69 + c, 0) > 10) At(69 + c, 0) = 10;
      // Scripts are read up to the byte after their end; the rest is forgotten.
      for (int k = At(69 + c, 0) + 2; k <= 10; ++k) At(69 + c, k) = 0;
    }
  }

  // A rate of 0 that block 219 marks is 99, and says so itself from now on.
  void MarkTurboRates() {
    if (blocks_ < 219) return;
    const auto marks = before_.Block(219);
    const auto mark = [](Byte& rate, bool marked) {
      if (marked && rate == 0) rate = 99;
    };
    for (std::size_t k = 0; k < static_cast<std::size_t>(cameras_) && code_ >= 2; ++k) {
      std::size_t byte = 1 + k / 8;
      for (const int block : {62, 58, 63}) {
        mark(At(block, static_cast<int>(k)), (marks[byte] >> k % 8 & 1) != 0);
        byte += 2;
      }
    }
    mark(At(59, 7), marks[7] == 1);
  }

  const BlockImage& before_;
  BlockImage after_;
  int blocks_, cameras_, code_;
  Byte nothing_ = 0;
};

/// An image of random bytes, rich in the values at which something happens.
BlockImage RandomImage(std::mt19937& random, int code, int cameras, int blocks) {
  constexpr Byte kTelling[] = {0, 0, 0, 1, 1, ' ', 8, 255};
  BlockImage image;
  image.ResizeBlocks(blocks);
  for (int n = 1; n <= blocks; ++n) {
    for (Byte& byte : image.Block(n)) {
      const auto draw = random();
      byte = (draw & 0x300) == 0 ? kTelling[draw >> 10 & 7] : static_cast<Byte>(draw);
    }
  }
  image.Block(1)[15] = static_cast<Byte>(blocks);
  WriteIdentityBlock(image, static_cast<Byte>(cameras), static_cast<Byte>(code | (random() & 0x80)),
                     "TEST");
  return image;
}

std::string DifferingBytes(const BlockImage& one, const BlockImage& other) {
  std::string text;
  for (std::size_t i = 0; i < one.Size(); ++i) {
    if (one.Bytes()[i] == other.Bytes()[i]) continue;
    text += "block " + std::to_string(i / 16 + 1) + " byte " + std::to_string(i % 16) + ": " +
            std::to_string(one.Bytes()[i]) + ", expected " + std::to_string(other.Bytes()[i]) +
            "\n";
  }
  return text;
}

void EncodeOneByOne(BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  for (int block = 255; block >= 1; --block) EncodeBlock(block, image, env, rec);
}

/// Decodes, encodes every block, decodes again.
void Trip(BlockImage image, bool one_by_one) {
  AfterTrip expected(image);
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *rec);
  one_by_one ? EncodeOneByOne(image, env, *rec) : EncodeImage(image, env, *rec);
  EXPECT_EQ(DifferingBytes(image, expected.Image()), "");

  const auto again = std::make_unique<MuxData>(env);
  DecodeImage(image, env, *again);
  // What no byte can say: years beyond 2059, and monitors C to E without a matrix.
  if (rec->TDInfo.CurrentYear() > 2059) {
    rec->TDInfo.CurrentYear.Load(static_cast<std::int16_t>(rec->TDInfo.CurrentYear() - 100));
  }
  for (int i = expected.IsMatrix() ? 5 : 2; i < 5; ++i) {
    rec->TDInfo.TDDisplay(i, 0);
    rec->TitleDisplay(i, 0);
  }
  EXPECT_TRUE(*again == *rec);
  EXPECT_EQ(env.blocks.BlkSavIdx(), 0);
}

/// One device after the other: 1104 trips pair every model code with every number of cameras and
/// of blocks.
void Trips(int count) {
  std::mt19937 random(20);
  constexpr int kCameras[] = {0, 1, 4, 9, 10, 16};
  constexpr int kBlocks[] = {185, 199, 200, 213, 217, 219, 225, 255};
  for (int trip = 0; trip < count && !::testing::Test::HasFailure(); ++trip) {
    const int code = trip % 23 == 22 ? 127 : trip % 23;
    const int cameras = kCameras[trip / 23 % 6];
    const int blocks = kBlocks[(trip + trip / 138) % 8];
    SCOPED_TRACE("trip " + std::to_string(trip) + ", code " + std::to_string(code) + ", cameras " +
                 std::to_string(cameras) + ", blocks " + std::to_string(blocks));
    Trip(RandomImage(random, code, cameras, blocks), trip % 16 == 0);
  }
}

TEST(RoundTrip, ChangesNothingButWhatIsListed) { Trips(1104); }

/// scripts/bench runs it, in a release build.
TEST(RoundTrip, DISABLED_AMillionTimes) { Trips(1'000'000); }

}  // namespace
}  // namespace quorvel
