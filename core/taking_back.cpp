// What a DeviceState knows of the device itself, and what of its edits is taken back one by one.
#include <algorithm>
#include <utility>

#include "core/change_marks.h"
#include "core/codec.h"
#include "core/device_state.h"
#include "core/settings_by_name.h"

namespace quorvel {

namespace {

constexpr int kClockBlock = 61;

/// Thrown to leave a step that cannot be made.
struct CannotBeSet {};

/// True when two images are of devices with the same settings, but for what one has more blocks.
bool AreOfOneKind(const BlockImage& one, const BlockImage& other) {
  const Identity a = ReadIdentity(one);
  const Identity b = ReadIdentity(other);
  return a.ModelCode == b.ModelCode && a.MaxCam == b.MaxCam;
}

/// True when a block, its clock included, is in `now` as the device has it.
bool HasAll(const BlockImage& device, const BlockImage& now, int number, const Identity& id) {
  if (!device.Counts(number)) return false;
  const auto had = device.Block(number);
  const auto has = now.Block(number);
  for (int at = 0; at < kBlockSize; ++at) {
    const auto place = static_cast<std::size_t>(at);
    if (IsClockByte(number, at) && had[place] != has[place]) return false;
  }
  return DeviceHasBlock(number, had, has, id);
}

}  // namespace

bool DeviceState::KnowsDevice() const {
  return HasImage() && device_image_ != nullptr && AreOfOneKind(*device_image_, BlkImage);
}

std::unique_ptr<DecodedImage> DeviceState::OfDevice() const {
  const bool of_device = KnowsDevice();
  BlockImage image = of_device ? *device_image_ : arrived_ != nullptr ? *arrived_ : BlkImage;
  if (of_device || device_image_ == nullptr) PutTaken(image);
  auto device = std::make_unique<DecodedImage>(std::move(image));
  if (MenuLocksKeyboard && record_ != nullptr) {
    constexpr int kLockBlock = 60;
    device->record.LockKeyBoard.Load(record_->LockKeyBoard());
    EncodeBlock(kLockBlock, device->image, device->env, device->record);
  }
  return device;
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
      if (!CanHold(settings)) throw CannotBeSet();
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

/// What a setting cannot have is taken only where the device holds just that.
bool DeviceState::CanHold(std::span<const std::string> settings) {
  const Configuration present{Record(), env.identity, BlkImage.BlkCount()};
  const auto findings = FindUnallowed(present);
  if (findings.empty()) return true;
  const auto device = OfDevice();
  const Configuration of_device{device->record, device->env.identity, device->image.BlkCount()};
  return std::ranges::all_of(findings, [&](const SettingFinding& it) {
    return std::ranges::find(settings, it.name) == settings.end() ||
           GetSetting(of_device, it.name) == it.value;
  });
}

void DeviceState::UnlistWhatDeviceHas(const std::set<Byte>& blocks) {
  const auto device = OfDevice();
  auto& macros = Record().AllSubMacros();
  for (std::size_t i = 0; i < macros.size(); ++i) {
    constexpr int kFirstMacroBlock = 69;
    constexpr std::size_t kScript = 1 + clsSubMacro::kLongest;
    const int number = kFirstMacroBlock + static_cast<int>(i);
    if (!macros.at(i).SettleLike(device->record.AllSubMacros().at(i))) continue;
    if (!BlkImage.Counts(number) || !device->image.Counts(number)) continue;
    // Bytes behind its end are the device's again, too.
    std::ranges::copy(device->image.Block(number).first<kScript>(), BlkImage.Block(number).begin());
  }
  const BlockImage now = EncodedImage();
  const auto stays = [&](int number) {
    if (number == kClockBlock && UsePcTime) return true;
    return !now.Counts(number) || unsure_.contains(number) ||
           !HasAll(device->image, now, number, env.identity);
  };
  bool differs = false;
  for (int number = 1; now.Counts(number) && !differs; ++number) {
    differs = !IsDeviceBlock(number) && stays(number);
  }
  const clsBlkSave listed = env.blocks;
  env.blocks.SetMaxBlk(0);
  for (Byte i = 0; i < listed.BlkSavIdx(); ++i) {
    const Byte number = listed.BlkNumSav(i);
    const bool meant = !differs || blocks.contains(number);
    if (!meant || stays(number)) env.blocks.AddBlk(number);
  }
  for (const Byte number : blocks) {
    if (!now.Counts(number) || !device->image.Counts(number)) continue;
    if (number == kClockBlock && UsePcTime) continue;
    RenewChangeMark(number, device->image.Block(number), now.Block(number), device->record,
                    BlkImage, ComboArray, env, Record());
  }
}

}  // namespace quorvel
