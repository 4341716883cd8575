#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <optional>

#include "muxhost/host_session.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {

/// Reads the device, shows how far that has come, and gives up when no answer comes or the user
/// does not want to wait.
class BackupDialog : public QDialog {
 public:
  BackupDialog(HostSession& session, QWidget* parent);

  /// Returns when it has been read, or will not be: without bytes then.
  [[nodiscard]] std::optional<std::vector<Byte>> Read();
  [[nodiscard]] bool Cancelled() const { return failure_.isEmpty() && !bytes_; }
  /// Why there are no bytes: "the device has not answered".
  [[nodiscard]] const QString& Failure() const { return failure_; }

 private:
  void Fail(const QString& why);

  std::unique_ptr<DeviceReader> reader_;
  QProgressBar* const progress_;
  QTimer patience_;
  std::optional<std::vector<Byte>> bytes_;
  QString failure_;
};

/// What came of a backup.
struct BackupResult {
  enum class Outcome { kWritten, kTooLongToRestore, kCancelled, kFailed };
  Outcome outcome = Outcome::kFailed;
  QString told;  ///< the file and its size, or why there is none: for a log
};

/// Keeps what the device holds in a new file of the folder, which is made when it is not there. The
/// file has the device's name and the time in its name, and can be restored unless it is too long.
[[nodiscard]] BackupResult BackUpDevice(QtPlatform& platform, HostSession& session,
                                        const QString& folder, QWidget* window);

}  // namespace quorvel::muxhost
