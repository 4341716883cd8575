#include "host/activity_grid.h"

namespace quorvel {

namespace {
constexpr int kFirstGridBlock = 85;
}

bool ReadActivityGrid(Context& context, int camera, ActivityGridBytes& grid) {
  const Cameras* const record = context.Record().CamInfo(camera);
  if (record == nullptr) return false;
  for (std::size_t k = 0; k < grid.size(); ++k) grid[k] = record->ActGrid(static_cast<int>(k));
  return true;
}

void UpdateActivityGrid(Context& context, std::span<const Byte> data) {
  if (data.size() < 1 + ActivityGridBytes().size()) return;
  const int number = data[0];
  Cameras* const camera = context.Record().CamInfo(number);
  if (camera == nullptr) return;
  for (int k = 0; k < camera->ActGrid.kSize; ++k) {
    const Byte cell = data[static_cast<std::size_t>(k) + 1];
    if (camera->ActGrid(k) == cell) continue;
    const int block = kFirstGridBlock + 2 * number + k / kBlockSize;
    context.env.blocks.AddBlk(static_cast<Byte>(block));
    camera->ActGrid(k, cell);
    // A send may be under way that has encoded its blocks already.
    if (context.HasImage()) {
      EncodeBlock(block, context.BlkImage, context.env, context.Record());
    }
  }
}

}  // namespace quorvel
