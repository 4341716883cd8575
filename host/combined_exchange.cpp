#include "host/combined_exchange.h"

#include <limits>

namespace quorvel {

CombinedArray BuildComboArray(const ComboSizes& sizes, const BlockImage& image) {
  // A device without macro records takes all its blocks; the host says how many those are. A number
  // that no length can express is not a number of blocks.
  constexpr int kMostBlocks = std::numeric_limits<std::uint16_t>::max() / kBlockSize;
  const bool stated = sizes.ComboMacroCount == 0 && sizes.ComboBlockCount > 0 &&
                      sizes.ComboBlockCount <= kMostBlocks;
  ComboHeader header;
  header.HdrLen = ComboHeader::kSize;
  header.MacroRecSize = sizes.ComboMacroSize;
  header.MacroCount = sizes.ComboMacroCount;
  header.BlockCount = stated ? sizes.ComboBlockCount : image.BlkCountOrZero();
  header.DataLen = static_cast<std::uint16_t>(header.BlockCount * kBlockSize);
  header.ExtraA = sizes.ComboExtraA;
  header.ExtraB = sizes.ComboExtraB;
  return CombinedArray::Build(header, image);
}

void ProvideComboArray(Context& context) {
  if (context.ComboArray.Carries(context.BlkImage)) return;
  context.ComboArray = BuildComboArray(context.combo_sizes, context.BlkImage);
}

}  // namespace quorvel
