#pragma once

#include <QSettings>
#include <QStringList>
#include <QVariant>
#include <memory>

namespace quorvel::muxhost {

/// What the window remembers from one run to the next.
class Memory {
 public:
  /// Without settings everything is forgotten at the end.
  explicit Memory(std::unique_ptr<QSettings> kept) : kept_(std::move(kept)) {}

  [[nodiscard]] QVariant Value(const QString& key) const;
  void SetValue(const QString& key, const QVariant& value);

  /// Files that were opened or saved, the latest first, with their whole paths; 8 at most.
  [[nodiscard]] QStringList RecentFiles() const;
  void AddRecent(const QString& path);
  void DropRecent(const QString& path);

  /// The folder that was last used for a purpose, as "settings"; empty before the first time, or
  /// when it is not there any more.
  [[nodiscard]] QString Folder(const QString& purpose) const;
  void NoteFolderOf(const QString& purpose, const QString& path);

 private:
  std::unique_ptr<QSettings> kept_;
  QVariantMap values_;  ///< without settings
};

}  // namespace quorvel::muxhost
