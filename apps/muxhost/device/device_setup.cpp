#include "muxhost/device/device_setup.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "quorvel/default_images.h"
#include "quorvel/identity.h"

namespace quorvel::muxhost {

namespace {

constexpr int kMostModels = 21;
constexpr int kFirstDuplexModel = 2;
constexpr std::size_t kNameLength = 14;
constexpr int kVariantBlock = 183;
constexpr int kVariantByte = 7;

void CheckRange(const char* what, int value, int least, int most) {
  CheckSetup(value >= least && value <= most,
             std::string(what) + " must be " + std::to_string(least) + " to " +
                 std::to_string(most) + ", not " + std::to_string(value));
}

void CheckValues(const DeviceSetup& setup) {
  constexpr std::array kCameraCounts{4, 9, 10, 16};
  CheckRange("model", setup.model, 0, kMostModels - 1);
  CheckSetup(
      std::find(kCameraCounts.begin(), kCameraCounts.end(), setup.cameras) != kCameraCounts.end(),
      "cameras must be 4, 9, 10 or 16, not " + std::to_string(setup.cameras));
  CheckRange("blocks", setup.blocks.value_or(1), 1, kMostDeviceBlocks);
  CheckSetup(setup.name.value_or("").size() <= kNameLength, "name must be at most 14 characters");
}

int FactoryResource(int model) {
  if (model >= kFirstTriplexModel) return 401;
  return model >= kFirstDuplexModel ? 301 : 104;
}

/// What an alarm shows on the displays 1 to 3 are the cameras around its own; on a small device
/// they wrap at its last camera.
void WrapDisplays(BlockImage& image, int cameras) {
  struct Display {
    int block;
    int offset;
  };
  for (const Display display : {Display{38, -1}, Display{40, 1}, Display{42, 2}}) {
    const auto block = image.Block(display.block);
    for (int k = 0; k < cameras; ++k) {
      block[static_cast<std::size_t>(k)] =
          static_cast<Byte>((k + display.offset + cameras) % cameras);
    }
  }
}

}  // namespace

void CheckSetup(bool good, const std::string& rule) {
  if (!good) throw std::invalid_argument(rule);
}

void CheckSetup(const CombinedSetup& setup) {
  constexpr int kMostMacros = 255;
  constexpr int kMostMacroBytes = 65535;
  constexpr int kMostMinor = 99;
  CheckRange("macro records", setup.macros, 0, kMostMacros);
  CheckRange("macro record size", setup.macro_size, 0, kMostMacroBytes);
  CheckRange("macro bytes", setup.macros * setup.macro_size, 0, kMostMacroBytes);
  CheckRange("firmware before the dot", setup.firmware_major, 0, 255);
  CheckRange("firmware after the dot", setup.firmware_minor, 0, kMostMinor);
}

BlockImage FactoryImage(const DeviceSetup& setup) {
  CheckValues(setup);
  BlockImage image = LoadDefaultImage(FactoryResource(setup.model));
  WriteIdentityBlock(image, static_cast<Byte>(setup.cameras), static_cast<Byte>(setup.model),
                     setup.name.value_or(UsualModelName(setup.model, setup.cameras)));
  if (setup.variant) image.Block(kVariantBlock)[kVariantByte] = static_cast<Byte>(*setup.variant);
  if (setup.cameras < kMostCameras) WrapDisplays(image, setup.cameras);
  return image;
}

char VariantOf(const BlockImage& image) {
  return static_cast<char>(image.Block(kVariantBlock)[kVariantByte]);
}

int BlocksOf(const DeviceSetup& setup) {
  return setup.blocks.value_or(setup.model >= kFirstTriplexModel ? 225 : 185);
}

}  // namespace quorvel::muxhost
