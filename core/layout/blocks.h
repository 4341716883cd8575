#pragma once

#include "core/layout/alarms_layout.h"
#include "core/layout/cameras_layout.h"
#include "core/layout/general_layout.h"
#include "core/layout/notification_layout.h"
#include "core/layout/recording_layout.h"
#include "core/layout/schedules_layout.h"

namespace quorvel::layout {

/// What block `number` holds on the model of `id`: the one place that ties block numbers to the
/// descriptions beside this file. Blocks that carry no setting of the model are left alone.
template <class Pass>
void Describe(Pass& block, int number, MuxData& rec, Identity& id) {
  if (number <= id.MaxCam) {
    return Title(block, rec.AllCameras().at(static_cast<std::size_t>(number - 1)));
  }
  if (number >= 69 && number < 69 + id.MaxCam) return SubMacro(block, number, rec, id);
  if (number >= 85 && number < 85 + 2 * id.MaxCam) return ActivityGrid(block, number, rec);
  if (clsEmailNotify::TextIndex(number)) return EmailText(block, number, rec);
  switch (number) {
    case 33: return AlarmInputs(block, rec);
    case 34: return MacroLinks(block, rec);
    case 36:
    case 38:
    case 40:
    case 42:
    case 186:
    case 188:
    case 190:
    case 192: return DisplaysAndPresets(block, number, rec);
    case 44: return RelaysAndQuality(block, rec, id);
    case 45: return ExternalActionsOrMonitors(block, rec, id);
    case 46: return GroupSetup(block, rec, id);
    case 47: return SignalGain(block, rec, id);
    case 48: return VideoLossActions(block, rec);
    case 49: return ActivityAndCovert(block, rec, id);
    case 50:
    case 51:
    case 52:
    case 54: return MotionDetection(block, number, rec);
    case 56:
    case 57:
    case 58:
      return id.HasEventRecording() ? EventRecording(block, number, rec)
                                    : RecordList(block, number, rec);
    case 59: return DisplaysAndAlarmMode(block, rec, id);
    case 60: return VcrOrRecorder(block, rec, id);
    case 61: return Clock(block, rec, id);
    case 62:
    case 63:
      if (id.HasEventRecording()) EventRecording(block, number, rec);
      return;
    case 64:
    case 65:
    case 66:
    case 67:
    case 68: return TimedMacros(block, number, rec);
    case 149: return RelayAndTextPosition(block, rec);
    case 182: return VideoLoss(block, rec, id);
    case 183: return VariantAndPlayback(block, rec, id);
    case 184: return ColorAndTelemetry(block, rec, id);
    case kIdentityBlock: return ModelName(block, rec);
    case 195:
    case 196:
    case 197:
    case 198:
    case 199:
      if (id.IsTriplex()) RecTimers(block, number, rec);
      return;
    case 200: return NotificationPorts(block, rec, id);
    case 213: return NotificationHosts(block, rec, id);
    case 214:
    case 215:
    case 216: return EventAssociations(block, number, rec);
    case 217: return TimeServers(block, rec);
    case 219: return Turbo(block, rec, id);
    default: return;
  }
}

}  // namespace quorvel::layout
