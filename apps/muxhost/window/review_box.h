#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <vector>

#include "muxhost/host_session.h"
#include "quorvel/review.h"

namespace quorvel::muxhost {

/// What differs from the device, editor by editor: where, what it was and is, and its blocks. Each
/// line can be taken back, and opened in its editor, with the keyboard alone.
class ReviewBox : public QDialog {
 public:
  /// What is about to be sent; nothing when the user only looks.
  struct Sending {
    bool all = false;
    QString along;  ///< what else goes, or does not, a line each
  };
  ReviewBox(HostSession& session, const std::optional<Sending>& sending, QWidget* parent);

  /// The line whose editor the user wants, once the box is closed.
  [[nodiscard]] const std::optional<SettingPosition>& Wanted() const { return wanted_; }

 private:
  [[nodiscard]] QLayout* MakeButtons(bool sends);
  void ShowLines();
  /// Lists blocks that go although nothing in them differs, and settings that stay behind.
  void ShowSummary();
  void TakeBack();
  void OpenChosen();
  /// The line that is chosen, or a null pointer.
  [[nodiscard]] const ReviewLine* Chosen() const;
  void ShowChosen();

  HostSession& session_;
  const std::optional<Sending> sending_;
  QLabel* const summary_;
  QTreeWidget* const tree_;
  QPushButton* const take_back_;
  QPushButton* const open_;
  QPushButton* const send_;
  std::vector<ReviewLine> lines_;
  std::optional<SettingPosition> wanted_;
};

}  // namespace quorvel::muxhost
