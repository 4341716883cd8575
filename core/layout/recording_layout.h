#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Blocks 56 to 58, 62 and 63 of recorders: event recording, always for all 16 cameras.
template <class Pass>
void EventRecording(Pass& block, int number, MuxData& rec) {
  auto& events = rec.AllEvents();
  switch (number) {
    case 56:
      for (int k = 0; k < kMostCameras; ++k) {
        clsEvents& camera = events[static_cast<std::size_t>(k)];
        if constexpr (Pass::kReading) {
          camera.EventSettings(block.Raw(k));
        } else {
          block.Put(k, camera.PackedEventSettings());
        }
      }
      return;
    case 57: return block.Bytes(0, kMostCameras, Each(events, &clsEvents::PostEvDuration));
    case 58: return block.Bytes(0, kMostCameras, Each(events, &clsEvents::Event_RRIndex));
    case 62: return block.Bytes(0, kMostCameras, Each(events, &clsEvents::TL_RRIndex));
    case 63: return block.Bytes(0, kMostCameras, Each(events, &clsEvents::Act_RRIndex));
    default: return;
  }
}

/// Blocks 56 to 58 of the models without event recording: the record list, 40 places.
template <class Pass>
void RecordList(Pass& block, int number, MuxData& rec) {
  const int first = (number - 56) * kBlockSize;
  const int places = number == 58 ? 8 : kBlockSize;
  block.Bytes(0, places, Each(rec.RecSeqLst, first));
}

/// Blocks 214 to 216: associated cameras.
template <class Pass>
void EventAssociations(Pass& block, int number, MuxData& rec) {
  for (int k = 0; k < kMostCameras; ++k) {
    block.Byte(k, rec.AllEvents()[static_cast<std::size_t>(k)].EvAssociated[number - 214]);
  }
}

/// Block 219. A device with turbo recording keeps rate 99 of the older blocks as 0 and says here
/// which zeros mean 99; those bits are the device's own and are never written.
template <class Pass>
void Turbo(Pass& block, MuxData& rec, const Identity& id) {
  if constexpr (Pass::kReading) {
    constexpr Byte kTurboRate = 99;
    block.Byte(0, rec.Rec120sp);
    const auto restore = [&](int at, auto rates) {
      for (int k = 0; k < block.Cameras(); ++k) {
        const bool turbo = GetBit(block.Raw(at + k / 8), k % 8) == 1;
        if (turbo && rates[k]() == 0) rates[k].Load(kTurboRate);
      }
    };
    restore(1, Each(rec.AllEvents(), &clsEvents::TL_RRIndex));
    restore(3, Each(rec.AllEvents(), &clsEvents::Event_RRIndex));
    restore(5, Each(rec.AllEvents(), &clsEvents::Act_RRIndex));
    if (block.Raw(7) == 1 && rec.Alarm_Rec_Index() == 0) rec.Alarm_Rec_Index.Load(kTurboRate);
  } else if (id.PlexarProModel) {
    block.Byte(0, rec.Rec120sp);
  }
}

}  // namespace quorvel::layout
