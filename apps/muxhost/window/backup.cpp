#include "muxhost/window/backup.h"

#include <QDateTime>
#include <QDir>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"
#include "quorvel/settings_file.h"

namespace quorvel::muxhost {

namespace {

/// A file that is not there yet.
QString NewFileIn(const QDir& folder, QString device) {
  device.replace(QRegularExpression("[^A-Za-z0-9_-]"), "_");
  const QString stem = device + QDateTime::currentDateTime().toString("-yyyyMMdd-HHmmss");
  QString file = stem + ".bin";
  for (int i = 2; folder.exists(file); ++i)
    file = QString("%1-%2.bin").arg(stem, QString::number(i));
  return folder.filePath(file);
}

}  // namespace

BackupDialog::BackupDialog(HostSession& session, QWidget* parent)
    : QDialog(parent), reader_(session.NewReader()), progress_(new QProgressBar) {
  constexpr int kPatience = 3000;
  setObjectName("Backup");
  setWindowTitle(Tr("Backup"));
  auto* const column = new QVBoxLayout(this);
  column->addWidget(new QLabel(Tr("The device's configuration is read, to be kept in a file.")));
  column->addWidget(progress_);
  auto* const cancel = new QPushButton(Tr("Cancel"));
  cancel->setToolTip(Tr("Neither a backup nor the upload"));
  column->addWidget(cancel, 0, Qt::AlignRight);
  QObject::connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
  progress_->setRange(0, 0);
  patience_.setSingleShot(true);
  patience_.setInterval(kPatience + session.Settings().latency_ms);
  QObject::connect(&patience_, &QTimer::timeout, this,
                   [this] { Fail(Tr("the device has not answered")); });
  reader_->on_progress = [this](int blocks, int of) {
    progress_->setRange(0, of);
    progress_->setValue(blocks);
    patience_.start();
  };
  reader_->on_done = [this](const std::vector<Byte>& bytes) {
    bytes_ = bytes;
    accept();
  };
  reader_->on_failed = [this](const std::string& reason) {
    Fail(Reason(QString::fromStdString(reason)));
  };
}

std::optional<std::vector<Byte>> BackupDialog::Read() {
  patience_.start();
  // From within the loop: a link that answers at once ends it.
  QMetaObject::invokeMethod(
      this, [this] { reader_->Start(); }, Qt::QueuedConnection);
  exec();
  return bytes_;
}

void BackupDialog::Fail(const QString& why) {
  failure_ = why;
  reject();
}

BackupResult BackUpDevice(QtPlatform& platform, HostSession& session, const QString& folder,
                          QWidget* window) {
  using Outcome = BackupResult::Outcome;
  BackupDialog dialog(session, window);
  const auto bytes = dialog.Read();
  if (dialog.Cancelled()) return {Outcome::kCancelled, {}};
  if (!bytes) return {Outcome::kFailed, dialog.Failure()};
  if (!QDir().mkpath(folder)) {
    return {Outcome::kFailed, Tr("the folder %1 cannot be made").arg(folder)};
  }
  const QString file = NewFileIn(QDir(folder), NameOf(session.Device(), platform));
  try {
    platform.StoreFile(file.toStdString(), *bytes);
  } catch (const PlatformError& error) {
    return {Outcome::kFailed, QString::fromStdString(error.what())};
  }
  const bool restorable = bytes->size() < kRestoreLimit;
  return {restorable ? Outcome::kWritten : Outcome::kTooLongToRestore,
          Tr("%1 bytes in %2").arg(bytes->size()).arg(file)};
}

}  // namespace quorvel::muxhost
