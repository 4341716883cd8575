#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "core/modified_blocks.h"
#include "core/record/mux_data.h"
#include "quorvel/block_image.h"
#include "quorvel/combined_array.h"
#include "quorvel/identity.h"

namespace quorvel {

/// Where an image comes from.
enum class ImageSource {
  kDevice,
  kSettingsFile,
  kFactory,            ///< factory defaults for the device that is connected, as it says itself
  kFactoryForAnother,  ///< for a device that the host has only named
};

/// What a control holds of its device at one moment, but for the surroundings of its record.
struct Holdings {
  std::unique_ptr<MuxData> record;
  clsBlkSave blocks;
  Identity identity;
  BlockImage image;
  CombinedArray array;
  std::int32_t byte_count = 0;
  bool loaded_from_file = false;
  bool use_pc_time = false;
  bool menu_locks_keyboard = false;
  int image_number = 0;  ///< which of the images that have arrived it is
  ImageSource source = ImageSource::kDevice;
  std::shared_ptr<const BlockImage> arrived = nullptr;  ///< the image as it came
};

/// What a step is called: a text, or the id of one of the catalogue.
struct StepName {
  std::string text;
  int id = 0;
  [[nodiscard]] bool IsNone() const { return text.empty() && id == 0; }
};

/// What has been accepted, step by step, to be taken back and done again: editors, commands of the
/// menu, restored files and factory defaults. It begins anew with an image from the device.
class EditHistory {
 public:
  /// A step was made; `before` is what it began with. What was taken back is gone now.
  void Add(StepName name, Holdings before);
  void Clear();
  [[nodiscard]] bool IsEmpty() const { return done_.empty() && undone_.empty(); }

  /// What the next step back, or forth, is called; none when there is none.
  [[nodiscard]] StepName NextBack() const { return NameOf(done_); }
  [[nodiscard]] StepName NextForth() const { return NameOf(undone_); }

  /// What to go back to, or forth to, from `present`; nothing when there is no step.
  [[nodiscard]] std::optional<Holdings> Back(Holdings present) {
    return Move(done_, undone_, std::move(present));
  }
  [[nodiscard]] std::optional<Holdings> Forth(Holdings present) {
    return Move(undone_, done_, std::move(present));
  }

 private:
  struct Step {
    StepName name;
    Holdings holdings;
  };
  using Steps = std::deque<Step>;
  [[nodiscard]] static StepName NameOf(const Steps& steps) {
    return steps.empty() ? StepName() : steps.back().name;
  }
  [[nodiscard]] static std::optional<Holdings> Move(Steps& from, Steps& to, Holdings present);

  Steps done_;
  Steps undone_;
};

/// The blocks that the device has taken since its image arrived, with the bytes that it was given
/// last.
using TakenBlocks = std::map<int, std::array<Byte, kBlockSize>>;

}  // namespace quorvel
