#pragma once

#include <functional>

#include "muxhost/going_along.h"
#include "muxhost/host_session.h"
#include "muxhost/window/backup_box.h"
#include "muxhost/window/event_log.h"
#include "muxhost/window/silence_watch.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {

/// Uploads as a careful host does: with a backup of the device before, and a question after when
/// the device does not hold what was sent.
class Uploader {
 public:
  /// What it works with; all must outlive it.
  struct Surroundings {
    QtPlatform& platform;
    HostSession& session;
    QWidget& window;
    BackupBox& backups;
    EventLog& log;
    SilenceWatch& silence;
  };
  explicit Uploader(const Surroundings& at) : at_(at) {}

  /// Has the session upload.
  std::function<void()> run;
  /// Opens an editor that the user has asked for instead.
  std::function<void(const SettingPosition& at)> open;

  /// Has the user connect a device, without one; false when there is none after that.
  std::function<bool()> connect;

  /// All blocks, or the modified ones. The choice is made in the send dialog, whose START is the
  /// user's.
  void Upload(bool all, bool macros);

 private:
  /// Shows what goes, and what goes along; false when the user would rather not.
  [[nodiscard]] bool MayGo(bool all, bool macros);
  /// Keeps what the device holds; false when there is to be no upload.
  [[nodiscard]] bool BackUp();
  /// Asks about a clock and ports that go along; false when the user would rather not.
  [[nodiscard]] bool MayBring(const GoingAlong& along);
  /// The same, of more than was chosen before: at START.
  [[nodiscard]] bool MayBringAfterAll(bool all, bool macros);
  /// Offers the computer's time instead.
  [[nodiscard]] bool MayBringClock(const std::optional<LocalTime>& clock);
  /// Asks about blocks that an upload of everything brings nothing for.
  [[nodiscard]] bool MayLeaveOut();
  [[nodiscard]] bool MayGoOn(const QString& trouble, const QString& question, const QString& go_on);
  /// Tells what came of an upload; true when it is to be done again.
  [[nodiscard]] bool WantsToSendAgain();

  Surroundings at_;
};

}  // namespace quorvel::muxhost
