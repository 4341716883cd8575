#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Block 56 of models with event recording: a byte a camera that packs three settings.
template <class Pass>
void EventSettings(Pass& block, MuxData& rec) {
  auto& events = rec.AllEvents();
  block.Rebuilt(0, kMostCameras);
  block.CodedBytes(
      0, kMostCameras, 0x07, Each(events, &clsEvents::PreEvDuration), [](int bits) { return bits; },
      [](int value) { return value; });
  block.CodedBytes(
      0, kMostCameras, 0x10, Each(events, &clsEvents::LnkToEvent),
      [](int bits) { return bits >> 4; }, [](int value) { return value != 0 ? 0x10 : 0; });
  block.CodedBytes(0, kMostCameras, 0xC0, Each(events, &clsEvents::EType), clsEvents::TypeOfBits,
                   clsEvents::BitsOfType);
}

/// Associated camera `place` of every camera.
struct EachAssociation {
  std::array<clsEvents, kMostCameras>& events;
  int place;
  auto operator[](int k) const { return events[static_cast<std::size_t>(k)].EvAssociated[place]; }
};

/// Blocks 214 to 216.
template <class Pass>
void EventAssociations(Pass& block, int place, MuxData& rec) {
  block.Bytes(0, kMostCameras, EachAssociation{rec.AllEvents(), place});
}

/// Block 219. For rates that read 0 in blocks 62, 58, 63 and 59, a device with turbo recording says
/// here which of them mean 99. Only the turbo setting itself is ever written.
template <class Pass>
void Turbo(Pass& block, MuxData& rec, const Identity& id) {
  constexpr Byte kTurboRate = 99;
  if (!Pass::kWriting || id.PlexarProModel) block.Byte(0, rec.Rec120sp);
  block.CameraMarks(1, Each(rec.AllEvents(), &clsEvents::TL_RRIndex), kTurboRate);
  block.CameraMarks(3, Each(rec.AllEvents(), &clsEvents::Event_RRIndex), kTurboRate);
  block.CameraMarks(5, Each(rec.AllEvents(), &clsEvents::Act_RRIndex), kTurboRate);
  block.Mark(7, rec.Alarm_Rec_Index, kTurboRate);
}

}  // namespace quorvel::layout
