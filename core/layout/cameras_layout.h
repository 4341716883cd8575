#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Block 47: a byte a camera on triplex models, a nibble a camera on the others.
template <class Pass>
void SignalGain(Pass& block, MuxData& rec, const Identity& id) {
  const auto gain = Each(rec.AllCameras(), &Cameras::SignalGain);
  if (id.IsTriplex()) {
    block.CameraBytes(gain);
  } else {
    block.CameraNibbles(0, gain);
  }
}

/// Block 49: activity detection, and covert cameras, whose bit means the opposite below code 6.
template <class Pass>
void ActivityAndCovert(Pass& block, MuxData& rec, const Identity& id) {
  block.CameraBits(0, Each(rec.ActivityEnable));
  block.CameraBits(4, Each(rec.ActivityType));
  block.CameraBits(8, Each(rec.AllCameras(), &Cameras::covert),
                   id.IsTriplex() ? Sense::kDirect : Sense::kInverted);
}

/// Block 51.
template <class Pass>
void RateAndRejection(Pass& block, MuxData& rec) {
  block.CameraPairs(0, Each(rec.AllCameras(), &Cameras::Rate));
  block.CameraPairs(8, Each(rec.AllCameras(), &Cameras::Reject));
}

/// Block 149.
template <class Pass>
void RelayAndTextPosition(Pass& block, MuxData& rec) {
  block.CameraPairs(0, Each(rec.AllCameras(), &Cameras::Relay));
  block.CameraPairs(8, Each(rec.AllCameras(), &Cameras::TextPos));
}

/// Block 182: what the device reports about itself. Never encoded.
template <class Pass>
void VideoLoss(Pass& block, MuxData& rec, Identity& id) {
  block.CameraBits(4, Each(rec.AllCameras(), &Cameras::VidLoss));
  block.Device(8, id.RecorderKind, "RecorderKind");
}

/// Block 184.
template <class Pass>
void ColorAndTelemetry(Pass& block, MuxData& rec, Identity& id) {
  block.CameraBits(0, Each(rec.AllCameras(), &Cameras::color));
  block.CameraBits(4, Each(rec.TelAC_DC));
  if (id.IsTriplex()) block.CameraBits(8, Each(rec.AllActions(), &AlmAction::GateIntrus));
  block.Device(12, id.ArchOption, "ArchOption");
  block.Byte(13, rec.ArchPortSelect);
}

}  // namespace quorvel::layout
