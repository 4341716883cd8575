#include "muxhost/window/backup_box.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

BackupBox::BackupBox(QWidget* parent)
    : QGroupBox(Tr("Before each upload"), parent),
      review_(new QCheckBox(Tr("Show what goes"))),
      wanted_(new QCheckBox(Tr("Back up the device"))),
      folder_(new QLineEdit),
      change_(new QPushButton(Tr("Folder..."))) {
  review_->setChecked(true);
  review_->setToolTip(
      Tr("Lists the changes, in the words of the editors, and lets you take them back"));
  wanted_->setChecked(true);
  wanted_->setToolTip(Tr("Restore file brings a backup back"));
  folder_->setReadOnly(true);
  folder_->setAccessibleName(Tr("Backup folder"));
  change_->setToolTip(Tr("Chooses where backups are kept"));
  auto* const column = new QVBoxLayout(this);
  column->addWidget(review_);
  column->addWidget(wanted_);
  auto* const row = new QHBoxLayout;
  row->addWidget(folder_, 1);
  row->addWidget(change_);
  column->addLayout(row);
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  SetFolder((documents.isEmpty() ? QDir::homePath() : documents) + "/muxhost backups");
  QObject::connect(change_, &QPushButton::clicked, this, [this] { AskForFolder(); });
}

void BackupBox::SetFolder(const QString& folder) {
  folder_->setText(QDir::toNativeSeparators(folder));
  folder_->setToolTip(folder_->text());
  folder_->setCursorPosition(0);
}

void BackupBox::AskForFolder() {
  const QString folder =
      QFileDialog::getExistingDirectory(window(), Tr("Where backups are kept"), Folder());
  if (!folder.isEmpty()) SetFolder(folder);
}

}  // namespace quorvel::muxhost
