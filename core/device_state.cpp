#include "core/device_state.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/change_marks.h"
#include "core/codec.h"

namespace quorvel {

namespace {
constexpr int kClockBlock = 61;
}

DecodedImage::DecodedImage(BlockImage the_image) : image(std::move(the_image)) {
  DecodeImage(image, env, record);
  EncodeImage(image, env, record);
}

MuxData& DeviceState::Record() {
  if (record_ == nullptr) record_ = std::make_unique<MuxData>(env);
  return *record_;
}

void DeviceState::Adopt(BlockImage image, ImageSource source, CombinedArray array, StepName step) {
  const Identity present = env.identity;
  auto fresh = std::make_unique<MuxData>(env);
  auto arrived = std::make_shared<const BlockImage>(image);
  std::optional<Holdings> before;
  if (HasImage() && source != ImageSource::kDevice) {
    before = Present();
    if (kept_flags_) {
      before->loaded_from_file = kept_flags_->loaded_from_file;
      before->use_pc_time = kept_flags_->use_pc_time;
    }
  }
  try {
    DecodeImage(image, env, *fresh);
  } catch (...) {
    env.identity = present;
    throw;
  }
  record_ = std::move(fresh);
  arrived_ = std::move(arrived);
  MenuLocksKeyboard = false;
  BlkImage = std::move(image);
  ComboArray = std::move(array);
  LoadedFromFile =
      source == ImageSource::kSettingsFile || source == ImageSource::kFactoryForAnother;
  env.blocks.SetMaxBlk(BlkImage.BlkCount());
  image_number_ = ++generation_;
  source_ = source;
  kept_flags_.reset();
  if (before) {
    history_.Add(std::move(step), *std::move(before));
    return;
  }
  history_.Clear();
  taken_.clear();
  unsure_.clear();
  device_image_ = source == ImageSource::kDevice ? arrived_ : nullptr;
}

void DeviceState::TakePcTime() {
  UsePcTime = true;
  if (env.identity.IsTriplex()) Record().PlayDwell(0);
  Record().MarkModified(kClockBlock);
}

void DeviceState::TakePcTime(const LocalTime& now) {
  TimeDate& clock = Record().TDInfo;
  clock.CurrentDay.Set(static_cast<std::int16_t>(now.date.day));
  clock.CurrentMonth.Set(now.date.month);
  clock.CurrentYear.Set(static_cast<std::int16_t>(now.date.year));
  clock.CurrentHour.Set(static_cast<std::int16_t>(now.time.hour));
  clock.CurrentMin.Set(static_cast<std::int16_t>(now.time.minute));
  clock.CurrentSec.Set(static_cast<std::int16_t>(now.time.second));
  TakePcTime();
}

BlockImage DeviceState::EncodedImage() {
  BlockImage image = BlkImage;
  EncodeImage(image, env, Record());
  return image;
}

Holdings DeviceState::Present() {
  Holdings holdings{std::make_unique<MuxData>(env),
                    env.blocks,
                    env.identity,
                    BlkImage,
                    ComboArray,
                    ImageByteCount,
                    LoadedFromFile,
                    UsePcTime,
                    MenuLocksKeyboard,
                    image_number_,
                    source_,
                    arrived_};
  *holdings.record = Record();
  return holdings;
}

bool DeviceState::Holds(const Holdings& holdings) {
  const auto listed = [](const clsBlkSave& list) {
    std::vector<Byte> numbers;
    for (Byte i = 0; i < list.BlkSavIdx(); ++i) numbers.push_back(list.BlkNumSav(i));
    return numbers;
  };
  return image_number_ == holdings.image_number && UsePcTime == holdings.use_pc_time &&
         Record() == *holdings.record && listed(env.blocks) == listed(holdings.blocks);
}

void DeviceState::PutBack(Holdings holdings) noexcept {
  record_ = std::move(holdings.record);
  env.blocks = holdings.blocks;
  env.identity = holdings.identity;
  BlkImage = std::move(holdings.image);
  ComboArray = std::move(holdings.array);
  ImageByteCount = holdings.byte_count;
  LoadedFromFile = holdings.loaded_from_file;
  UsePcTime = holdings.use_pc_time;
  MenuLocksKeyboard = holdings.menu_locks_keyboard;
  // An editor that opened on the other image must not write into this one.
  if (image_number_ != holdings.image_number) ++generation_;
  image_number_ = holdings.image_number;
  source_ = holdings.source;
  arrived_ = std::move(holdings.arrived);
}

bool DeviceState::Undo() { return GoTo(history_.Back(Present())); }

bool DeviceState::Redo() { return GoTo(history_.Forth(Present())); }

bool DeviceState::GoTo(std::optional<Holdings> there) {
  if (!there) return false;
  PutBack(*std::move(there));
  ++moves_;
  CompareWithTaken();
  return true;
}

ImageOrigin DeviceState::Origin() const {
  if (source_ == ImageSource::kDevice) return ImageOrigin::kDevice;
  return source_ == ImageSource::kSettingsFile ? ImageOrigin::kSettingsFile : ImageOrigin::kFactory;
}

void DeviceState::NoteTaken(int number, std::span<const Byte, kBlockSize> bytes) {
  std::ranges::copy(bytes, taken_[number].begin());
  unsure_.erase(number);
}

void DeviceState::CompareWithTaken() noexcept {
  try {
    ListWhatDiffers();
  } catch (...) {
    // Without memory to compare: what may be another on the device is sent again.
    for (const auto& [number, taken] : taken_) env.blocks.AddBlk(static_cast<Byte>(number));
    for (const int number : unsure_) env.blocks.AddBlk(static_cast<Byte>(number));
  }
}

void DeviceState::PutTaken(BlockImage& image) const {
  for (const auto& [number, taken] : taken_) {
    if (!IsDeviceBlock(number) && image.Counts(number)) {
      std::ranges::copy(taken, image.Block(number).begin());
    }
  }
}

void DeviceState::ListWhatDiffers() {
  for (const int number : unsure_) {
    if (BlkImage.Counts(number)) env.blocks.AddBlk(static_cast<Byte>(number));
  }
  if (taken_.empty()) return;
  const BlockImage now = EncodedImage();
  BlockImage taken_image = BlkImage;
  PutTaken(taken_image);
  const auto decoded = std::make_unique<DecodedImage>(std::move(taken_image));
  const BlockImage& device = decoded->image;
  for (const auto& [number, taken] : taken_) {
    if (IsDeviceBlock(number) || !now.Counts(number)) continue;
    if (DeviceHasBlock(number, device.Block(number), now.Block(number), env.identity)) {
      SettleChangeMark(number, taken, BlkImage, ComboArray, env, Record());
    } else {
      env.blocks.AddBlk(static_cast<Byte>(number));
      RaiseChangeMarks(number, taken, now.Block(number), Record());
    }
  }
}

}  // namespace quorvel
