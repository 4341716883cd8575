#include "quorvel/image_settings.h"

#include <memory>
#include <set>

#include "core/codec.h"
#include "core/survey.h"

namespace quorvel {

namespace {

using layout::Place;

/// What the block layouts put into the blocks of an image.
class SurveyedImage {
 public:
  explicit SurveyedImage(BlockImage image) : count_(image.BlkCount()) {
    DecodeImage(image, env_, *record_);
  }
  [[nodiscard]] std::vector<Place> Places(Direction direction) const {
    return SurveyRecord(*record_, env_.identity, count_, direction);
  }

 private:
  int count_;
  RecordEnvironment env_;
  std::unique_ptr<MuxData> record_ = std::make_unique<MuxData>(env_);
};

}  // namespace

std::vector<BlockSetting> SettingsByBlock(const BlockImage& image) {
  std::vector<BlockSetting> settings;
  for (Place& place : SurveyedImage(image).Places(Direction::kRead)) {
    if (place.role == Place::Role::kMark || place.role == Place::Role::kChangeMask) continue;
    settings.push_back(
        {static_cast<Byte>(place.block), std::move(place.name), std::move(place.value)});
  }
  return settings;
}

std::vector<Byte> KnownBlocks(const BlockImage& image) {
  const SurveyedImage surveyed(image);
  std::set<Byte> blocks;
  for (const auto direction : {Direction::kRead, Direction::kWritten}) {
    for (const Place& place : surveyed.Places(direction)) {
      blocks.insert(static_cast<Byte>(place.block));
    }
  }
  return {blocks.begin(), blocks.end()};
}

}  // namespace quorvel
