#include "core/factory_defaults.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "quorvel/identity.h"

namespace quorvel {

namespace {

constexpr int kDuplexBlocks = 185;
constexpr int kTriplexBlocks = 200;
constexpr int kMostBlocks = 255;

/// `count` bytes of a block, from byte `first` on, that take one value.
struct Patch {
  int block;
  int first;
  int count;
  Byte value;
};

constexpr Patch kDuplex[] = {
    {60, 5, 1, 1},   // LockKeyBoard
    {60, 11, 1, 1},  // DvrArchAlm; FullScrResolution of a multiplexer
};

constexpr Patch kLite[] = {
    {60, 7, 1, 1},    // FullscrAlm
    {60, 12, 1, 1},   // AutoDisable
    {61, 10, 4, 0},   // Buzzer(0 to 3), of which
    {61, 11, 1, 1},   // Buzzer(1)
    {48, 12, 1, 0},   // Buzzer(4)
    {49, 0, 4, 255},  // ActivityEnable
};

constexpr Patch kVariant1Or2[] = {
    {56, 0, 16, 146},  // EventSettings
    {60, 15, 1, 1},    // RecLock
    {59, 14, 2, 1},    // Tel_options, PresetMode
    {60, 0, 1, 1},     // PresetPGM
    {61, 6, 4, 0},     // TelEnable
    {59, 11, 1, 0},    // ActIndicate
    {60, 8, 1, 4},     // BaudRate
    {61, 14, 2, 1},    // LumacastCDW
    {200, 5, 1, 0},    // SMTPPort, most significant byte first
    {200, 6, 1, 25},
};

void Apply(BlockImage& image, std::span<const Patch> patches) {
  for (const Patch& patch : patches) {
    std::ranges::fill(image.Block(patch.block).subspan(patch.first, patch.count), patch.value);
  }
}

/// Lite models as the defaults know them: unlike the identity of a decoded image, they take code 20
/// for a full model.
bool IsLite(Byte code) {
  return code == 4 || code == 5 || (code >= 8 && code <= 13) || code == 16 || code == 17;
}

bool IsVariant1Or2(const DefaultsDevice& device) {
  return device.DefProbeByte == '1' || device.DefProbeByte == '2';
}

/// Record-rate indices, the same for every camera.
struct RecordRates {
  Byte Event_RRIndex;
  Byte TL_RRIndex;
  Byte Act_RRIndex;
};

/// Rates of a lite duplex model; nothing where the factory image's own fit.
std::optional<RecordRates> DuplexRates(Byte cameras) {
  switch (cameras) {
    case 16: return RecordRates{1, 15, 4};
    case 10: return RecordRates{2, 17, 6};
    case 4: return RecordRates{5, 20, 2};
    default: return std::nullopt;
  }
}

/// Rates of a lite triplex model; nothing where the factory image's own fit.
std::optional<RecordRates> TriplexRates(const DefaultsDevice& device) {
  const Byte code = device.DefModelCode;
  const auto time_lapse = [&device](Byte variant_2, Byte others) {
    return device.DefProbeByte == '2' ? variant_2 : others;
  };
  switch (device.DefChannels) {
    case 16: return code == 9 ? RecordRates{2, time_lapse(6, 17), 6} : RecordRates{2, 18, 7};
    case 10: return code == 9 ? RecordRates{3, time_lapse(4, 19), 8} : RecordRates{4, 20, 9};
    case 4:
      return code == 9 || code == 11 || code == 13 ? RecordRates{7, time_lapse(1, 20), 12}
                                                   : RecordRates{8, 20, 13};
    default: return std::nullopt;
  }
}

void AdaptLite(BlockImage& image, const std::optional<RecordRates>& rates) {
  if (rates) {
    std::ranges::fill(image.Block(58), rates->Event_RRIndex);
    std::ranges::fill(image.Block(62), rates->TL_RRIndex);
    std::ranges::fill(image.Block(63), rates->Act_RRIndex);
  }
  Apply(image, kLite);
}

/// Time-lapse rates and activity of a full triplex model of variant "1" or "2".
void AdaptFullVariant(BlockImage& image, Byte cameras) {
  const auto put_time_lapse = [&image](Byte rate) { std::ranges::fill(image.Block(62), rate); };
  if (cameras == 4) put_time_lapse(1);
  if (cameras == 10) put_time_lapse(4);
  if (cameras == 16) put_time_lapse(6);
  std::ranges::fill(image.Block(49).first(4), Byte{0});  // ActivityEnable
}

/// One half of an e-mail address: the first of its three text blocks holds all of it.
void PutAddressHalf(BlockImage& image, int first_block, std::string_view text) {
  for (int i = 0; i < 3; ++i) std::ranges::fill(image.Block(first_block + i), Byte{0});
  std::ranges::copy(text, image.Block(first_block).begin());
}

/// The first two e-mail addresses, each where the image has all six text blocks of it: a half
/// address reads as none.
void PutAddresses(BlockImage& image) {
  const auto put = [&image](int first_block, std::string_view local) {
    if (!image.Counts(first_block + 5)) return;
    PutAddressHalf(image, first_block, local);
    PutAddressHalf(image, first_block + 3, "example.com");
  };
  put(201, "User1");
  put(207, "User2");
}

/// Multiplexers and DVRs, too, get the duplex image.
void AdaptDuplex(BlockImage& image, const DefaultsDevice& device) {
  Apply(image, kDuplex);
  if (IsLite(device.DefModelCode)) AdaptLite(image, DuplexRates(device.DefChannels));
}

void AdaptTriplex(BlockImage& image, const DefaultsDevice& device, int combo_blocks) {
  if (combo_blocks >= kTriplexBlocks && combo_blocks <= kMostBlocks) {
    image.Block(1)[kBlockCountByte] = static_cast<Byte>(combo_blocks);
    image.ResizeBlocks(combo_blocks);
  }
  const Byte code = device.DefModelCode;
  const bool lite = IsLite(code);
  if (lite) AdaptLite(image, TriplexRates(device));
  if (!IsVariant1Or2(device)) {
    const Byte event_settings = code == 10 || code == 11 ? 208 : 210;
    std::ranges::fill(image.Block(56), event_settings);
    return;
  }
  // All that follows belongs to variants "1" and "2": the others keep the image's ports, and zero
  // blocks above 200. The image's own TCP notification, settings of single cameras and third e-mail
  // address fit these variants as well.
  if (!lite) AdaptFullVariant(image, device.DefChannels);
  Apply(image, kVariant1Or2);
  PutAddresses(image);
}

/// On an alarm, Display1 to Display3 show the camera before, after, and next but one. The image
/// has them for 16 cameras; on these smaller devices they go round after the last camera.
void CloseAlarmTables(BlockImage& image, Byte cameras) {
  if (cameras != 4 && cameras != 9 && cameras != 10) return;
  const auto camera = [](int number) { return static_cast<Byte>(number); };
  const int last = cameras - 1;
  const auto display1 = image.Block(38);
  display1[0] = camera(last);
  display1[last - 1] = camera(last - 2);
  display1[last] = camera(last - 1);
  const auto display2 = image.Block(40);
  display2[last - 1] = camera(last);
  display2[last] = camera(0);
  const auto display3 = image.Block(42);
  display3[last - 1] = camera(0);
  display3[last] = camera(1);
}

/// Every camera to the alarm input of the same number, cameras that the device lacks included.
void LinkCamerasToAlarms(BlockImage& image) {
  Byte input = 0;
  for (Byte& lnk_alm : image.Block(54)) lnk_alm = ++input;
}

void PutIdentity(BlockImage& image, const DefaultsDevice& device) {
  image.Block(183)[7] = device.DefProbeByte;
  const std::string name(device.DefModelName.begin(), device.DefModelName.end());
  WriteIdentityBlock(image, device.DefChannels, device.DefModelCode, name);
}

bool IsTriplex(Byte model_code) { return model_code >= 6; }

}  // namespace

DefaultsDevice NamedDevice(Byte cameras, Byte model_code, std::string_view name, char variant) {
  constexpr Byte kModelCodeMask = 0x7F;
  DefaultsDevice device{
      static_cast<Byte>(variant), cameras, static_cast<Byte>(model_code & kModelCodeMask), {}};
  if (name.size() > device.DefModelName.size()) {
    throw ImageError("the model name has " + std::to_string(name.size()) + " characters; " +
                     std::to_string(device.DefModelName.size()) + " are the most");
  }
  std::ranges::copy(name, device.DefModelName.begin());
  return device;
}

int FactoryImageOf(Byte model_code) { return IsTriplex(model_code) ? 401 : 301; }

void AdaptToDevice(BlockImage& image, const DefaultsDevice& device, int combo_blocks) {
  if (device.DefChannels > kMostCameras) {
    throw ImageError("the device names " + std::to_string(device.DefChannels) +
                     " cameras; 16 are the most");
  }
  const bool triplex = IsTriplex(device.DefModelCode);
  const int needed = triplex ? kTriplexBlocks : kDuplexBlocks;
  if (!image.Counts(needed)) {
    throw ImageError("the factory settings have fewer than " + std::to_string(needed) + " blocks");
  }
  if (triplex) {
    AdaptTriplex(image, device, combo_blocks);
  } else {
    AdaptDuplex(image, device);
  }
  CloseAlarmTables(image, device.DefChannels);
  LinkCamerasToAlarms(image);
  PutIdentity(image, device);
}

}  // namespace quorvel
