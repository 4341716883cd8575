#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <optional>
#include <vector>

#include "muxhost/host_session.h"
#include "muxhost/window/zone_grid.h"

namespace quorvel::muxhost {

/// The host's editor of the cameras' activity grids. It marks cameras that do not detect motion,
/// whose zones mean nothing until they do. OK hands the grids that were changed to the
/// control; before that the control knows nothing of the changes.
class ZoneEditor : public QDialog {
 public:
  /// For cameras 1 to `cameras`. The session must outlive the editor.
  ZoneEditor(HostSession& session, int cameras, QWidget* parent);

  void accept() override;
  /// Cancel, Escape and the window's own close button: asks before changes are lost.
  void reject() override;
  /// Closes without a question; nothing is handed to the control.
  void Abandon() { QDialog::reject(); }
  /// The numbers of the cameras, from 1, whose grids were changed.
  [[nodiscard]] std::vector<Byte> Changed() const;

 private:
  struct Camera {
    ZoneCells from_control;
    ZoneCells cells;
    std::vector<ZoneCells> before;  ///< one for each change that can be undone
  };

  [[nodiscard]] QWidget* MakeCameraSide();
  [[nodiscard]] QWidget* MakeGridSide();
  [[nodiscard]] QLayout* MakeEndButtons();
  /// The grid of the chosen camera, read from the control when it is first asked for; a null
  /// pointer when the control has no such camera.
  [[nodiscard]] Camera* Chosen();
  void ShowChosen();
  void ShowCells();
  void ShowName(int number, bool changed);
  /// The cells on screen were changed for the chosen camera.
  void TakeChange(const ZoneCells& before);
  void Fill(bool active);
  void Undo();

  /// "Camera 3  Front door"
  [[nodiscard]] QString NameOf(int camera) const;

  HostSession& session_;
  std::vector<std::optional<Camera>> grids_;
  QListWidget* const cameras_;
  ZoneGrid* const grid_;
  QLabel* const count_;
  QLabel* const without_motion_;
  QPushButton* const all_;
  QPushButton* const none_;
  QPushButton* const undo_;
};

}  // namespace quorvel::muxhost
