#include "apps/muxhost/window_next_step.h"

namespace quorvel::muxhost {

namespace {

QString Blocks(std::size_t count) {
  return QString("%1 block%2").arg(count).arg(count == 1 ? "" : "s");
}

NextStep StepToWrite(const Situation& situation) {
  const bool listed = situation.commands.modified && !situation.only_macros;
  const QString all = situation.only_macros ? "Upload all, with macros" : "Upload all";
  const QString how = QString(" Next: %1.").arg(listed ? "Upload modified" : all);
  const QString what = situation.failed > 0
                           ? Blocks(situation.failed) + " failed."
                           : Blocks(situation.unwritten) + " modified and not in the device yet.";
  return {what + how, listed ? Command::kUploadModified : Command::kUploadAll};
}

}  // namespace

NextStep NextStepIn(const Situation& situation) {
  const CommandBox::State& state = situation.commands;
  if (state.locked) return {"Finish the transfer or the question that is open.", {}};
  if (state.waiting) return {"Waiting for the device.", {}};
  if (state.others_open) {
    return {"Next: change what you like; OK takes it over, and the map shows its blocks.", {}};
  }
  if (!state.link_on) return {"Next: switch the link on (Host, at the left).", {}};
  if (!state.loaded)
    return {"Next: Download reads the device's configuration.", Command::kDownload};
  if (situation.unwritten > 0 || situation.failed > 0) return StepToWrite(situation);
  if (situation.verified > 0) {
    return {Blocks(situation.verified) + " verified: the device holds what was sent.",
            Command::kMenu};
  }
  return {"Next: Menu opens the editors, such as those of the cameras.", Command::kMenu};
}

}  // namespace quorvel::muxhost
