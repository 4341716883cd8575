#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>

#include "core/edit_history.h"
#include "core/record/mux_data.h"
#include "core/record_environment.h"
#include "quorvel/block_image.h"
#include "quorvel/clock_time.h"
#include "quorvel/combined_array.h"
#include "quorvel/transfer.h"

namespace quorvel {

/// An image that was decoded by itself. The image is encoded again, so that bits which carry no
/// setting, such as those of cameras that the model lacks, are those of every other encoded one.
struct DecodedImage {
  /// Throws ImageError when it cannot be decoded.
  explicit DecodedImage(BlockImage the_image);
  DecodedImage(const DecodedImage&) = delete;
  DecodedImage& operator=(const DecodedImage&) = delete;
  ~DecodedImage() = default;

  BlockImage image;
  RecordEnvironment env;
  MuxData record{env};
};

/// What a control holds of its device: the image, the record that was decoded from it, and what is
/// listed of it as modified.
class DeviceState {
 public:
  DeviceState() = default;
  DeviceState(const DeviceState&) = delete;
  DeviceState& operator=(const DeviceState&) = delete;
  ~DeviceState() = default;

  BlockImage BlkImage;
  std::int32_t ImageByteCount = 0;  ///< bytes received, restored or built
  RecordEnvironment env;            ///< commit flags, modified-block list, identity of the image
  CombinedArray ComboArray;         ///< the image's own, received, restored or built; or empty
  bool LoadedFromFile = false;      ///< what is sent is compared with the connected device first
  /// The menu has locked the device's keyboard by itself: that is no edit, and no difference.
  bool MenuLocksKeyboard = false;
  bool UsePcTime = false;  ///< block 61 takes the computer's clock when it is encoded

  /// The record; created at first use.
  [[nodiscard]] MuxData& Record();
  /// Counts the images that have arrived: an editor that opened on the settings of an earlier one
  /// must not write into the present ones.
  [[nodiscard]] int ImageGeneration() const { return generation_; }
  /// True when there is an image. It is whole, and the record was decoded from it: an image that
  /// was refused, or of which a part is missing, is no configuration and does not get here.
  [[nodiscard]] bool HasImage() const { return BlkImage.Size() != 0; }

  /// Decodes `image` into a fresh record; both then replace the present ones, `array` is the
  /// combined array that the image came in, and nothing is modified any more. What is not the
  /// device's own image is a step called `step`, which can be taken back where there was an image
  /// before. Throws ImageError, and keeps what is there, when the image cannot be decoded.
  void Adopt(BlockImage image, ImageSource source, CombinedArray array = {}, StepName step = {});

  /// Runs `change` as one step called `name`. Where it changes nothing, there is no step; where it
  /// throws, all is as it was.
  template <class Change>
  void AsStep(StepName name, Change&& change) {
    Holdings before = Present();
    try {
      change();
    } catch (...) {
      PutBack(std::move(before));
      throw;
    }
    if (!Holds(before)) history_.Add(std::move(name), std::move(before));
  }
  /// Goes a step back, or forth again; false when there is none. Blocks that the device has taken
  /// meanwhile, and that are another now, are listed.
  bool Undo();
  bool Redo();
  [[nodiscard]] const EditHistory& History() const { return history_; }
  /// Counts the steps back and forth.
  [[nodiscard]] int Moves() const { return moves_; }
  [[nodiscard]] ImageOrigin Origin() const;
  /// True when the image is the device's own, and there is no step to take back or do again.
  [[nodiscard]] bool IsDevicesOwn() const {
    return source_ == ImageSource::kDevice && history_.IsEmpty();
  }
  /// Another image is asked for, and flags change before it comes: a step back restores those of
  /// now. DropFlags: it does not come.
  void KeepFlags() { kept_flags_ = Flags{LoadedFromFile, UsePcTime}; }
  void DropFlags() { kept_flags_.reset(); }
  /// Block `number` goes to the device, which may take it without saying so: until it says what it
  /// has taken, the block stays listed where a step changes the list.
  void NoteHandedOver(int number) { unsure_.insert(number); }
  /// The device has taken these bytes for block `number`.
  void NoteTaken(int number, std::span<const Byte, kBlockSize> bytes);
  /// Brings the list and the change marks in line with what the device has taken.
  void CompareWithTaken() noexcept;

  /// Whether the device has given an image, of the model of the present one.
  [[nodiscard]] bool KnowsDevice() const;
  /// What the device holds as far as is known: its image as it came, with what it has taken since.
  /// Where it is not known, the present image as it came. Only where there is an image.
  [[nodiscard]] std::unique_ptr<DecodedImage> OfDevice() const;
  /// Sets settings as `stored` says (see SetStored), as one step. Of the blocks that carry them,
  /// those in which nothing differs from the device any more leave the list; where nothing differs
  /// at all, every block does. False, and no change, when one of them cannot be set.
  [[nodiscard]] bool TakeBack(StepName name, std::span<const std::string> settings,
                              std::span<const std::string> stored);

  /// Lists the clock's block, lets the device take it, and has it carry the computer's time, taken
  /// when the block is built.
  void TakePcTime();
  /// The same, with the date and time of `now` in the record meanwhile.
  void TakePcTime(const LocalTime& now);

  /// The image as it would be with every block encoded from the record.
  [[nodiscard]] BlockImage EncodedImage();

 private:
  [[nodiscard]] Holdings Present();
  /// True when these are still held.
  [[nodiscard]] bool Holds(const Holdings& holdings);
  void PutBack(Holdings holdings) noexcept;
  bool GoTo(std::optional<Holdings> there);
  void ListWhatDiffers();
  /// Puts the blocks that the device has taken into an image.
  void PutTaken(BlockImage& image) const;
  /// Takes those of `blocks` off the list that the device has as they are.
  [[nodiscard]] bool CanHold(std::span<const std::string> settings);
  void UnlistWhatDeviceHas(const std::set<Byte>& blocks);

  struct Flags {
    bool loaded_from_file;
    bool use_pc_time;
  };

  EditHistory history_;
  TakenBlocks taken_;
  std::set<int> unsure_;  ///< blocks of which the device may have what was handed over, or not
  int image_number_ = 0;
  int moves_ = 0;
  ImageSource source_ = ImageSource::kDevice;
  std::optional<Flags> kept_flags_;
  std::unique_ptr<MuxData> record_;
  std::shared_ptr<const BlockImage> arrived_;       ///< the present image as it came
  std::shared_ptr<const BlockImage> device_image_;  ///< the device's own, if it has given one
  int generation_ = 0;
};

}  // namespace quorvel
