#include "host/activity_grid.h"

#include "core/codec.h"

namespace quorvel {

namespace {
constexpr int kFirstGridBlock = 85;
}

bool ReadActivityGrid(DeviceState& device, int camera, ActivityGridBytes& grid) {
  const Cameras* const record = device.Record().CamInfo(camera);
  if (record == nullptr) return false;
  for (std::size_t k = 0; k < grid.size(); ++k) grid[k] = record->ActGrid(static_cast<int>(k));
  return true;
}

bool UpdateActivityGrid(DeviceState& device, std::span<const Byte> data) {
  if (data.size() < 1 + ActivityGridBytes().size()) return false;
  const int number = data[0];
  Cameras* const camera = device.Record().CamInfo(number);
  if (camera == nullptr) return false;
  for (int k = 0; k < camera->ActGrid.kSize; ++k) {
    const Byte cell = data[static_cast<std::size_t>(k) + 1];
    if (camera->ActGrid(k) == cell) continue;
    const int block = kFirstGridBlock + 2 * number + k / kBlockSize;
    device.env.blocks.AddBlk(static_cast<Byte>(block));
    camera->ActGrid.Set(k, cell);
    // A send may be under way that has encoded its blocks already.
    if (device.HasImage()) {
      EncodeBlock(block, device.BlkImage, device.env, device.Record());
    }
  }
  return true;
}

}  // namespace quorvel
