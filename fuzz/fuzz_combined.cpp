// The combined exchange: sizes and arrays from a device, sends with any boxes ticked, saves.

#include <algorithm>

#include "fuzz/check.h"
#include "fuzz/device_host.h"
#include "fuzz/material.h"
#include "quorvel/combined_array.h"

namespace quorvel::fuzz {
namespace {

constexpr std::size_t kSizesLength = 7;
constexpr std::size_t kClicks = 14;

int Word(std::span<const Byte> bytes, std::size_t at) { return bytes[at] * 256 + bytes[at + 1]; }

/// The lengths that an array states. An array is whole when all that they count is there.
struct Lengths {
  explicit Lengths(std::span<const Byte> bytes) {
    if (bytes.size() < ComboHeader::kSize) return;
    header = Word(bytes, 0);
    data = Word(bytes, 2);
    macros = Word(bytes, 4);
    whole = bytes.size() >= static_cast<std::size_t>(Total());
  }
  [[nodiscard]] int Total() const { return header + data + macros; }
  int header = 0, data = 0, macros = 0;
  bool whole = false;
};

/// What the bits of an input's first byte say.
enum Mode : unsigned {
  kSave = 1,
  kEdit = 2,
  kCutAfterwards = 4,
  kWholeImageHost = 8,
  kIdentifyFirst = 16,
  kImageBefore = 32,
  kFitting = 64,  ///< the header is made to fit what is behind it, so that most arrays are taken
};

void PutWord(std::vector<Byte>& bytes, std::size_t at, std::size_t value) {
  bytes[at] = static_cast<Byte>(value >> 8);
  bytes[at + 1] = static_cast<Byte>(value);
}

/// As many whole blocks as the image's own count asks for, and what is left as macro data.
void MakeFit(std::vector<Byte>& bytes) {
  constexpr std::size_t kHeader = ComboHeader::kSize;
  if (bytes.size() < kHeader + kBlockSize) return;
  const std::size_t rest = bytes.size() - kHeader;
  const std::size_t blocks =
      std::min<std::size_t>(rest / kBlockSize, bytes[kHeader + kBlockCountByte]);
  bytes[kHeader + kBlockCountByte] = static_cast<Byte>(blocks);
  if (blocks >= kIdentityBlock) {
    Byte& cameras = bytes[kHeader + std::size_t{kIdentityBlock - 1} * kBlockSize];
    cameras = static_cast<Byte>(cameras % (kMostCameras + 1));
  }
  PutWord(bytes, 0, kHeader);
  PutWord(bytes, 2, blocks * kBlockSize);
  PutWord(bytes, 4, rest - blocks * kBlockSize);
  PutWord(bytes, 9, blocks);
}

/// The bytes that a send of all blocks adjusts, and that go back once it has taken them.
constexpr std::size_t kMarks[] = {975, 3392, 3456};

bool SameBlock(std::span<const Byte> one, std::span<const Byte> other, std::size_t at) {
  for (std::size_t i = 0; i < kBlockSize; ++i) {
    if (one[i] != other[i] && std::ranges::find(kMarks, at + i) == std::end(kMarks)) return false;
  }
  return true;
}

/// A sent array is the device's own but for the blocks that were put into it and the lengths of
/// what is left out.
void CheckSent(std::span<const Byte> sent, std::span<const Byte> device,
               std::span<const Byte> image) {
  const Lengths lengths(device);
  Check(sent.size() == static_cast<std::size_t>(lengths.Total()), "an array keeps its length");
  const Lengths told(sent);
  Check(told.header == lengths.header, "an array keeps its header's length");
  Check(told.data == lengths.data || told.data == 0, "the data is there or left out");
  Check(told.macros == lengths.macros || told.macros == 0, "the macros are there or left out");
  Check(told.data != 0 || told.macros != 0 || lengths.data * lengths.macros == 0,
        "something is sent");
  const auto header = static_cast<std::size_t>(lengths.header);
  const auto data = static_cast<std::size_t>(lengths.data);
  Check(std::ranges::equal(sent.first(header).subspan(6), device.first(header).subspan(6)),
        "the rest of the header stays as it is");
  Check(std::ranges::equal(
            sent.subspan(header + data),
            device.subspan(header + data).first(static_cast<std::size_t>(lengths.macros))),
        "macro data passes through");
  for (std::size_t at = 0; at < data; at += kBlockSize) {
    const auto block = sent.subspan(header + at).first(kBlockSize);
    Check(SameBlock(block, device.subspan(header + at), at) ||
              SameBlock(block, image.subspan(at), at),
          "a sent block is the device's or the image's");
  }
}

void CheckSaved(DeviceHost& host, std::span<const Byte> device) {
  const auto saved = host.desk.files.find("out");
  if (saved == host.desk.files.end()) return;
  const Lengths lengths(device);
  const auto image = host.control->Image();
  Check(saved->second.size() == static_cast<std::size_t>(lengths.Total()),
        "a saved array has its length");
  const auto data = std::span(saved->second).subspan(static_cast<std::size_t>(lengths.header));
  Check(std::ranges::equal(data.first(image.size()), image), "a saved array holds the image");
}

class Exchange {
 public:
  explicit Exchange(ByteSource& in) : mode_(in.Next()) {
    host_.desk.answer_file = [](const FileRequest& request) {
      return request.default_name == "*.bin" ? "received" : "out";
    };
    if (Is(kIdentifyFirst)) host_.control->SaveConnectedInfo(in.Padded(kSizesLength));
    host_.control->FillComboInfo(in.Padded(kSizesLength));
    clicks_ = in.Padded(kClicks);
    const auto rest = in.Rest();
    host_.array.assign(rest.begin(), rest.end());
    if (Is(kFitting)) MakeFit(host_.array);
    if (Is(kImageBefore)) {
      host_.control->FillComboBlk(CombinedBytes(DefaultImage(2), 16, 2));
      Check(host_.arrivals == 1, "an array that nobody asked for is taken while nothing is edited");
    }
    if (Is(kWholeImageHost)) host_.control->HostCommId(1);
  }

  void Run() {
    const int arrivals_before = host_.arrivals;
    const int failures_before = host_.desk.failures_told;
    host_.Download(Is(kSave));
    Check(host_.arrivals - arrivals_before + host_.desk.failures_told - failures_before == 1,
          "an array arrives or is refused");
    // Where no image was before, an array that arrives is the device's.
    arrived_ = host_.arrivals > arrivals_before && arrivals_before == 0;
    const Lengths lengths(host_.array);
    own_ = arrived_ && lengths.whole;
    if (arrived_ && Is(kSave) && !Is(kWholeImageHost)) CheckReceived();
    ByteSource clicks(clicks_);
    if (Is(kEdit)) host_.ChangeGrid(1, clicks_.back());
    Send(clicks);
    if (Is(kCutAfterwards)) HandOverCut();
    Send(clicks);
    host_.control->Custom(14, 0, 0);
    if (own_) CheckSaved(host_, kept_);
    CheckModifiedBlocks(*host_.control);
  }

 private:
  [[nodiscard]] bool Is(Mode bit) const { return (mode_ & bit) != 0; }
  void CheckReceived() {
    const auto total = static_cast<std::size_t>(Lengths(host_.array).Total());
    const auto here = std::span(host_.array).first(std::min(total, host_.array.size()));
    const auto saved = host_.desk.files.find("received");
    Check(saved != host_.desk.files.end(), "what was received can be saved");
    Check(std::ranges::equal(saved->second, here), "what was received is saved as it came");
  }

  void Send(ByteSource& clicks) {
    if (kept_.empty()) kept_ = host_.array;
    host_.arrays_sent.clear();
    host_.Upload(clicks);
    if (!own_) return;
    for (const auto& sent : host_.arrays_sent) CheckSent(sent, kept_, host_.control->Image());
    // What has been put into the array for one send stays there for the next.
    const auto image = host_.control->Image();
    const auto header = static_cast<std::size_t>(Lengths(kept_).header);
    for (const auto& sent : host_.arrays_sent) {
      std::copy_n(sent.begin() + static_cast<int>(header), image.size(),
                  kept_.begin() + static_cast<int>(header));
    }
  }

  /// An array that breaks off before its first block is refused, or contradicts itself: the one
  /// before stays.
  void HandOverCut() {
    constexpr std::size_t kNoBlock = ComboHeader::kSize + kBlockSize;
    host_.array.resize(std::min(clicks_[0] % kNoBlock, host_.array.size()));
    const auto before = host_.control->Image();
    host_.Download(false);
    Check(host_.control->Image() == before, "the image of a broken array is not taken");
  }

  DeviceHost host_;
  unsigned mode_;
  std::vector<Byte> clicks_;
  std::vector<Byte> kept_;  ///< the array that the control must have
  bool arrived_ = false;
  bool own_ = false;  ///< the control has the device's own array
};

}  // namespace
}  // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;
  ByteSource in({data, size});
  Exchange(in).Run();
  return 0;
}
