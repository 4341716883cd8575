#pragma once

#include "core/layout/alarms_layout.h"
#include "core/layout/cameras_layout.h"
#include "core/layout/general_layout.h"
#include "core/layout/notification_layout.h"
#include "core/layout/recording_layout.h"
#include "core/layout/schedules_layout.h"

namespace quorvel::layout {

/// Which block holds what: the one place that ties block numbers to settings, in rising order. A
/// walk visits the blocks that it wants with a pass of its own:
///
///     walk.Block(n, visit)               visit(pass) for block n
///     walk.Blocks(first, count, visit)   visit(pass, i) for block first + i
///
/// Blocks that carry no setting of the model are not mentioned for it.
template <class Walk>
void DescribeBlocks(Walk& walk, MuxData& rec, Identity& id) {
  auto& cameras = rec.AllCameras();
  auto& actions = rec.AllActions();
  auto& events = rec.AllEvents();
  const auto at = [](auto& elements, int i) -> auto& {
    return elements[static_cast<std::size_t>(i)];
  };

  walk.Blocks(1, id.MaxCam,
              [&](auto& block, int c) { block.PaddedText(0, kTitleLength, at(cameras, c).title); });
  walk.Block(33, [&](auto& block) { AlarmInputs(block, rec); });
  walk.Block(34, [&](auto& block) { MacroLinks(block, rec); });
  walk.Block(36, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Display0)); });
  walk.Block(38, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Display1)); });
  walk.Block(40, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Display2)); });
  walk.Block(42, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Display3)); });
  walk.Block(44, [&](auto& block) { RelaysAndQuality(block, rec, id); });
  walk.Block(45, [&](auto& block) { ExternalActionsOrMonitors(block, rec, id); });
  if (id.IsTriplexMatrix()) {
    walk.Block(46, [&](auto& block) { block.CameraBytes(Each(rec.MatrixInfo.GroupSetup)); });
  }
  walk.Block(47, [&](auto& block) { SignalGain(block, rec, id); });
  walk.Block(48, [&](auto& block) { VideoLossActions(block, rec); });
  walk.Block(49, [&](auto& block) { ActivityAndCovert(block, rec, id); });
  walk.Block(50,
             [&](auto& block) { block.CameraNibbles(0, Each(cameras, &Cameras::Sensitivity)); });
  walk.Block(51, [&](auto& block) { RateAndRejection(block, rec); });
  walk.Block(52, [&](auto& block) { block.Bytes(0, kMostCameras, Each(cameras, &Cameras::size)); });
  walk.Block(54,
             [&](auto& block) { block.Bytes(0, kMostCameras, Each(cameras, &Cameras::LnkALM)); });
  const auto for_events = [&](auto& block, auto setting) {
    block.Bytes(0, kMostCameras, Each(events, setting));
  };
  if (id.HasEventRecording()) {
    walk.Block(56, [&](auto& block) { EventSettings(block, rec); });
    walk.Block(57, [&](auto& block) { for_events(block, &clsEvents::PostEvDuration); });
    walk.Block(58, [&](auto& block) { for_events(block, &clsEvents::Event_RRIndex); });
  } else {
    walk.Block(56, [&](auto& block) { block.Bytes(0, kBlockSize, Each(rec.RecSeqLst, 0)); });
    walk.Block(57, [&](auto& block) { block.Bytes(0, kBlockSize, Each(rec.RecSeqLst, 16)); });
    walk.Block(58, [&](auto& block) { block.Bytes(0, 8, Each(rec.RecSeqLst, 32)); });
  }
  walk.Block(59, [&](auto& block) { DisplaysAndAlarmMode(block, rec, id); });
  walk.Block(60, [&](auto& block) { VcrOrRecorder(block, rec, id); });
  walk.Block(61, [&](auto& block) { Clock(block, rec, id); });
  if (id.HasEventRecording()) {
    walk.Block(62, [&](auto& block) { for_events(block, &clsEvents::TL_RRIndex); });
    walk.Block(63, [&](auto& block) { for_events(block, &clsEvents::Act_RRIndex); });
  }
  walk.Blocks(64, 5, [&](auto& block, int i) { TimedMacros(block, 4 * i, rec); });
  walk.Blocks(69, id.MaxCam, [&](auto& block, int c) { SubMacro(block, c, rec, id); });
  walk.Blocks(85, 2 * id.MaxCam, [&](auto& block, int i) {
    block.Bytes(0, kBlockSize, Each(at(cameras, i / 2).ActGrid, i % 2 * kBlockSize));
  });
  walk.Block(149, [&](auto& block) { RelayAndTextPosition(block, rec); });
  walk.Block(182, [&](auto& block) { VideoLoss(block, rec, id); });
  walk.Block(183, [&](auto& block) { VariantAndPlayback(block, rec, id); });
  walk.Block(184, [&](auto& block) { ColorAndTelemetry(block, rec, id); });
  walk.Block(kIdentityBlock, [&](auto& block) { DeviceIdentity(block, rec, id); });
  walk.Block(186, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Preset0)); });
  walk.Block(188, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Preset1)); });
  walk.Block(190, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Preset2)); });
  walk.Block(192, [&](auto& block) { block.CameraBytes(Each(actions, &AlmAction::Preset3)); });
  if (id.IsTriplex()) {
    walk.Blocks(195, 5, [&](auto& block, int i) { RecTimers(block, 2 * i, rec); });
  }
  const auto text = [&](auto& block, int i) {
    block.ZeroEndedText(0, kBlockSize, rec.AlmEmailNotify.texts[i]);
  };
  walk.Block(200, [&](auto& block) { NotificationPorts(block, rec, id); });
  walk.Blocks(201, 12, text);
  walk.Block(213, [&](auto& block) { NotificationHosts(block, rec, id); });
  walk.Blocks(214, 3, [&](auto& block, int i) { EventAssociations(block, i, rec); });
  walk.Block(217, [&](auto& block) { TimeServers(block, rec); });
  walk.Block(219, [&](auto& block) { Turbo(block, rec, id); });
  walk.Blocks(220, 6, [&](auto& block, int i) { text(block, 12 + i); });
}

}  // namespace quorvel::layout
