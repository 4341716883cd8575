// Any bytes as a settings file: restored in either exchange, saved again, restored by another
// control, sent. The disk is a map in memory, which refuses on demand.

#include <algorithm>

#include "fuzz/check.h"
#include "fuzz/device_host.h"
#include "fuzz/material.h"

namespace quorvel::fuzz {
namespace {

constexpr std::uint32_t kSurveyShare = 1024;
constexpr std::size_t kStatedLength = 18;
constexpr std::size_t kSizesLength = 7;
constexpr std::size_t kLongerThanAny = 32768;

/// What the bits of an input's first two bytes say. What needs several of them happens seldom.
enum Mode : unsigned {
  kCombined = 1,
  kImageBefore = 2,
  kWholeImageHost = 4,
  kEdit = 8,
  kStructured = 16,
  kSend = 32,
  kSameDevice = 64,  ///< the host is connected to the device whose file it is
  kReadFails = 0x0700,
  kWriteFails = 0x3800,
  kTooLong = 0xC000,
};

/// Byte 949 locks the keyboard of older devices; decoding repairs the compression of block 44.
bool MayChange(std::size_t at) {
  constexpr std::size_t kCompression = 43 * kBlockSize + 8;
  return at == 949 || (at >= kCompression && at < kCompression + 8);
}

void CheckKept(std::span<const Byte> before, std::span<const Byte> after, const char* what) {
  Check(before.size() == after.size(), what);
  for (std::size_t i = 0; i < before.size(); ++i) {
    Check(before[i] == after[i] || MayChange(i), what);
  }
}

class Restore {
 public:
  Restore(unsigned mode, ByteSource& in, bool survey) : mode_(mode), survey_(survey) {
    stated_ = in.Padded(kStatedLength);
    if (Is(kStructured)) {
      const auto image = TakeImage(in, false);
      file_.assign(image.Bytes().begin(), image.Bytes().end());
    } else {
      const auto rest = in.Rest();
      file_.assign(rest.begin(), rest.end());
    }
    if (Is(kTooLong)) file_.resize(kLongerThanAny);
    host_.desk.files["in"] = file_;
    Prepare(host_);
  }

  void Run() {
    const auto before = host_.control->Image();
    const int arrivals = host_.arrivals;
    RestoreFile(host_, "in", Is(kReadFails));
    if (host_.arrivals == arrivals) {
      Check(host_.desk.failures_told == 1, "a file is restored or refused");
      Check(host_.control->Image() == before, "a refused file changes nothing");
      return;
    }
    Check(!Is(kReadFails) && !Is(kTooLong), "what cannot be read is not restored");
    Check(host_.control->ModifiedBlocks().empty(), "a file is restored without changes");
    const auto image = host_.control->Image();
    const bool plain = image.size() == file_.size();
    if (plain) CheckKept(file_, image, "a plain file holds the image");
    if (Is(kEdit)) host_.ChangeGrid(0, stated_.back());
    Save(plain);
    if (Is(kSend)) SendIt();
    CheckModifiedBlocks(*host_.control);
  }

 private:
  [[nodiscard]] bool Is(Mode bits) const { return (mode_ & bits) == bits; }
  /// What the host states, and an image that is there before.
  void Prepare(DeviceHost& host) const {
    auto& control = *host.control;
    if (Is(kImageBefore)) {
      control.HostCommId(1);
      host.device = DefaultImage(1);
      host.GiveWholeImage();
    }
    control.HostCommId(Is(kWholeImageHost) ? 1 : 0);
    control.SaveConnectedInfo(Identity());
    if (Is(kCombined)) control.FillComboInfo(std::span(stated_).first(kSizesLength));
  }

  [[nodiscard]] std::vector<Byte> Identity() const {
    constexpr std::size_t kAt = std::size_t{kIdentityBlock - 1} * kBlockSize;
    if (!Is(kSameDevice) || file_.size() < kAt + kBlockSize) return stated_;
    std::vector<Byte> identity{0};
    identity.insert(identity.end(), file_.begin() + kAt, file_.begin() + kAt + kBlockSize);
    return identity;
  }

  static void RestoreFile(DeviceHost& host, const char* path, bool disk_fails) {
    host.desk.disk_fails = disk_fails;
    host.desk.answer_file = [path](const FileRequest&) { return path; };
    host.desk.at_modal = [](Dialog& dialog) { return PressButton(dialog, "cmdOK"); };
    Check(host.control->Custom(12, 0, 0) == 0, "Custom returns 0");
    Check(host.desk.Windows().empty(), "OK closes the dialog");
    host.desk.disk_fails = false;
  }

  void Save(bool plain) {
    auto& desk = host_.desk;
    desk.files["out"] = std::vector<Byte>(5000, 'O');
    desk.disk_fails = Is(kWriteFails);
    desk.answer_file = [](const FileRequest&) { return "out"; };
    const int failures = desk.failures_told;
    Check(host_.control->Custom(14, 0, 0) == 0, "Custom returns 0");
    desk.disk_fails = false;
    const auto& saved = desk.files["out"];
    if (Is(kWriteFails)) {
      Check(saved.size() == 5000 && desk.failures_told == failures + 1,
            "a file that cannot be written stays as it is");
      return;
    }
    Check(desk.failures_told == failures, "what was restored can be saved");
    const auto image = host_.control->Image();
    const bool saved_plain = plain && !Is(kCombined);
    if (saved_plain) {
      Check(saved == image, "a plain file is the image");
    } else {
      CheckCombinedFile(saved, image, plain);
    }
    CheckRestoredAgain(saved, saved_plain);
  }

  void CheckCombinedFile(std::span<const Byte> saved, std::span<const Byte> image, bool plain) {
    const auto header = static_cast<std::size_t>(saved[0] * 256 + saved[1]);
    const auto data = saved.subspan(header);
    Check(plain || saved.size() <= file_.size(), "a combined file keeps its length");
    const auto both = std::min(data.size(), image.size());
    Check(std::ranges::equal(data.first(both), image.first(both)),
          "a combined file holds the image");
  }

  /// A plain file always comes back. An array may be as short as a plain image; a host that states
  /// no sizes, or other ones, is told so.
  void CheckRestoredAgain(const std::vector<Byte>& saved, bool plain) {
    DeviceHost other;
    Prepare(other);
    other.desk.files["again"] = saved;
    const int arrivals = other.arrivals;
    RestoreFile(other, "again", false);
    if (other.arrivals == arrivals) {
      Check(!plain, "what was saved can be restored");
      Check(other.desk.failures_told == 1, "a file is restored or refused");
      return;
    }
    const auto image = host_.control->Image();
    const auto again = other.control->Image();
    // What is beyond the last block may be cut off, or filled up.
    const auto counted = std::size_t{image[kBlockCountByte]} * kBlockSize;
    Check(again.size() >= counted, "what was saved is restored whole");
    CheckKept(std::span(image).first(counted), std::span(again).first(counted),
              "what was saved is restored the same");
    if (survey_) {
      Check(other.control->Settings() == host_.control->Settings(),
            "what was saved is restored with the same settings");
    }
  }

  void SendIt() {
    ByteSource clicks(stated_);
    host_.Upload(clicks);
  }

  DeviceHost host_;
  unsigned mode_;
  bool survey_;
  std::vector<Byte> stated_;
  std::vector<Byte> file_;
};

}  // namespace
}  // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;
  ByteSource in({data, size});
  unsigned mode = in.Next();
  mode |= in.Next() * 256U;
  Restore(mode, in, IsOneIn(kSurveyShare, {data, size})).Run();
  return 0;
}
