#include "muxhost/window/upload.h"

#include <QPushButton>
#include <algorithm>
#include <set>

#include "muxhost/review_text.h"
#include "muxhost/window/backup.h"
#include "muxhost/window/plain_box.h"
#include "muxhost/window/review_box.h"
#include "muxhost/window/send_choice.h"
#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

/// The settings in blocks that the device has not, or not as sent, as the dialogs call them.
QString InBlocksThatFailed(HostSession& session) {
  const Exchange& upload = session.LastExchange();
  std::set<Byte> failed;
  if (upload.unanswered) failed.insert(*upload.unanswered);
  if (upload.read_back) {
    failed.insert(upload.read_back->differ.begin(), upload.read_back->differ.end());
  }
  QStringList lines;
  for (const SettingRow& row : session.Control().AllSettings()) {
    const bool is_there =
        std::ranges::any_of(row.blocks, [&](Byte block) { return failed.contains(block); });
    if (is_there) lines << QString::fromStdString(InWords(row, std::nullopt));
  }
  return lines.join('\n');
}

}  // namespace

void Uploader::Upload(bool all, bool macros) {
  if (!at_.session.HasDevice() && !connect()) return;
  // The control compares before it opens its dialog, and tells the two: nothing is read before.
  if (!at_.session.Control().DeviceMismatch().empty()) return run();
  if (at_.backups.ReviewWanted() && !MayGo(all, macros)) return;
  if (all && !MayLeaveOut()) return;
  if (!MayBring(WhatGoesAlong(at_.session, all, macros, at_.platform.Now(), Say))) return;
  if (at_.backups.Wanted() && !BackUp()) return;
  do {
    SendChoice choice(all, macros);
    choice.may_send = [this](bool now_all, bool now_macros) {
      return MayBringAfterAll(now_all, now_macros);
    };
    at_.silence.Begin(
        SilenceWatch::kUsualPatience + at_.session.Settings().latency_ms,
        [this] { return at_.session.LastExchange().unanswered.has_value(); },
        Tr("The device has not acknowledged a block: STOP and START send again."));
    run();
    at_.silence.End();
  } while (WantsToSendAgain());
}

bool Uploader::MayGo(bool all, bool macros) {
  const LocalTime now = at_.platform.Now();
  const GoingAlong along = WhatGoesAlong(at_.session, all, macros, now);
  QStringList lines;
  if (along.clock_goes) lines << QString::fromStdString(ClockInWords(along.clock, now, Say));
  if (!along.ports.empty()) lines << QString::fromStdString(PortsInWords(along.ports, Say));
  const QString lacking = all ? LackingInWords(at_.session.LackingBlocks()) : QString();
  if (!lacking.isEmpty()) lines << lacking;
  ReviewBox box(at_.session, ReviewBox::Sending{all, lines.join('\n')}, &at_.window);
  const bool goes = box.exec() == QDialog::Accepted && at_.window.isVisible();
  if (!goes && box.Wanted() && open) open(*box.Wanted());
  return goes;
}

bool Uploader::MayLeaveOut() {
  const QString lacking = LackingInWords(at_.session.LackingBlocks());
  if (lacking.isEmpty()) return true;
  // An array may be as long as the device has said, and filled up.
  const QString fate = at_.session.Device().IsCombined()
                           ? Tr("They get zero bytes, if anything. Upload the rest?")
                           : Tr("They keep what they hold. Upload the rest?");
  return MayGoOn(lacking, fate, Tr("Upload the rest"));
}

bool Uploader::MayBring(const GoingAlong& along) {
  if (!along.ports.empty() &&
      !MayGoOn(QString::fromStdString(PortsInWords(along.ports, Say)),
               Tr("If the link uses one of them, the device cannot be reached any more once it has "
                  "taken the change, and nothing here can take it back. Upload all the same?"),
               Tr("Upload"))) {
    return false;
  }
  return !along.clock_goes || MayBringClock(along.clock);
}

/// The blocks are encoded by now: the computer's time cannot be taken any more.
bool Uploader::MayBringAfterAll(bool all, bool macros) {
  const LocalTime now = at_.platform.Now();
  const GoingAlong along = WhatGoesAlong(at_.session, all, macros, now);
  std::string trouble = along.ports.empty() ? "" : PortsInWords(along.ports, Say);
  if (along.clock_goes) {
    trouble += (trouble.empty() ? "" : "\n") + ClockInWords(along.clock, now, Say);
  }
  return trouble.empty() ||
         MayGoOn(QString::fromStdString(trouble), Tr("Send it all the same?"), Tr("Send it"));
}

bool Uploader::MayBringClock(const std::optional<LocalTime>& clock) {
  if (!at_.window.isVisible()) return false;
  PlainBox box(QMessageBox::Question,
               QString::fromStdString(ClockInWords(clock, at_.platform.Now(), Say)),
               QMessageBox::Cancel, &at_.window);
  box.setInformativeText(
      Tr("The device sets its clock to what is sent. It can be given the time of this computer "
         "instead."));
  auto* const pc_time = box.addButton(Tr("Use this computer's time"), QMessageBox::AcceptRole);
  const auto* const as_it_is = box.addButton(Tr("Send it as it is"), QMessageBox::AcceptRole);
  box.setDefaultButton(pc_time);
  box.exec();
  if (!at_.window.isVisible()) return false;
  if (box.clickedButton() == pc_time) at_.session.Control().UsePcTime(true);
  return box.clickedButton() == pc_time || box.clickedButton() == as_it_is;
}

bool Uploader::BackUp() {
  const BackupResult backup =
      BackUpDevice(at_.platform, at_.session, at_.backups.Folder(), &at_.window);
  switch (backup.outcome) {
    case BackupResult::Outcome::kWritten:
      at_.log.Tell(Tr("Backup of the device: %1.").arg(backup.told));
      return at_.window.isVisible();
    case BackupResult::Outcome::kTooLongToRestore:
      at_.log.Tell(Tr("Backup of the device, too long to be restored: %1.").arg(backup.told));
      return MayGoOn(
          Tr("The backup of the device is too long to be restored: %1.").arg(backup.told),
          Tr("Files of 32768 bytes or more are kept, but cannot be restored. Upload all "
             "the same?"),
          Tr("Upload"));
    case BackupResult::Outcome::kCancelled:
      at_.log.Tell(Tr("The backup was cancelled: nothing is uploaded."));
      return false;
    case BackupResult::Outcome::kFailed: break;
  }
  at_.log.Tell(Tr("No backup of the device: %1.").arg(backup.told));
  return MayGoOn(Tr("There is no backup of the device: %1.").arg(backup.told),
                 Tr("Upload without one?"), Tr("Upload without backup"));
}

bool Uploader::MayGoOn(const QString& trouble, const QString& question, const QString& go_on) {
  if (!at_.window.isVisible()) return false;
  PlainBox box(QMessageBox::Warning, trouble, QMessageBox::Cancel, &at_.window);
  box.setInformativeText(question);
  const auto* const on = box.addButton(go_on, QMessageBox::AcceptRole);
  box.setDefaultButton(QMessageBox::Cancel);
  box.exec();
  return box.clickedButton() == on && at_.window.isVisible();
}

bool Uploader::WantsToSendAgain() {
  const Exchange& exchange = at_.session.LastExchange();
  const bool by_blocks = exchange.array_bytes == 0 && !exchange.sent_blocks.empty();
  if (by_blocks && !exchange.end_written) {
    at_.log.Tell(exchange.unanswered
                     ? Tr("The upload has not come to its end: block %1 was not acknowledged.")
                           .arg(*exchange.unanswered)
                     : Tr("The upload has not come to its end."));
  }
  const QString trouble = WhatWentWrong(exchange);
  if (trouble.isEmpty() || !at_.window.isVisible()) return false;
  PlainBox box(QMessageBox::Warning, trouble, QMessageBox::Close, &at_.window);
  if (!at_.session.LinkIsOn()) {
    box.setInformativeText(Tr("The link to the device is off. Switch it on, then upload again."));
    box.exec();
    return false;
  }
  box.setInformativeText(Tr("Send again?"));
  box.setDetailedText(InBlocksThatFailed(at_.session));
  const auto* const again = box.addButton(Tr("Send again"), QMessageBox::AcceptRole);
  box.exec();
  return box.clickedButton() == again && at_.window.isVisible();
}

}  // namespace quorvel::muxhost
