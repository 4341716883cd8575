#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

namespace quorvel::muxhost {

/// What is done before an upload: whether the changes are shown once more, and whether and where
/// the device's configuration is kept.
class BackupBox : public QGroupBox {
 public:
  explicit BackupBox(QWidget* parent = nullptr);

  [[nodiscard]] bool Wanted() const { return wanted_->isChecked(); }
  void SetWanted(bool wanted) { wanted_->setChecked(wanted); }
  [[nodiscard]] bool ReviewWanted() const { return review_->isChecked(); }
  void SetReviewWanted(bool wanted) { review_->setChecked(wanted); }
  /// At first a folder of its own among the user's documents.
  [[nodiscard]] QString Folder() const { return folder_->text(); }
  void SetFolder(const QString& folder);

 private:
  void AskForFolder();

  QCheckBox* const review_;
  QCheckBox* const wanted_;
  QLineEdit* const folder_;
  QPushButton* const change_;
};

}  // namespace quorvel::muxhost
