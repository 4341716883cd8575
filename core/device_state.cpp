#include "core/device_state.h"

#include <utility>

#include "core/codec.h"

namespace quorvel {

namespace {
constexpr int kClockBlock = 61;
}

MuxData& DeviceState::Record() {
  if (record_ == nullptr) record_ = std::make_unique<MuxData>(env);
  return *record_;
}

void DeviceState::Adopt(BlockImage image, ImageSource source, CombinedArray array) {
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
  LoadedFromFile =
      source == ImageSource::kSettingsFile || source == ImageSource::kFactoryForAnother;
  env.blocks.SetMaxBlk(BlkImage.BlkCount());
  ++generation_;
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

Edits DeviceState::PresentEdits() {
  Edits edits{std::make_unique<MuxData>(env), env.blocks};
  *edits.record = Record();
  return edits;
}

void DeviceState::PutBack(Edits edits) noexcept {
  record_ = std::move(edits.record);
  env.blocks = edits.blocks;
}

}  // namespace quorvel
