#include "muxhost/device/bare_blocks.h"

#include <algorithm>

#include "quorvel/image_settings.h"
#include "quorvel/send_plan.h"

namespace quorvel::muxhost {

std::set<Byte> BareBlocks::Differing(std::span<const Byte> image,
                                     std::span<const Byte> device) const {
  std::set<Byte> differing;
  for (const Byte block : sent) {
    const std::size_t end = std::size_t{block} * kBlockSize;
    if (end > image.size() || end > device.size()) continue;
    const auto mine = image.subspan(end - kBlockSize, kBlockSize);
    const auto its = device.subspan(end - kBlockSize, kBlockSize);
    if (!std::equal(mine.begin(), mine.end(), its.begin())) differing.insert(block);
  }
  return differing;
}

BareBlocks FindBareBlocks(std::span<const Byte> image, bool combined) {
  const BlockImage blocks({image.begin(), image.end()});
  std::vector<Byte> known;
  try {
    known = KnownBlocks(blocks);
  } catch (const ImageError&) {
    return {};
  }
  BareBlocks bare;
  const auto with = PlanAllBlocks(blocks, true);
  bare.sent = {with.begin(), with.end()};
  if (combined) {
    // The array brings the blocks as they are; its macro data is kept apart from them.
    for (int block = 1; block <= blocks.BlkCount(); ++block) {
      bare.sent.insert(static_cast<Byte>(block));
    }
  } else {
    bare.with_macros = bare.sent;
    for (const Byte block : PlanAllBlocks(blocks, false)) bare.with_macros.erase(block);
  }
  for (const Byte block : known) bare.sent.erase(block);
  return bare;
}

}  // namespace quorvel::muxhost
