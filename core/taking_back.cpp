// What a DeviceState knows of the device itself, and what of its edits is taken back one by one.
#include <algorithm>
#include <utility>

#include "core/change_marks.h"
#include "core/device_state.h"
#include "core/setting_list.h"
#include "core/settings_by_name.h"

namespace quorvel {

namespace {

constexpr int kClockBlock = 61;

/// Thrown to leave a step that cannot be made.
struct CannotBeSet {};

/// True when two images are of devices with the same settings.
bool AreOfOneKind(const BlockImage& one, const BlockImage& other) {
  if (one.BlkCount() != other.BlkCount()) return false;
  const Identity a = ReadIdentity(one);
  const Identity b = ReadIdentity(other);
  return a.ModelCode == b.ModelCode && a.MaxCam == b.MaxCam;
}

/// The blocks that carry a setting of which two configurations of one device hold another value.
std::set<Byte> DifferingBlocks(const Configuration& one, const Configuration& other) {
  const SettingList list(one);
  const auto values = list.Values(one);
  const auto others = list.Values(other);
  std::set<Byte> blocks;
  for (std::size_t i = 0; i < list.Count(); ++i) {
    if (!(values[i] == others[i])) {
      blocks.insert(list.At(i).blocks.begin(), list.At(i).blocks.end());
    }
  }
  return blocks;
}

}  // namespace

std::unique_ptr<DecodedImage> DeviceState::OfDevice() const {
  const bool of_device = device_image_ != nullptr && AreOfOneKind(*device_image_, BlkImage);
  BlockImage image = of_device ? *device_image_ : arrived_ != nullptr ? *arrived_ : BlkImage;
  if (of_device || device_image_ == nullptr) PutTaken(image);
  return std::make_unique<DecodedImage>(std::move(image));
}

bool DeviceState::TakeBack(StepName name, std::span<const std::string> settings,
                           std::span<const std::string> stored) {
  if (!HasImage() || settings.empty() || settings.size() != stored.size()) return false;
  const Configuration present{Record(), env.identity, BlkImage.BlkCount()};
  try {
    AsStep(std::move(name), [&] {
      std::set<Byte> blocks;
      for (std::size_t i = 0; i < settings.size(); ++i) {
        if (!SetStored(present, env, settings[i], stored[i], blocks)) throw CannotBeSet();
      }
      const auto is_of_clock = [](const std::string& it) {
        return it.starts_with("TDInfo.Current");
      };
      if (std::ranges::any_of(settings, is_of_clock)) UsePcTime = false;
      UnlistWhatDeviceHas(blocks);
    });
  } catch (const CannotBeSet&) {
    return false;
  }
  return true;
}

void DeviceState::UnlistWhatDeviceHas(const std::set<Byte>& blocks) {
  const auto device = OfDevice();
  const BlockImage now = EncodedImage();
  const int count = BlkImage.BlkCount();
  const std::set<Byte> differing =
      DifferingBlocks({Record(), env.identity, count}, {device->record, env.identity, count});
  const clsBlkSave listed = env.blocks;
  env.blocks.SetMaxBlk(0);
  for (Byte i = 0; i < listed.BlkSavIdx(); ++i) {
    const Byte number = listed.BlkNumSav(i);
    const bool meant = differing.empty() || blocks.contains(number);
    const bool stays = differing.contains(number) || (number == kClockBlock && UsePcTime);
    if (!meant || stays || !now.Counts(number) ||
        !DeviceHasBlock(number, device->image.Block(number), now.Block(number), env.identity)) {
      env.blocks.AddBlk(number);
    }
  }
  for (const Byte number : blocks) {
    if (!now.Counts(number) || (number == kClockBlock && UsePcTime)) continue;
    RenewChangeMark(number, device->image.Block(number), now.Block(number), device->record,
                    BlkImage, ComboArray, env, Record());
  }
}

}  // namespace quorvel
