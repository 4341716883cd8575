#include "core/codec.h"

#include "core/layout/blocks.h"
#include "core/layout/reading_pass.h"
#include "core/layout/writing_pass.h"

namespace quorvel {

namespace {

constexpr int kClockBlock = 61;
constexpr int kVideoLossBlock = 182;

/// Blocks that only the device writes.
bool IsReadOnly(int number) { return number == kVideoLossBlock || number == kIdentityBlock; }

}  // namespace

void DecodeImage(BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  env.identity = ReadIdentity(image);
  Identity& id = env.identity;
  rec.Rec120sp.Load(Byte{0});
  rec.FillData();
  for (int number = 1; number <= image.BlkCount(); ++number) {
    layout::ReadingPass block(image, number, id.MaxCam);
    layout::Describe(block, number, rec, id);
  }
  if (id.IsMultiplexer()) {
    id.RecorderKind = RecorderKindByName(rec.MuxModelName());
  }
}

void EncodeBlock(int number, BlockImage& image, RecordEnvironment& env, MuxData& rec) {
  if (IsReadOnly(number) || !image.Holds(number)) return;
  layout::WritingPass block(image, number, env.identity.MaxCam);
  layout::Describe(block, number, rec, env.identity);
}

void EncodeModifiedBlocks(BlockImage& image, RecordEnvironment& env, MuxData& rec,
                          const TimeOfDay* pc_time) {
  for (Byte i = 0; i < env.blocks.BlkSavIdx(); ++i) {
    const int number = env.blocks.BlkNumSav(i);
    if (number == kClockBlock && pc_time != nullptr) {
      rec.TDInfo.CurrentHour.Load(static_cast<std::int16_t>(pc_time->hour));
      rec.TDInfo.CurrentMin.Load(static_cast<std::int16_t>(pc_time->minute));
      rec.TDInfo.CurrentSec.Load(static_cast<std::int16_t>(pc_time->second));
    }
    EncodeBlock(number, image, env, rec);
  }
}

}  // namespace quorvel
