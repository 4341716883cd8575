#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Blocks 64 to 68: timed macros from entry `first` on, four entries of four bytes. Reading passes
/// over values that the device cannot mean.
template <class Pass>
void TimedMacros(Pass& block, int first, MuxData& rec) {
  constexpr int kEntries = 4;
  constexpr int kEntrySize = 4;
  constexpr int kDays = 9;
  constexpr int kHours = 24;
  constexpr int kMinutes = 59;  // as the device counts: minute 59 is not taken
  for (int j = 0; j < kEntries; ++j) {
    const auto entry = static_cast<unsigned>(first + j);
    auto& macro = rec.AllTimedMacros().at(entry);
    const int at = j * kEntrySize;
    block.ByteBelow(kDays, at, macro.Day);
    block.ByteBelow(kHours, at + 1, macro.Hour);
    block.ByteBelow(kMinutes, at + 2, macro.Minute);
    block.Byte(at + 3, macro.MacroNum);
    if constexpr (Pass::kReading) {
      if (macro.MacroNum() > block.Cameras()) macro.MacroNum.Load(1);
    }
  }
}

/// Block 69 + c: the submacro of camera c, its length first. On a multiplexer block 69 also names
/// the two delay codes.
template <class Pass>
void SubMacro(Pass& block, int camera, MuxData& rec, const Identity& id) {
  auto& macro = rec.AllSubMacros().at(static_cast<std::size_t>(camera));
  block.Byte(0, macro.SMacroLen);
  // A script is read up to the byte after its end. What a device holds behind it stays there, but
  // for what was set since.
  const auto bytes = Each(macro.SMacroByte);
  const int script = Pass::kHasImage ? std::min(macro.SMacroLen() + 1, clsSubMacro::kLongest)
                                     : clsSubMacro::kLongest;
  block.Bytes(1, script, bytes);
  if constexpr (Pass::kWriting) {
    for (int k = script; k < clsSubMacro::kLongest; ++k) {
      if (macro.WasSet(k)) block.Byte(1 + k, bytes[k]);
    }
  }
  if (!Pass::kWriting && id.IsMultiplexer() && camera == 0) {
    block.Byte(11, rec.MacroEditDL1);
    block.Byte(12, rec.MacroEditDL2);
  }
}

/// Blocks 195 to 199 of triplex models: record timers from entry `first` on, two entries of eight
/// bytes.
template <class Pass>
void RecTimers(Pass& block, int first, MuxData& rec) {
  for (int j = 0; j < 2; ++j) {
    const auto entry = static_cast<unsigned>(first + j);
    auto& timer = rec.AllRecTimers().at(entry);
    const int at = 8 * j;
    block.Byte(at, timer.RTdate);
    block.Byte(at + 1, timer.RTstart_hh);
    block.Byte(at + 2, timer.RTstart_mm);
    block.Byte(at + 3, timer.RTstop_hh);
    block.Byte(at + 4, timer.RTstop_mm);
    block.Byte(at + 5, timer.RTmacrolnk);
    block.Byte(at + 6, timer.RTstatus);
    block.Byte(at + 7, timer.RTvalid);
  }
}

}  // namespace quorvel::layout
