#pragma once

#include <algorithm>

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Block 33: the last bits say that the camera is enabled.
template <class Pass>
void AlarmInputs(Pass& block, MuxData& rec) {
  block.CameraBits(0, Each(rec.AllAlarms(), &Alarms::Enable));
  block.CameraBits(4, Each(rec.AllAlarms(), &Alarms::InputConf));
  block.CameraBits(8, Each(rec.AllActions(), &AlmAction::Freeze));
  block.CameraBits(12, Each(rec.AllCameras(), &Cameras::disable), Sense::kInverted);
}

/// Block 34: a link to a macro that the device lacks reads as no link.
template <class Pass>
void MacroLinks(Pass& block, MuxData& rec) {
  const auto links = Each(rec.AllAlarms(), &Alarms::MacroLnk);
  block.CameraBytes(links);
  if constexpr (Pass::kReading) {
    for (int k = 0; k < block.Cameras(); ++k) {
      if (links[k]() > block.Cameras()) links[k].Load(0);
    }
  }
}

/// Block 44: alarm relays, and the record quality of every camera except on a multiplexer. Quality
/// is a nibble, at most 8, on devices whose block 45 says so, else a 2-bit field.
template <class Pass>
void RelaysAndQuality(Pass& block, MuxData& rec, const Identity& id) {
  constexpr Byte kBestQuality = 8;
  constexpr int kQualityByte = 8;
  block.Rebuilt(0, kQualityByte);
  block.CameraPairs(0, Each(rec.AllActions(), &AlmAction::Relay));
  if (id.IsMultiplexer()) return;
  block.Elsewhere(45, 13, rec.Extra_Quality_Feature);
  const auto quality = Each(rec.AllCameras(), &Cameras::Compress);
  if (rec.Extra_Quality_Feature() == 0) {
    block.CameraPairs(kQualityByte, quality);
    return;
  }
  if constexpr (Pass::kReading) {
    for (int k = 0; k < block.Cameras(); ++k) {
      Byte packed = block.Raw(kQualityByte + k / 2);
      SetNibble(packed, k % 2, std::min(GetNibble(packed, k % 2), kBestQuality));
      block.Repair(kQualityByte + k / 2, packed);
    }
  }
  block.CameraNibbles(kQualityByte, quality);
}

/// Block 45: external alarm outputs on multiplexers and duplex models; on triplex models the
/// regional settings and monitors, and before them the auxiliary monitors of a matrix.
template <class Pass>
void ExternalActionsOrMonitors(Pass& block, MuxData& rec, const Identity& id) {
  if (!id.IsTriplex()) {
    block.CameraBytes(Each(rec.AllAlarms(), &Alarms::ExtAlmAction));
    return;
  }
  if (id.IsTriplexMatrix()) {
    block.CameraPairs(0, Each(rec.MatrixInfo.AuxMonitor));
    block.Byte(8, rec.MatrixInfo.GroupSwEnable);
  }
  block.Byte(9, rec.TDInfo.DaylightRegion);
  block.Byte(10, rec.TDInfo.TimeZoneIdx);
  block.Byte(11, rec.SVHS_MonB);
  block.Bits(12, rec.PubMonitor);
}

/// Block 48: the reaction to video loss.
template <class Pass>
void VideoLossActions(Pass& block, MuxData& rec) {
  block.CameraBits(0, Each(rec.AllAlarms(), &Alarms::VlRelay1));
  block.CameraBits(4, Each(rec.AllAlarms(), &Alarms::VlRelay2));
  block.CameraBits(8, Each(rec.AllAlarms(), &Alarms::VlBuzzer));
  block.Byte(12, rec.Buzzer[4]);
}

}  // namespace quorvel::layout
