#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "apps/muxhost/host_session.h"
#include "apps/muxhost/window_device_picker.h"
#include "apps/muxhost/window_event_log.h"
#include "apps/muxhost/window_host_options.h"
#include "quorvel/qt_control_surface.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {

/// The host's window: the device, the control, its commands, and what crosses the link.
class MainWindow : public QMainWindow {
 public:
  /// Both must outlive the window.
  MainWindow(QtPlatform& platform, HostSession& session);
  ~MainWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  [[nodiscard]] QWidget* MakeLeftSide();
  [[nodiscard]] QWidget* MakeRightSide();
  [[nodiscard]] QGroupBox* MakeControlBox();
  void PlaceSurface();

  void Connect();
  void Download();
  /// How many blocks the device holds differently from the control.
  [[nodiscard]] std::size_t UnsentBlocks();
  /// Asks before changes are lost that the device has not got, or that are still in an editor; true
  /// when they may be.
  [[nodiscard]] bool MayLoseChanges(const QString& by);
  void ShowLog();
  void ShowState();
  void ShowModified();

  QtPlatform& platform_;
  HostSession& session_;
  DevicePicker* const picker_;
  HostOptions* const options_;
  QPushButton* const download_;
  QPushButton* const menu_;
  QPushButton* const upload_;
  QVBoxLayout* const surface_place_;
  ControlSurfaceWidget* surface_ = nullptr;
  QGroupBox* const modified_box_;
  QListWidget* const modified_;
  EventLog* const log_;
  QLabel* const identity_;
  QTimer watch_;
  QStringList shown_modified_;
  bool loaded_ = false;  ///< the control holds the device's configuration
};

}  // namespace quorvel::muxhost
