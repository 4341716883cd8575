#pragma once

#include <span>

#include "core/record_environment.h"
#include "quorvel/block_image.h"
#include "quorvel/combined_array.h"

namespace quorvel {

class MuxData;

/// Blocks 213 and 217, and on triplex models block 61, hold a byte that tells the device what in
/// them is new: which servers, or that the clock is to be set. The mark is state of the record. An
/// edit sets it, every encode writes it, and it goes back to rest, which says "nothing", when a
/// send took the block, when the modified-block list is cleared, and with a new image.
///
/// A mark at rest stands at rest in the image and in the combined array, too: the device is not
/// told twice, whichever of them the next send comes from.

/// A send took block `number` with the 16 bytes of `sent`: its mark goes to rest, unless the record
/// holds another server or another time by now, of which the device does not know.
void SettleChangeMark(int number, std::span<const Byte, kBlockSize> sent, BlockImage& image,
                      CombinedArray& array, RecordEnvironment& env, MuxData& rec);

/// True for the bytes of block 61 that hold date and time.
[[nodiscard]] bool IsClockByte(int number, int at);
/// Byte `at` of block `number` has been set. Servers mark themselves; the clock has its mark set
/// here, which lets the device take it.
void RaiseChangeMark(int number, int at, const Identity& id, MuxData& rec);

/// True when `taken`, what the device was given for block `number`, is what `now` would give it.
/// Its clock has moved on, and what tells of changes is no setting: neither counts.
[[nodiscard]] bool DeviceHasBlock(int number, std::span<const Byte, kBlockSize> taken,
                                  std::span<const Byte, kBlockSize> now, const Identity& id);
/// Sets the marks of the servers that are others in `now` than in `taken`.
void RaiseChangeMarks(int number, std::span<const Byte, kBlockSize> taken,
                      std::span<const Byte, kBlockSize> now, MuxData& rec);

/// Something in block `number` was set again as the device has it in `device`: the mark of `rec`
/// tells no more than what is another in `now`; where nothing is, it is that of `device_rec`.
void RenewChangeMark(int number, std::span<const Byte, kBlockSize> device,
                     std::span<const Byte, kBlockSize> now, const MuxData& device_rec,
                     BlockImage& image, CombinedArray& array, const RecordEnvironment& env,
                     MuxData& rec);

/// The list of modified blocks has been cleared: all marks go to rest.
void ClearChangeMarks(BlockImage& image, CombinedArray& array, const RecordEnvironment& env,
                      MuxData& rec);

}  // namespace quorvel
