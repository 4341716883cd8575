#include "core/change_marks.h"

#include <algorithm>
#include <array>

#include "core/bit_fields.h"
#include "core/codec.h"

namespace quorvel {

namespace {

struct ChangeMark {
  int block;
  std::size_t at;            ///< the mark's byte
  std::size_t first, count;  ///< the bytes that it tells about
  Byte rest;
  Byte (*read)(const MuxData& rec);
  void (*store)(MuxData& rec, Byte mark);
};

constexpr int kClockBlock = 61;
constexpr int kClockEnd = 6;  // behind the clock's bytes
constexpr std::array kMarks{
    ChangeMark{kClockBlock, 15, 0, 6, 1, [](const MuxData& rec) { return rec.PlayDwell(); },
               [](MuxData& rec, Byte mark) { rec.PlayDwell.Load(mark); }},
    ChangeMark{213, 0, 1, 12, 0,
               [](const MuxData& rec) { return rec.AlmEmailNotify.AlmServerChange(); },
               [](MuxData& rec, Byte mark) { rec.AlmEmailNotify.AlmServerChange.Load(mark); }},
    ChangeMark{217, 0, 2, 8, 0, [](const MuxData& rec) { return rec.TDInfo.NTPchange(); },
               [](MuxData& rec, Byte mark) { rec.TDInfo.NTPchange.Load(mark); }},
};

/// Below model code 6 the clock has no mark: its byte is the setting PlayDwell.
bool Has(const Identity& id, const ChangeMark& mark) {
  return mark.block != kClockBlock || id.IsTriplex();
}

void Rest(const ChangeMark& mark, BlockImage& image, CombinedArray& array, MuxData& rec) {
  mark.store(rec, mark.rest);
  if (image.Holds(mark.block)) image.Block(mark.block)[mark.at] = mark.rest;
  array.PutByte(mark.block, mark.at, mark.rest);
}

/// True when the record holds nothing but what the device was sent.
bool IsTold(const ChangeMark& mark, std::span<const Byte, kBlockSize> sent, BlockImage image,
            RecordEnvironment& env, MuxData& rec) {
  if (mark.read(rec) != mark.rest && sent[mark.at] == mark.rest) return false;
  if (!image.Counts(mark.block)) return false;
  EncodeBlock(mark.block, image, env, rec);
  const auto told = [&mark](std::span<const Byte, kBlockSize> block) {
    return block.subspan(mark.first, mark.count);
  };
  return std::ranges::equal(told(sent), told(image.Block(mark.block)));
}

}  // namespace

void SettleChangeMark(int number, std::span<const Byte, kBlockSize> sent, BlockImage& image,
                      CombinedArray& array, RecordEnvironment& env, MuxData& rec) {
  const auto mark = std::ranges::find(kMarks, number, &ChangeMark::block);
  if (mark == kMarks.end() || !Has(env.identity, *mark)) return;
  if (IsTold(*mark, sent, image, env, rec)) Rest(*mark, image, array, rec);
}

bool IsClockByte(int number, int at) { return number == kClockBlock && at < kClockEnd; }

void RaiseChangeMark(int number, int at, const Identity& id, MuxData& rec) {
  if (IsClockByte(number, at) && id.IsTriplex()) rec.PlayDwell(0);
}

bool DeviceHasBlock(int number, std::span<const Byte, kBlockSize> taken,
                    std::span<const Byte, kBlockSize> now, const Identity& id) {
  const auto mark = std::ranges::find(kMarks, number, &ChangeMark::block);
  for (std::size_t at = 0; at < kBlockSize; ++at) {
    if (taken[at] == now[at]) continue;
    const bool is_mark = mark != kMarks.end() && Has(id, *mark) && at == mark->at;
    const bool is_clock = IsClockByte(number, static_cast<int>(at));
    if (!is_mark && !is_clock) return false;
  }
  return true;
}

void RaiseChangeMarks(int number, std::span<const Byte, kBlockSize> taken,
                      std::span<const Byte, kBlockSize> now, MuxData& rec) {
  const auto mark = std::ranges::find(kMarks, number, &ChangeMark::block);
  if (mark == kMarks.end() || number == kClockBlock) return;
  constexpr std::size_t kServer = 4;  // bytes of an address, of which each has a bit
  Byte bits = mark->read(rec);
  for (std::size_t i = 0; i < mark->count; ++i) {
    const std::size_t at = mark->first + i;
    if (taken[at] != now[at]) SetBit(bits, static_cast<int>(i / kServer), true);
  }
  mark->store(rec, bits);
}

void RenewChangeMark(int number, std::span<const Byte, kBlockSize> device,
                     std::span<const Byte, kBlockSize> now, const MuxData& device_rec,
                     BlockImage& image, CombinedArray& array, const RecordEnvironment& env,
                     MuxData& rec) {
  const auto mark = std::ranges::find(kMarks, number, &ChangeMark::block);
  if (mark == kMarks.end() || !Has(env.identity, *mark)) return;
  const Byte of_device = mark->read(device_rec);
  const bool same = std::ranges::equal(device.subspan(mark->first, mark->count),
                                       now.subspan(mark->first, mark->count));
  if (same && of_device == mark->rest) return Rest(*mark, image, array, rec);
  if (!same && number == kClockBlock) return;
  mark->store(rec, of_device);
  if (!same) RaiseChangeMarks(number, device, now, rec);
}

void ClearChangeMarks(BlockImage& image, CombinedArray& array, const RecordEnvironment& env,
                      MuxData& rec) {
  for (const ChangeMark& mark : kMarks) {
    if (Has(env.identity, mark) && mark.read(rec) != mark.rest) Rest(mark, image, array, rec);
  }
}

}  // namespace quorvel
