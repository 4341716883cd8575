#include "muxhost/window/memory.h"

#include <QDir>
#include <QFileInfo>

namespace quorvel::muxhost {

namespace {

constexpr int kMostRecent = 8;
const QString kRecentFiles = "recentFiles";

QString FolderKey(const QString& purpose) { return "folders/" + purpose; }

}  // namespace

QVariant Memory::Value(const QString& key) const {
  return kept_ != nullptr ? kept_->value(key) : values_.value(key);
}

void Memory::SetValue(const QString& key, const QVariant& value) {
  if (kept_ != nullptr) {
    kept_->setValue(key, value);
  } else {
    values_.insert(key, value);
  }
}

QStringList Memory::RecentFiles() const {
  return Value(kRecentFiles).toStringList().mid(0, kMostRecent);
}

void Memory::AddRecent(const QString& path) {
  const QString whole = QFileInfo(path).absoluteFilePath();
  DropRecent(whole);
  SetValue(kRecentFiles, (QStringList{whole} + RecentFiles()).mid(0, kMostRecent));
}

void Memory::DropRecent(const QString& path) {
  QStringList files = RecentFiles();
  if (files.removeAll(QFileInfo(path).absoluteFilePath()) > 0) SetValue(kRecentFiles, files);
}

QString Memory::Folder(const QString& purpose) const {
  const QString folder = Value(FolderKey(purpose)).toString();
  return QDir(folder).exists() ? folder : QString();
}

void Memory::NoteFolderOf(const QString& purpose, const QString& path) {
  SetValue(FolderKey(purpose), QFileInfo(path).absolutePath());
}

}  // namespace quorvel::muxhost
