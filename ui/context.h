#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "core/block_image.h"
#include "core/codec.h"
#include "core/combined_array.h"
#include "core/record/mux_data.h"
#include "core/record_environment.h"
#include "quorvel/platform.h"
#include "ui/menu/text_catalogue.h"
#include "ui/widgets/failure.h"

namespace quorvel {

/// The device that the host is connected to, as the host states it.
struct ConnectedIdentity {
  Byte ConnChannels = 0;
  Byte ConnModelCode = 0;
  std::string ConnModelName;  ///< code-page bytes
  bool operator==(const ConnectedIdentity&) const = default;
};

/// Sizes of the combined exchange, as the host states them.
struct ComboSizes {
  std::uint16_t ComboMacroSize = 0;
  Byte ComboMacroCount = 0;
  std::uint16_t ComboBlockCount = 0;
  Byte ComboExtraA = 0;  ///< firmware version: A * 100 + B
  Byte ComboExtraB = 0;
};

/// Where an image comes from.
enum class ImageSource { kDevice, kSettingsFile, kFactory };

/// The record and what is listed of it as modified.
struct Edits {
  std::unique_ptr<MuxData> record;
  clsBlkSave blocks;
};

/// The shared state of one control. Each control owns one, so two controls in a process edit two
/// devices. It outlives every dialog and sequence that refers to it.
struct Context {
  explicit Context(Platform& the_platform) : platform(the_platform) {}
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  Platform& platform;
  TextCatalogue texts;

  BlockImage BlkImage;
  std::int32_t ImageByteCount = 0;  ///< bytes received, restored or built
  RecordEnvironment env;            ///< commit flags, modified-block list, identity of the image

  // What the host has said.
  std::int16_t HostType = 0;  ///< device family
  Byte HostIsDvr = 0;         ///< 1: captions end in " DVR", else " Plexar"
  Byte HostCommId = 0;        ///< 0: interactive host
  bool ComboMode = false;     ///< combined exchange instead of block by block
  ConnectedIdentity connected;
  ComboSizes combo_sizes;
  std::int16_t MenuParam = 0;  ///< below 1: no network link
  Byte MenuHostCommId = 0;

  // The image and what is sent of it.
  CombinedArray ComboArray;     ///< the image's own, received, restored or built; or empty
  bool LoadedFromFile = false;  ///< what is sent is compared with the connected device first
  bool IncludeMacros = false;
  bool IncludeData = false;
  bool UsePcTime = false;  ///< block 61 takes the computer's clock when it is encoded

  /// The host has destroyed the control; what still runs must show nothing more.
  bool terminated = false;
  /// Alive as long as the control; handlers of dialogs hold on to it.
  std::weak_ptr<const void> life;

  /// The record; created at first use.
  [[nodiscard]] MuxData& Record() {
    if (record_ == nullptr) record_ = std::make_unique<MuxData>(env);
    return *record_;
  }
  /// Counts the images that have arrived: an editor that opened on the settings of an earlier one
  /// must not write into the present ones.
  [[nodiscard]] int ImageGeneration() const { return generation_; }
  /// True when there is an image. It is whole, and the record was decoded from it: an image that
  /// was refused, or of which a part is missing, is nobody's configuration and does not get here.
  [[nodiscard]] bool HasImage() const { return BlkImage.Size() != 0; }

  /// Decodes `image` into a fresh record; both then replace the present ones, `array` is what the
  /// image travelled in, and nothing is modified any more. Throws ImageError, and keeps what is
  /// there, when the image cannot be decoded.
  void Adopt(BlockImage image, ImageSource source, CombinedArray array = {}) {
    const Identity present = env.identity;
    auto fresh = std::make_unique<MuxData>(env);
    try {
      DecodeImage(image, env, *fresh);
    } catch (...) {
      env.identity = present;
      throw;
    }
    record_ = std::move(fresh);
    BlkImage = std::move(image);
    ComboArray = std::move(array);
    LoadedFromFile = source == ImageSource::kSettingsFile;
    env.blocks.SetMaxBlk(BlkImage.BlkCount());
    ++generation_;
  }

  /// A copy of what was edited, and the way back to it.
  [[nodiscard]] Edits PresentEdits() {
    Edits edits{std::make_unique<MuxData>(env), env.blocks};
    *edits.record = Record();
    return edits;
  }
  void PutBack(Edits edits) noexcept {
    record_ = std::move(edits.record);
    env.blocks = edits.blocks;
  }

  /// The device's firmware version, 506 for 5.06: as the host has stated it, else as the combined
  /// array says; 0 when neither does.
  [[nodiscard]] int DeviceFirmware() const {
    if (combo_sizes.ComboExtraA == 0) return ComboArray.Header().Firmware();
    return combo_sizes.ComboExtraA * 100 + combo_sizes.ComboExtraB;
  }

  /// Encodes the blocks that are listed as modified from the record into the image.
  void EncodeListedBlocks() {
    const LocalTime now = platform.Now();
    const TimeOfDay pc_time{now.hour, now.minute, now.second};
    EncodeModifiedBlocks(BlkImage, env, Record(), UsePcTime ? &pc_time : nullptr);
  }

  /// Runs `body` as an edge of the component, which stays alive meanwhile: a host call, a timer
  /// tick, a menu choice. A failure is reported unless the host has destroyed the control.
  template <class Body>
  void Guard(std::string_view routine, Body&& body) {
    const auto keep = life.lock();
    try {
      body();
    } catch (...) {
      if (!terminated) ReportFailure(platform, routine);
    }
  }

  /// Before a new image comes: the computer's clock is no longer wanted, the ready-made texts
  /// exist.
  void InitGlobals() {
    UsePcTime = false;
    texts.CreateCatalogues();
  }

  [[nodiscard]] std::string GetText(int id) const { return texts.GetText(id); }
  /// How dialog captions name the device.
  [[nodiscard]] const char* CaptionSuffix() const { return HostIsDvr == 1 ? " DVR" : " Plexar"; }

 private:
  std::unique_ptr<MuxData> record_;
  int generation_ = 0;
};

}  // namespace quorvel
