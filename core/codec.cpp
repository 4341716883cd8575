#include "core/codec.h"

#include <bitset>

#include "core/layout/blocks.h"
#include "core/layout/reading_pass.h"
#include "core/layout/writing_pass.h"
#include "core/model_flags.h"

namespace quorvel {

namespace {

constexpr int kClockBlock = 61;

using BlockSet = std::bitset<256>;

/// Visits the blocks up to a number, or those of a set, with a pass over the image.
template <class Pass, class Wanted>
class ImageWalk {
 public:
  ImageWalk(BlockImage& image, int cameras, Wanted wanted)
      : image_(image), cameras_(cameras), wanted_(wanted) {}

  template <class Visit>
  void Block(int number, const Visit& visit) {
    if (!wanted_(number)) return;
    Pass pass(image_, number, cameras_);
    visit(pass);
  }
  template <class Visit>
  void Blocks(int first, int count, const Visit& visit) {
    for (int i = 0; i < count; ++i) {
      Block(first + i, [&](Pass& pass) { visit(pass, i); });
    }
  }

 private:
  BlockImage& image_;
  int cameras_;
  Wanted wanted_;
};

void EncodeBlocks(const BlockSet& blocks, BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  const auto wanted = [&](int number) {
    return blocks[static_cast<std::size_t>(number)] && !IsDeviceBlock(number) &&
           image.Counts(number);
  };
  ImageWalk<layout::WritingPass, decltype(wanted)> walk(image, env.identity.MaxCam, wanted);
  layout::DescribeBlocks(walk, rec, env.identity);
}

}  // namespace

void DecodeImage(BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  env.identity = ReadIdentity(image);
  Identity& id = env.identity;
  rec.Rec120sp.Load(0);
  rec.FillData();
  const int count = image.BlkCount();
  const auto wanted = [count](int number) { return number <= count; };
  ImageWalk<layout::ReadingPass, decltype(wanted)> walk(image, id.MaxCam, wanted);
  layout::DescribeBlocks(walk, rec, id);
  if (id.IsMultiplexer()) id.RecorderKind = RecorderKindByName(rec.MuxModelName());
}

void EncodeBlock(int number, BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  if (number < 1 || number > 255) return;
  BlockSet blocks;
  blocks.set(static_cast<std::size_t>(number));
  EncodeBlocks(blocks, image, env, rec);
}

void EncodeImage(BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  EncodeBlocks(BlockSet().set(), image, env, rec);
}

void EncodeModifiedBlocks(BlockImage& image, RecordEnvironment& env, MuxData& rec,
                          const ClockTime* pc_time) {
  BlockSet blocks;
  for (Byte i = 0; i < env.blocks.BlkSavIdx(); ++i) blocks.set(env.blocks.BlkNumSav(i));
  if (blocks[kClockBlock] && image.Counts(kClockBlock) && pc_time != nullptr) {
    rec.TDInfo.CurrentHour.Load(static_cast<std::int16_t>(pc_time->hour));
    rec.TDInfo.CurrentMin.Load(static_cast<std::int16_t>(pc_time->minute));
    rec.TDInfo.CurrentSec.Load(static_cast<std::int16_t>(pc_time->second));
  }
  EncodeBlocks(blocks, image, env, rec);
}

}  // namespace quorvel
