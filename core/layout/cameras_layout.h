#pragma once

#include "core/layout/items.h"
#include "core/record/mux_data.h"

namespace quorvel::layout {

/// Camera titles: block c + 1 for camera c.
template <class Pass>
void Title(Pass& block, Cameras& camera) {
  if constexpr (Pass::kReading) {
    const auto text = block.Characters(0, kTitleLength);
    const auto first = text.find_first_not_of(' ');
    const auto last = text.find_last_not_of(' ');
    camera.title.Load(first == std::string_view::npos ? std::string_view()
                                                      : text.substr(first, last - first + 1));
  } else {
    block.PutCharacters(0, kTitleLength, camera.title(), ' ');
  }
}

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
  block.Device(8, id.RecorderKind);
}

/// Block 49: activity detection, and covert cameras, whose bit means the opposite below code 6.
template <class Pass>
void ActivityAndCovert(Pass& block, MuxData& rec, const Identity& id) {
  block.CameraBits(0, Each(rec.ActivityEnable));
  block.CameraBits(4, Each(rec.ActivityType));
  block.CameraBits(8, Each(rec.AllCameras(), &Cameras::covert),
                   id.IsTriplex() ? Sense::kDirect : Sense::kInverted);
}

/// Blocks 50 to 54: motion detection parameters.
template <class Pass>
void MotionDetection(Pass& block, int number, MuxData& rec) {
  auto& cameras = rec.AllCameras();
  switch (number) {
    case 50: block.CameraNibbles(0, Each(cameras, &Cameras::Sensitivity)); break;
    case 51:
      block.CameraPairs(0, Each(cameras, &Cameras::Rate));
      block.CameraPairs(8, Each(cameras, &Cameras::Reject));
      break;
    case 52: block.Bytes(0, kMostCameras, Each(cameras, &Cameras::size)); break;
    case 54: block.Bytes(0, kMostCameras, Each(cameras, &Cameras::LnkALM)); break;
    default: break;
  }
}

/// Blocks 85 + 2c and 86 + 2c: the motion-detection grid of camera c, 16 bytes each.
template <class Pass>
void ActivityGrid(Pass& block, int number, MuxData& rec) {
  const int place = number - 85;
  auto& grid = rec.AllCameras().at(static_cast<std::size_t>(place / 2)).ActGrid;
  block.Bytes(0, kBlockSize, Each(grid, place % 2 * kBlockSize));
}

/// Block 184.
template <class Pass>
void ColorAndTelemetry(Pass& block, MuxData& rec, Identity& id) {
  block.CameraBits(0, Each(rec.AllCameras(), &Cameras::color));
  block.CameraBits(4, Each(rec.TelAC_DC));
  if (id.IsTriplex()) block.CameraBits(8, Each(rec.AllActions(), &AlmAction::GateIntrus));
  block.Device(12, id.ArchOption);
  block.Byte(13, rec.ArchPortSelect);
}

}  // namespace quorvel::layout
