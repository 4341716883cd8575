#include "muxhost/window/next_step.h"

namespace quorvel::muxhost {

namespace {

QString Blocks(std::size_t count) {
  return QString("%1 block%2").arg(count).arg(count == 1 ? "" : "s");
}

/// Where a configuration comes from that need not be the device's; empty for the device's own.
QString Origin(const Situation& situation) {
  if (situation.brought == Command::kRestore) return "The control holds a file's configuration";
  if (situation.brought == Command::kDefaults) return "The control holds the factory defaults";
  return {};
}

/// What such a configuration cannot bring.
QString Lacking(const Situation& situation) {
  if (situation.lacking.isEmpty() || Origin(situation).isEmpty()) return {};
  return QString(" It has nothing for %1 of the device.").arg(situation.lacking);
}

NextStep StepToWrite(const Situation& situation) {
  // What a file brought need not be listed.
  const bool listed = situation.commands.modified && !situation.only_macros &&
                      (situation.all_listed || Origin(situation).isEmpty());
  const QString all = situation.only_macros ? "Upload all, with macros" : "Upload all";
  const QString how = QString(" Next: %1.").arg(listed ? "Upload modified" : all);
  const QString origin = Origin(situation);
  QString what = Blocks(situation.unwritten) + " modified and not in the device yet.";
  if (situation.failed > 0) {
    what = Blocks(situation.failed) + " failed.";
  } else if (!listed && !origin.isEmpty()) {
    what = origin + ": " + Blocks(situation.unwritten) +
           (situation.unwritten == 1 ? " is" : " are") + " not in the device yet." +
           Lacking(situation);
  }
  return {what + how, listed ? Command::kUploadModified : Command::kUploadAll};
}

/// After a command that should have brought a configuration.
NextStep StepAfterNone(const Situation& situation) {
  const QString kept = situation.commands.loaded
                           ? ": the control keeps the configuration that it had."
                           : ": the control holds no configuration.";
  switch (*situation.missed) {
    case Command::kRestore: return {"No file was restored" + kept, {}};
    case Command::kDefaults: return {"The factory defaults have not come" + kept, {}};
    default:
      return {"The download has not come to its end" + kept + " Next: Download.",
              Command::kDownload};
  }
}

NextStep StepWithoutDevice(const Situation& situation) {
  if (situation.unsaved) {
    return {
        "Edited without a device. Next: Save (File menu), or an upload, which asks for the "
        "device.",
        {}};
  }
  return {"Open without a device. Next: Menu opens the editors; an upload asks for the device.",
          Command::kMenu};
}

}  // namespace

NextStep NextStepIn(const Situation& situation) {
  const CommandBox::State& state = situation.commands;
  if (state.locked) return {"Finish the transfer or the question that is open.", {}};
  if (state.waiting) return {"Waiting for the device.", {}};
  if (state.others_open) {
    return {"Next: change what you like; OK takes it over, and the map shows its blocks.", {}};
  }
  if (!state.has_device) return StepWithoutDevice(situation);
  if (!state.link_on) return {"Next: switch the link on (Host, at the left).", {}};
  if (situation.missed) return StepAfterNone(situation);
  if (!state.loaded)
    return {"Next: Download reads the device's configuration.", Command::kDownload};
  if (situation.unwritten > 0 || situation.failed > 0) return StepToWrite(situation);
  if (situation.verified > 0) {
    return {Blocks(situation.verified) + " verified: the device holds what was sent.",
            Command::kMenu};
  }
  const QString origin = Origin(situation);
  if (!origin.isEmpty()) {
    return {origin + ", and the device holds the same." + Lacking(situation), Command::kMenu};
  }
  return {"Next: Menu opens the editors, such as those of the cameras.", Command::kMenu};
}

}  // namespace quorvel::muxhost
