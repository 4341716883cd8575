#include "quorvel/identity.h"

#include <algorithm>
#include <string>

#include "core/model_flags.h"

namespace quorvel {

namespace {

constexpr int kExtendedImageBlocks = 225;
constexpr int kModelNameLength = 14;

bool IsLiteRecordModel(Byte code) {
  return code == 4 || code == 5 || (code >= 8 && code <= 13) || code == 16 || code == 17 ||
         code == 20;
}

}  // namespace

void SetModelFlags(Identity& id, Byte model_code) {
  id.ModelCode = model_code;
  id.LiteRecordModel = IsLiteRecordModel(model_code);
  id.Model4L = model_code == 16 || model_code == 17;
  id.MatrixModel = (model_code == 14 || model_code == 15) ? 1 : 0;
  id.PlexarProModel = model_code == 18 || model_code == 19;
  id.LumacastModel = (model_code >= 10 && model_code <= 13) || id.PlexarProModel;
}

Identity ReadIdentity(const BlockImage& image) {
  const Byte count = image.BlkCount();
  if (count > 0 && !image.Holds(count)) {
    throw ImageError("the configuration is cut short: it counts " + std::to_string(count) +
                     " blocks and holds " + std::to_string(image.Size() / kBlockSize));
  }
  Identity id;
  if (!image.Holds(kIdentityBlock)) {
    id.MaxCam = kMostCameras;
    return id;
  }
  const auto block = image.Block(kIdentityBlock);
  if (block[0] > kMostCameras) {
    throw ImageError("the configuration names " + std::to_string(block[0]) +
                     " cameras; 16 are the most");
  }
  id.MaxCam = block[0];
  SetModelFlags(id, block[1] & 0x7F);
  id.ExtendedImage = count >= kExtendedImageBlocks;
  return id;
}

void WriteIdentityBlock(BlockImage& image, Byte cameras, Byte model_code, std::string_view name) {
  const auto block = image.Block(kIdentityBlock);
  block[0] = cameras;
  block[1] = model_code;
  std::fill(block.begin() + 2, block.end(), Byte{0});
  const auto used = name.substr(0, kModelNameLength);
  std::copy(used.begin(), used.end(), block.begin() + 2);
}

Byte RecorderKindByName(std::string_view model_name) {
  const auto drop_last = [&model_name](char letter) {
    if (!model_name.empty() && model_name.back() == letter) model_name.remove_suffix(1);
  };
  drop_last('X');
  drop_last('M');
  if (model_name.empty()) return 0;
  if (model_name.back() == 'T') return 2;
  return model_name.back() == 'D' ? 1 : 0;
}

}  // namespace quorvel
