#include "quorvel/default_images.h"

#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/codec.h"
#include "core/record_environment.h"
#include "resources/factory_settings.h"

namespace quorvel {

namespace {

struct FactoryModel {
  int resource;
  Byte blocks;
  Byte model_code;
  std::string_view name;
  Byte recorder_kind;
};

enum RecorderKind : Byte { kSimplex = 0, kDuplex = 1, kTriplex = 2 };

constexpr std::array kModels = {
    FactoryModel{104, 185, 1, "MX16", kSimplex},
    FactoryModel{301, 185, 2, "DX16", kDuplex},
    FactoryModel{401, 200, 6, "TX16", kTriplex},
};

const FactoryModel& ModelOf(int resource) {
  for (const FactoryModel& model : kModels) {
    if (model.resource == resource) return model;
  }
  throw std::invalid_argument("no factory-default image " + std::to_string(resource));
}

/// What a device says about itself, in bytes that carry no setting.
void PutDeviceBytes(BlockImage& image, const FactoryModel& model) {
  constexpr Byte kVariantChar = '4';  // the variant that lacks nothing
  constexpr Byte kBothArchivePorts = 1;
  constexpr Byte kDelayCode1 = 250;
  constexpr Byte kDelayCode2 = 251;
  image.Block(182)[8] = model.recorder_kind;
  image.Block(183)[7] = kVariantChar;
  image.Block(184)[12] = kBothArchivePorts;
  image.Block(69)[11] = kDelayCode1;
  image.Block(69)[12] = kDelayCode2;
}

}  // namespace

BlockImage LoadDefaultImage(int resource) {
  const FactoryModel& model = ModelOf(resource);
  BlockImage image;
  image.ResizeBlocks(model.blocks);
  image.Block(1)[kBlockCountByte] = model.blocks;
  WriteIdentityBlock(image, kMostCameras, model.model_code, model.name);

  RecordEnvironment env;
  env.identity = ReadIdentity(image);
  const auto rec = std::make_unique<MuxData>(env);
  ApplyFactorySettings(*rec);
  EncodeImage(image, env, *rec);
  PutDeviceBytes(image, model);
  return image;
}

std::string UsualModelName(int model_code, int cameras) {
  constexpr int kFirstDuplexModel = 2;
  constexpr int kFirstTriplexModel = 6;
  const char* kind = model_code == 1 ? "DR" : "MX";
  if (model_code >= kFirstDuplexModel) kind = model_code >= kFirstTriplexModel ? "TX" : "DX";
  return kind + std::to_string(cameras);
}

}  // namespace quorvel
