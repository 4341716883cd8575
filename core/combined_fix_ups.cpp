#include "core/combined_fix_ups.h"

#include <array>

#include "core/bit_fields.h"
#include "core/record/mux_data.h"

namespace quorvel {

namespace {

constexpr Byte kTurboRate = 99;
constexpr int kTurboBlock = 219;

void Put(BlockImage& image, int number, std::size_t at, Byte value) {
  if (image.Holds(number)) image.Block(number)[at] = value;
}

/// The reverse of what decoding block 219 does. A device with turbo recording marks the rate
/// indices that are 99. A send of everything writes 99 into their own blocks.
void PutTurboRates(BlockImage& image, const RecordEnvironment& env, MuxData& rec) {
  if (rec.Rec120sp() != 1) return;
  struct Marked {
    std::size_t marks;  ///< first of two bytes of block 219, a bit a camera
    Byte (*rate)(const clsEvents& event);
    int block;  ///< holds the rate index of camera c in byte c
  };
  constexpr std::array kMarked{
      Marked{1, [](const clsEvents& event) { return event.TL_RRIndex(); }, 62},
      Marked{3, [](const clsEvents& event) { return event.Event_RRIndex(); }, 58},
      Marked{5, [](const clsEvents& event) { return event.Act_RRIndex(); }, 63},
  };
  const auto block = image.Block(kTurboBlock);
  for (const Marked& it : kMarked) {
    for (int c = 0; c < env.identity.MaxCam; ++c) {
      const auto camera = static_cast<std::size_t>(c);
      if (GetBit(block[it.marks + camera / 8], c % 8) == 0) continue;
      const clsEvents* const event = rec.CamEvent(c);
      if (event != nullptr && it.rate(*event) == kTurboRate) {
        Put(image, it.block, camera, kTurboRate);
      }
    }
  }
  if (block[7] == 1 && rec.Alarm_Rec_Index() == kTurboRate) Put(image, 59, 7, kTurboRate);
}

}  // namespace

void FixUpForCombinedSend(BlockImage& image, const RecordEnvironment& env, MuxData& rec,
                          bool use_pc_time) {
  const Identity& id = env.identity;
  const int count = image.BlkCountOrZero();
  if (id.IsTriplex()) Put(image, 61, 15, use_pc_time ? Byte{0} : rec.PlayDwell());
  if (count >= 213) Put(image, 213, 0, id.LiteRecordModel ? 1 : 7);
  if (count >= 217) Put(image, 217, 0, 3);
  if (count >= kTurboBlock && id.PlexarProModel) PutTurboRates(image, env, rec);
}

}  // namespace quorvel
