#include "host/combined_exchange.h"

#include <algorithm>
#include <limits>

namespace quorvel {

CombinedArray BuildComboArray(const ComboSizes& sizes, const BlockImage& image) {
  // A device without macro records takes all its blocks; the host says how many those are. No image
  // counts more than 255, and none is cut.
  constexpr int kMostBlocks = std::numeric_limits<Byte>::max();
  const int own = image.BlkCountOrZero();
  const bool stated = sizes.ComboMacroCount == 0 && sizes.ComboBlockCount <= kMostBlocks;
  ComboHeader header;
  header.HdrLen = ComboHeader::kSize;
  header.MacroRecSize = sizes.ComboMacroSize;
  header.MacroCount = sizes.ComboMacroCount;
  header.BlockCount =
      static_cast<std::uint16_t>(stated ? std::max<int>(own, sizes.ComboBlockCount) : own);
  header.DataLen = static_cast<std::uint16_t>(header.BlockCount * kBlockSize);
  header.ExtraA = sizes.ComboExtraA;
  header.ExtraB = sizes.ComboExtraB;
  return CombinedArray::Build(header, image);
}

void ProvideComboArray(DeviceState& device, const ComboSizes& sizes) {
  if (device.ComboArray.Carries(device.BlkImage)) return;
  device.ComboArray = BuildComboArray(sizes, device.BlkImage);
}

}  // namespace quorvel
