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
constexpr std::size_t kTooLong = 32768;

/// What the first two bytes of an input say.
struct Mode {
  Mode(Byte first, Byte second) : bits_(first | second << 8) {}
  [[nodiscard]] bool Combined() const { return Bit(0); }
  [[nodiscard]] bool ImageBefore() const { return Bit(1); }
  [[nodiscard]] bool WholeImageHost() const { return Bit(2); }
  [[nodiscard]] bool Edit() const { return Bit(3); }
  [[nodiscard]] bool Structured() const { return Bit(4); }
  [[nodiscard]] bool Send() const { return Bit(5); }
  /// The host is connected to the device whose file it is.
  [[nodiscard]] bool SameDevice() const { return Bit(6); }
  [[nodiscard]] bool ReadFails() const { return Bits(8) == 7; }
  [[nodiscard]] bool WriteFails() const { return Bits(11) == 7; }
  [[nodiscard]] bool TooLong() const { return Bits(14) == 3; }

 private:
  [[nodiscard]] bool Bit(int bit) const { return (bits_ >> bit & 1) != 0; }
  [[nodiscard]] int Bits(int first) const { return bits_ >> first & (first == 14 ? 3 : 7); }
  int bits_;
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
  Restore(Mode mode, ByteSource& in, bool survey) : mode_(mode), survey_(survey) {
    stated_ = in.Padded(kStatedLength);
    if (mode_.Structured()) {
      const auto image = TakeImage(in, false);
      file_.assign(image.Bytes().begin(), image.Bytes().end());
    } else {
      const auto rest = in.Rest();
      file_.assign(rest.begin(), rest.end());
    }
    if (mode_.TooLong()) file_.resize(kTooLong);
    host_.desk.files["in"] = file_;
    Prepare(host_);
  }

  void Run() {
    const auto before = host_.control->Image();
    const int arrivals = host_.arrivals;
    RestoreFile(host_, "in", mode_.ReadFails());
    if (host_.arrivals == arrivals) {
      Check(host_.desk.failures_told == 1, "a file is restored or refused");
      Check(host_.control->Image() == before, "a refused file changes nothing");
      return;
    }
    Check(!mode_.ReadFails() && !mode_.TooLong(), "what cannot be read is not restored");
    Check(host_.control->ModifiedBlocks().empty(), "a file is restored without changes");
    const auto image = host_.control->Image();
    const bool plain = image.size() == file_.size();
    if (plain) CheckKept(file_, image, "a plain file holds the image");
    if (mode_.Edit()) host_.ChangeGrid(0, stated_.back());
    Save(plain);
    if (mode_.Send()) SendIt();
    host_.CheckControl();
  }

 private:
  /// What the host states, and an image that is there before.
  void Prepare(DeviceHost& host) const {
    auto& control = *host.control;
    if (mode_.ImageBefore()) {
      control.HostCommId(1);
      host.device = DefaultImage(1);
      host.GiveWholeImage();
    }
    control.HostCommId(mode_.WholeImageHost() ? 1 : 0);
    control.SaveConnectedInfo(Identity());
    if (mode_.Combined()) control.FillComboInfo(std::span(stated_).first(kSizesLength));
  }

  [[nodiscard]] std::vector<Byte> Identity() const {
    constexpr std::size_t kAt = std::size_t{kIdentityBlock - 1} * kBlockSize;
    if (!mode_.SameDevice() || file_.size() < kAt + kBlockSize) return stated_;
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
    desk.disk_fails = mode_.WriteFails();
    desk.answer_file = [](const FileRequest&) { return "out"; };
    const int failures = desk.failures_told;
    Check(host_.control->Custom(14, 0, 0) == 0, "Custom returns 0");
    desk.disk_fails = false;
    const auto& saved = desk.files["out"];
    if (mode_.WriteFails()) {
      Check(saved.size() == 5000 && desk.failures_told == failures + 1,
            "a file that cannot be written stays as it is");
      return;
    }
    Check(desk.failures_told == failures, "what was restored can be saved");
    const auto image = host_.control->Image();
    const bool saved_plain = plain && !mode_.Combined();
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
  Mode mode_;
  bool survey_;
  std::vector<Byte> stated_;
  std::vector<Byte> file_;
};

}  // namespace
}  // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;
  ByteSource in({data, size});
  const quorvel::Byte first = in.Next();
  const Mode mode(first, in.Next());
  Restore(mode, in, IsOneIn(kSurveyShare, {data, size})).Run();
  return 0;
}
