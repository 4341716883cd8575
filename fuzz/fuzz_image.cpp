// A configuration image as a device may send it: decoded, encoded and decoded again, and received
// by a control in either way.

#include <algorithm>

#include "fuzz/check.h"
#include "fuzz/device_host.h"
#include "fuzz/material.h"
#include "tests/core/trip.h"

namespace quorvel::fuzz {
namespace {

/// Listing all settings takes fifty times as long as decoding them.
constexpr std::uint32_t kSurveyShare = 1024;

/// What the first byte of an input says.
struct Mode {
  explicit Mode(std::span<const Byte> input)
      : byte_(input.empty() ? Byte{0} : input[0]), survey_(IsOneIn(kSurveyShare, input)) {}
  /// The codec alone comes most often: it is where a byte decides, and the control takes longer.
  [[nodiscard]] bool WholeDoor() const { return (byte_ & 7) == 5 || (byte_ & 7) == 6; }
  [[nodiscard]] bool BlockDoor() const { return (byte_ & 7) == 7; }
  [[nodiscard]] bool Raw() const { return (byte_ & 8) != 0; }
  /// A walk over all blocks for each block: seldom.
  [[nodiscard]] bool OneByOne() const { return (byte_ & 0xD0) == 0xD0; }
  [[nodiscard]] bool Upload() const { return (byte_ & 0x20) != 0; }
  [[nodiscard]] bool Survey() const { return survey_; }

 private:
  Byte byte_;
  bool survey_;
};

void Trip(const BlockImage& original, const Mode& mode) {
  BlockImage image = original;
  if (!DecodeAlone(image)) {
    Check(std::ranges::equal(image.Bytes(), original.Bytes()), "a refused image is not touched");
    return;
  }
  const std::string fault = TripFault(original, mode.OneByOne());
  if (!fault.empty()) Fail(fault);
}

/// What holds after an image has come to a control, or has been refused.
void CheckArrival(DeviceHost& host, bool decodable, const BlockImage& repaired) {
  CheckModifiedBlocks(*host.control);
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
  CheckModifiedBlocks(*host.control);
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
