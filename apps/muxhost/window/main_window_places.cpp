// Where the things of the host's window are, from one run to the next.
#include "muxhost/window/main_window.h"

namespace quorvel::muxhost {

namespace {

const QString kBackupFolder = "folders/backups";
const QString kGeometry = "window/geometry";
const QString kState = "window/state";
const QString kRows = "window/rows";
const QString kBelow = "window/below";

}  // namespace

void MainWindow::RememberPlaces() {
  const QString folder = memory_.Value(kBackupFolder).toString();
  if (!folder.isEmpty()) backups_->SetFolder(folder);
  restoreGeometry(memory_.Value(kGeometry).toByteArray());
  restoreState(memory_.Value(kState).toByteArray());
  rows_->restoreState(memory_.Value(kRows).toByteArray());
  below_->restoreState(memory_.Value(kBelow).toByteArray());
}

void MainWindow::NotePlaces() {
  memory_.SetValue(kBackupFolder, backups_->Folder());
  memory_.SetValue(kGeometry, saveGeometry());
  memory_.SetValue(kState, saveState());
  memory_.SetValue(kRows, rows_->saveState());
  memory_.SetValue(kBelow, below_->saveState());
}

}  // namespace quorvel::muxhost
