// A configuration image as a device may send it: decoded, encoded and decoded again, and received
// by a control in either way.

#include <algorithm>
#include <memory>

#include "core/codec.h"
#include "core/survey.h"
#include "fuzz/check.h"
#include "fuzz/device_host.h"
#include "fuzz/material.h"

namespace quorvel::fuzz {
namespace {

/// Listing all settings takes fifty times as long as decoding them.
constexpr std::uint32_t kSurveyShare = 1024;

/// What the first byte of an input says.
struct Mode {
  explicit Mode(std::span<const Byte> input)
      : byte_(input.empty() ? Byte{0} : input[0]), survey_(IsOneIn(kSurveyShare, input)) {}
  /// The codec alone comes most often: it is where a byte decides, and the control takes longer.
  [[nodiscard]] bool WholeDoor() const { return Door() == 5 || Door() == 6; }
  [[nodiscard]] bool BlockDoor() const { return Door() == 7; }
  [[nodiscard]] bool Raw() const { return Bit(3); }
  /// A walk over all blocks for each block: seldom.
  [[nodiscard]] bool OneByOne() const { return Bit(4) && Bit(6) && Bit(7); }
  [[nodiscard]] bool Upload() const { return Bit(5); }
  [[nodiscard]] bool Survey() const { return survey_; }

 private:
  [[nodiscard]] int Door() const { return byte_ & 7; }
  [[nodiscard]] bool Bit(int bit) const { return (byte_ >> bit & 1) != 0; }
  Byte byte_;
  bool survey_;
};

/// Two records and the identities that they were decoded with.
struct Decoded {
  explicit Decoded(BlockImage& image) { DecodeImage(image, env, *rec); }
  RecordEnvironment env;
  std::unique_ptr<MuxData> rec = std::make_unique<MuxData>(env);
};

/// Takes out of a record what no byte of an image can say: years beyond 2059, and monitors C to E
/// without a matrix.
void ForgetWhatNoByteSays(Decoded& decoded) {
  auto& clock = decoded.rec->TDInfo;
  if (clock.CurrentYear() > 2059) {
    clock.CurrentYear.Load(static_cast<std::int16_t>(clock.CurrentYear() - 100));
  }
  for (int i = decoded.env.identity.MatrixModel == 1 ? 5 : 2; i < 5; ++i) {
    clock.TDDisplay(i, 0);
    decoded.rec->TitleDisplay(i, 0);
  }
}

/// Blocks that only the device writes, the block count and what is beyond it stay as they are.
void CheckUntouched(const BlockImage& before, const BlockImage& after) {
  Check(before.Size() == after.Size() && before.BlkCount() == after.BlkCount(),
        "encoding keeps the number of blocks");
  for (const int number : {182, kIdentityBlock}) {
    if (!before.Holds(number)) continue;
    Check(std::ranges::equal(before.Block(number), after.Block(number)),
          "encoding keeps the blocks of the device");
  }
  const auto counted = std::size_t{before.BlkCount()} * kBlockSize;
  Check(std::ranges::equal(before.Bytes().subspan(counted), after.Bytes().subspan(counted)),
        "encoding keeps what is beyond the last block");
}

void Encode(BlockImage& image, Decoded& decoded, bool one_by_one) {
  if (!one_by_one) return EncodeImage(image, decoded.env, *decoded.rec);
  for (int block = 255; block >= 1; --block) {
    EncodeBlock(block, image, decoded.env, *decoded.rec);
  }
}

void CheckSurvey(Decoded& one, Decoded& other, int blocks) {
  Check(CompareConfigurations({*one.rec, one.env.identity, blocks},
                              {*other.rec, other.env.identity, blocks})
            .empty(),
        "what was encoded is listed as before");
}

void Trip(const BlockImage& original, const Mode& mode) {
  BlockImage image = original;
  if (!DecodeAlone(image)) {
    Check(std::ranges::equal(image.Bytes(), original.Bytes()), "a refused image is not touched");
    return;
  }
  Decoded first(image);
  const BlockImage before = image;
  Encode(image, first, mode.OneByOne());
  CheckUntouched(before, image);
  Check(first.env.blocks.BlkSavIdx() == 0, "encoding lists no block");

  Decoded second(image);
  ForgetWhatNoByteSays(first);
  Check(*first.rec == *second.rec, "what was encoded is decoded again");
  if (mode.Survey()) CheckSurvey(first, second, image.BlkCount());
}

/// What holds after an image has come to a control, or has been refused.
void CheckArrival(DeviceHost& host, bool decodable, const BlockImage& repaired) {
  host.CheckControl();
  Check(host.arrivals == (decodable ? 1 : 0), "an image that can be decoded arrives, once");
  if (!decodable) {
    Check(host.control->Settings().empty(), "a refused image has no settings");
    return;
  }
  const auto image = host.control->Image();
  Check(std::ranges::equal(image, repaired.Bytes()), "the image is as it was sent");
  Check(host.control->ModifiedBlocks().empty(), "an image arrives without changes");
}

void CheckDifferences(DeviceHost& host) {
  const auto differences = host.control->DifferencesFrom(host.control->Image());
  Check(differences && differences->empty(), "a record agrees with its own image");
}

void GiveToControl(BlockImage image, const Mode& mode) {
  DeviceHost host;
  host.device = image;
  if (mode.WholeDoor()) {
    host.control->HostCommId(1);
    host.GiveWholeImage();
  } else {
    host.Download(false);
    // A count that is smaller than the image ends the sequence earlier.
    const auto counted = std::size_t{image.BlkCountOrZero()} * kBlockSize;
    const auto received = std::max<std::size_t>(counted, kBlockSize);
    if (received < image.Size()) {
      image =
          BlockImage({image.Bytes().begin(), image.Bytes().begin() + static_cast<int>(received)});
    }
  }
  // In one piece, an image must count a block.
  const bool counts = !mode.WholeDoor() || image.BlkCountOrZero() != 0;
  const bool decodable = counts && DecodeAlone(image);
  CheckArrival(host, decodable, image);
  if (!decodable) return;
  if (mode.Survey()) CheckDifferences(host);
  if (!mode.Upload()) return;
  host.ChangeGrid(0, 0xA5);
  constexpr Byte kChooseModified[] = {3, 4};
  ByteSource clicks(kChooseModified);
  host.Upload(clicks);
  host.CheckControl();
}

}  // namespace
}  // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;
  const Mode mode({data, size});
  ByteSource in({data, size});
  in.Next();
  const auto image = TakeImage(in, mode.Raw());
  if (mode.WholeDoor() || mode.BlockDoor()) {
    GiveToControl(image, mode);
  } else {
    Trip(image, mode);
  }
  return 0;
}
