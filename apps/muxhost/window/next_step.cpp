#include "muxhost/window/next_step.h"

#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

/// Where a configuration comes from that need not be the device's; empty for the device's own.
QString Origin(const Situation& situation) {
  if (situation.origin == ImageOrigin::kSettingsFile) {
    return Tr("The control holds a file's configuration");
  }
  if (situation.origin == ImageOrigin::kFactory)
    return Tr("The control holds the factory defaults");
  return {};
}

/// What such a configuration cannot bring.
QString Lacking(const Situation& situation) {
  const auto& blocks = situation.lacking;
  if (blocks.empty() || Origin(situation).isEmpty()) return {};
  return " " + Tr(blocks.size(), "It has nothing for block %1 of the device.",
                  "It has nothing for blocks %1 of the device.")
                   .arg(InWords(blocks));
}

NextStep StepToWrite(const Situation& situation) {
  // What a file brought need not be listed.
  const bool listed = situation.commands.modified && !situation.only_macros &&
                      (situation.all_listed || Origin(situation).isEmpty());
  const QString all = situation.only_macros ? Tr("Upload all, with macros") : Tr("Upload all");
  const QString how = Tr("Next: %1.").arg(listed ? Tr("Upload modified") : all);
  const QString origin = Origin(situation);
  const auto count = situation.unwritten;
  QString what = Tr(count, "%1 block modified and not in the device yet.",
                    "%1 blocks modified and not in the device yet.")
                     .arg(count);
  if (situation.failed > 0) {
    what = Tr(situation.failed, "%1 block failed.", "%1 blocks failed.").arg(situation.failed);
  } else if (!listed && !origin.isEmpty()) {
    what = Tr(count, "%1: %2 block is not in the device yet.",
              "%1: %2 blocks are not in the device yet.")
               .arg(origin)
               .arg(count) +
           Lacking(situation);
  }
  return {what + " " + how, listed ? Command::kUploadModified : Command::kUploadAll};
}

/// After a command that should have brought a configuration.
NextStep StepAfterNone(const Situation& situation) {
  const QString kept = situation.commands.loaded
                           ? Tr("%1: the control keeps the configuration that it had.")
                           : Tr("%1: the control holds no configuration.");
  switch (*situation.missed) {
    case Command::kRestore: return {kept.arg(Tr("No file was restored")), {}};
    case Command::kDefaults: return {kept.arg(Tr("The factory defaults have not come")), {}};
    default:
      return {kept.arg(Tr("The download has not come to its end")) + " " +
                  Tr("Next: %1.").arg(Tr("Download")),
              Command::kDownload};
  }
}

NextStep StepWithoutDevice(const Situation& situation) {
  if (situation.unsaved) {
    return {Tr("Edited without a device. Next: Save (File menu), or an upload, which asks for the "
               "device."),
            {}};
  }
  return {Tr("Open without a device. Next: Menu opens the editors; an upload asks for the device."),
          Command::kMenu};
}

}  // namespace

NextStep NextStepIn(const Situation& situation) {
  const CommandBox::State& state = situation.commands;
  if (state.locked) return {Tr("Finish the transfer or the question that is open."), {}};
  if (state.waiting) return {Tr("Waiting for the device."), {}};
  if (state.others_open) {
    return {Tr("Next: change what you like; OK takes it over, and the map shows its blocks."), {}};
  }
  if (!state.has_device) return StepWithoutDevice(situation);
  if (!state.link_on) return {Tr("Next: switch the link on (Host, at the left)."), {}};
  if (situation.missed) return StepAfterNone(situation);
  if (!state.loaded)
    return {Tr("Next: Download reads the device's configuration."), Command::kDownload};
  if (situation.unwritten > 0 || situation.failed > 0) return StepToWrite(situation);
  if (situation.verified > 0) {
    return {Tr(situation.verified, "%1 block verified: the device holds what was sent.",
               "%1 blocks verified: the device holds what was sent.")
                .arg(situation.verified),
            Command::kMenu};
  }
  const QString origin = Origin(situation);
  if (!origin.isEmpty()) {
    return {Tr("%1, and the device holds the same.").arg(origin) + Lacking(situation),
            Command::kMenu};
  }
  return {Tr("Next: Menu opens the editors, such as those of the cameras."), Command::kMenu};
}

}  // namespace quorvel::muxhost
