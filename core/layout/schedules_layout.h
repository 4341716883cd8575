#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Blocks 64 to 68: timed macros, four entries of four bytes. Values that the device cannot mean
/// are passed over on the way in.
template <class Pass>
void TimedMacros(Pass& block, int number, MuxData& rec) {
  constexpr int kEntries = 4;
  constexpr Byte kDays = 9;
  constexpr Byte kHours = 24;
  constexpr Byte kMinutes = 59;  // as the device counts: minute 59 is not taken
  const int first = (number - 64) * kEntries;
  for (int j = 0; j < kEntries; ++j) {
    auto& macro = rec.AllTimedMacros().at(static_cast<std::size_t>(first + j));
    const int at = j * kEntries;
    if constexpr (Pass::kReading) {
      const auto load_below = [&block](int place, Byte limit, auto& setting) {
        if (block.Raw(place) < limit) setting.Load(block.Raw(place));
      };
      load_below(at, kDays, macro.Day);
      load_below(at + 1, kHours, macro.Hour);
      load_below(at + 2, kMinutes, macro.Minute);
      const Byte macro_number = block.Raw(at + 3);
      macro.MacroNum.Load(macro_number > block.Cameras() ? Byte{1} : macro_number);
    } else {
      block.Byte(at, macro.Day);
      block.Byte(at + 1, macro.Hour);
      block.Byte(at + 2, macro.Minute);
      block.Byte(at + 3, macro.MacroNum);
    }
  }
}

/// Block 69 + c: the submacro of camera c, its length first. On a multiplexer block 69 also names
/// the two delay codes.
template <class Pass>
void SubMacro(Pass& block, int number, MuxData& rec, const Identity& id) {
  const auto camera = static_cast<std::size_t>(number - 69);
  auto& macro = rec.AllSubMacros().at(camera);
  if constexpr (Pass::kReading) {
    macro.LoadLength(block.Raw(0));
    for (int i = 0; i <= macro.SMacroLen(); ++i) {
      if (i < clsSubMacro::kLongest) macro.SMacroByte.Load(i, block.Raw(i + 1));
    }
    if (id.IsMultiplexer() && camera == 0) {
      block.Byte(11, rec.MacroEditDL1);
      block.Byte(12, rec.MacroEditDL2);
    }
  } else {
    block.Put(0, macro.SMacroLen());
    block.Bytes(1, clsSubMacro::kLongest, Each(macro.SMacroByte));
  }
}

/// Blocks 195 to 199 of triplex models: record timers, two entries of eight bytes.
template <class Pass>
void RecTimers(Pass& block, int number, MuxData& rec) {
  const int first = (number - 195) * 2;
  for (int j = 0; j < 2; ++j) {
    auto& timer = rec.AllRecTimers().at(static_cast<std::size_t>(first + j));
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
