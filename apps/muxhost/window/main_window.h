#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QTimer>

#include "muxhost/host_session.h"
#include "muxhost/window/backup_box.h"
#include "muxhost/window/block_map.h"
#include "muxhost/window/command_box.h"
#include "muxhost/window/device_picker.h"
#include "muxhost/window/event_log.h"
#include "muxhost/window/file_menu.h"
#include "muxhost/window/find_box.h"
#include "muxhost/window/host_options.h"
#include "muxhost/window/link_box.h"
#include "muxhost/window/memory.h"
#include "muxhost/window/next_step.h"
#include "muxhost/window/silence_watch.h"
#include "muxhost/window/upload.h"
#include "muxhost/window/zone_editor.h"
#include "quorvel/qt_control_surface.h"
#include "quorvel/qt_platform.h"

namespace quorvel::muxhost {

/// The host's window: the device, the control, its commands, and what crosses the link. While the
/// dialog of a transfer is open the user cannot close the window: the window system does not
/// deliver it. Closed then by other means, such as the end of the desktop's session, it ends the
/// transfer.
class MainWindow : public QMainWindow {
 public:
  /// Both must outlive the window.
  /// `kept` is what is remembered between runs; without it nothing is.
  MainWindow(QtPlatform& platform, HostSession& session, std::unique_ptr<QSettings> kept = nullptr);
  ~MainWindow() override;

  /// Where the device's configuration is kept before an upload.
  [[nodiscard]] BackupBox& Backups() { return *backups_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  /// Return presses the default button where nothing in the window has the focus.
  void keyPressEvent(QKeyEvent* event) override;
  /// A settings file that is dropped is opened.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void AttachToSession();
  void AttachFiles();
  /// The window's title tells how far a transfer has come: the window may be small, or behind.
  void ShowProgress(int done, int total);
  // What is kept between runs: the device chosen last, and where things are.
  void RememberDevice();
  void RememberPlaces();
  void NotePlaces();
  [[nodiscard]] QWidget* MakeLeftSide();
  [[nodiscard]] QWidget* MakeRightSide();
  void PlaceSurface();

  void Connect();
  /// The device does not match the settings that are open: asks whether to go on without these.
  [[nodiscard]] bool MayGoOnWithout(const std::string& mismatch);
  void NoteConnected(const QString& what, const DevicePicker& chosen);
  /// Asks which device; false when none is connected after that.
  [[nodiscard]] bool AskForDevice();
  /// Another control comes: nothing is known of it.
  void LeaveControl();
  void Do(Command command);
  /// Gives the session a command, which may run a loop of its own.
  void Run(void (HostSession::*command)());
  /// Notes whether the command that was to bring a configuration has.
  void NoteOutcome();
  /// The same for one whose answer may come after it has returned. Until it is there nothing can be
  /// edited, as the answer would replace it.
  void RunUntilAnswered(void (HostSession::*command)());
  /// Ends that when the answer has come, or none will.
  void NoticeAnswer();
  /// What an answer may take.
  [[nodiscard]] int Patience() const;
  void Download();
  void BuildDefaults();
  void EditZones(int cameras);

  /// Asks before changes are lost that the device has not got, or that are still in an editor; true
  /// when they may be.
  [[nodiscard]] bool MayLoseChanges(const QString& by);
  void ShowLog();
  void ShowState();
  [[nodiscard]] Situation PresentSituation() const;
  void AddEditMenu();
  void ReviewChanges();
  void OpenAt(const SettingPosition& at);
  void AddFinding(QMenu& edit);
  void ShowSteps();

  QtPlatform& platform_;
  HostSession& session_;
  DevicePicker* const picker_;
  HostOptions* const options_;
  BackupBox* const backups_;
  LinkBox* const link_;
  CommandBox* const commands_;
  ControlSurfaceWidget* surface_ = nullptr;
  QLabel* const hint_;
  BlockMapBox* const blocks_;
  EventLog* const log_;
  FindBox* const find_;
  QLabel* const identity_;
  Memory memory_;
  FileMenu* const files_;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  QAction* review_ = nullptr;
  QPointer<ZoneEditor> zones_;
  QSplitter* const rows_;
  QSplitter* const below_;
  QTimer watch_;
  QTimer zones_request_;
  std::optional<TransferPace> pace_;  ///< of the transfer that is under way
  SilenceWatch silence_;
  Uploader uploader_;
  int zones_wanted_ = 0;           ///< cameras
  bool loaded_ = false;            ///< the control holds a configuration
  std::optional<Command> asked_;   ///< given last, and to bring a configuration
  std::optional<Command> missed_;  ///< given last, and has brought none
  bool transfer_runs_ = false;     ///< a command that exchanges data with the device
  bool awaits_answer_ = false;     ///< of a command that has returned
  bool closing_ = false;           ///< the user is being asked whether to
};

}  // namespace quorvel::muxhost
