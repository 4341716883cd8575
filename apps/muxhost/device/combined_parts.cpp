#include "muxhost/device/combined_parts.h"

#include "quorvel/combined_array.h"

namespace quorvel::muxhost {

std::optional<CombinedParts> TakeApart(std::span<const Byte> array) {
  if (array.size() < ComboHeader::kSize) return std::nullopt;
  const ComboHeader header = CombinedArray::Parse(array, {}).Header();
  const std::size_t block_bytes = std::size_t{header.BlockCount} * kBlockSize;
  const std::size_t macro_bytes = std::size_t{header.MacroCount} * header.MacroRecSize;
  const bool agrees = header.HdrLen >= ComboHeader::kSize &&
                      (header.DataLen == 0 || header.DataLen == block_bytes) &&
                      (header.MacroLen == 0 || header.MacroLen == macro_bytes);
  if (!agrees) return std::nullopt;

  const bool empty = header.DataLen == 0 && header.MacroLen == 0;
  const std::size_t macros_at = header.HdrLen + (empty ? 0 : block_bytes);
  if (macros_at + header.MacroLen > array.size()) return std::nullopt;
  return CombinedParts{.blocks = array.subspan(header.HdrLen, header.DataLen),
                       .macros = array.subspan(macros_at, header.MacroLen),
                       .block_count = header.BlockCount,
                       .macro_count = header.MacroCount,
                       .macro_size = header.MacroRecSize};
}

}  // namespace quorvel::muxhost
