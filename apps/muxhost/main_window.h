#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "apps/muxhost/host_session.h"
#include "apps/muxhost/window_command_box.h"
#include "apps/muxhost/window_device_picker.h"
#include "apps/muxhost/window_event_log.h"
#include "apps/muxhost/window_host_options.h"
#include "apps/muxhost/window_link_box.h"
#include "apps/muxhost/window_zone_editor.h"
#include "quorvel/qt_control_surface.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {

/// The host's window: the device, the control, its commands, and what crosses the link. Closed in
/// the middle of a transfer it ends the transfer.
class MainWindow : public QMainWindow {
 public:
  /// Both must outlive the window.
  MainWindow(QtPlatform& platform, HostSession& session);
  ~MainWindow() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void AttachToSession();
  [[nodiscard]] QWidget* MakeLeftSide();
  [[nodiscard]] QWidget* MakeRightSide();
  void PlaceSurface();

  void Connect();
  void Do(Command command);
  /// Gives the session a command, which may run a loop of its own.
  void Run(void (HostSession::*command)());
  void Download();
  void Upload();
  void BuildDefaults();
  /// Tells what came of an upload; true when it is to be done again.
  [[nodiscard]] bool WantsToSendAgain();
  void EditZones(int cameras);

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
  LinkBox* const link_;
  CommandBox* const commands_;
  ControlSurfaceWidget* surface_ = nullptr;
  QGroupBox* const modified_box_;
  QListWidget* const modified_;
  EventLog* const log_;
  QLabel* const identity_;
  QPointer<ZoneEditor> zones_;
  QTimer watch_;
  QTimer defaults_patience_;
  QTimer zones_request_;
  QStringList shown_modified_;
  int zones_wanted_ = 0;  ///< cameras
  bool loaded_ = false;   ///< the control holds a configuration
  bool closing_ = false;  ///< the user is being asked whether to
};

}  // namespace quorvel::muxhost
