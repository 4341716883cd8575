#include "muxhost/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QUrl>
#include <algorithm>
#include <stdexcept>

#include "muxhost/window/desktop.h"
#include "muxhost/window/interruption.h"
#include "muxhost/window/review_box.h"
#include "muxhost/window/side_area.h"
#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

MainWindow::MainWindow(QtPlatform& platform, HostSession& session, std::unique_ptr<QSettings> kept)
    : platform_(platform),
      session_(session),
      picker_(new DevicePicker(platform)),
      options_(new HostOptions(session.Settings())),
      backups_(new BackupBox),
      link_(new LinkBox),
      commands_(new CommandBox),
      hint_(new QLabel),
      blocks_(new BlockMapBox(session)),
      log_(new EventLog),
      find_(new FindBox(platform, session, this)),
      identity_(new QLabel),
      memory_(std::move(kept)),
      files_(new FileMenu({platform, session, *this, memory_, *log_})),
      rows_(new QSplitter(Qt::Vertical)),
      below_(new QSplitter(Qt::Horizontal)),
      silence_([this](const QString& sentence) {
        log_->Tell(sentence);
        if (std::exchange(awaits_answer_, false)) NoteOutcome();
      }),
      uploader_({platform, session, *this, *backups_, *log_, silence_}) {
  constexpr int kWatchInterval = 150;
  setWindowTitle("muxhost");
  setAcceptDrops(true);
  auto* const sides = new QHBoxLayout;
  sides->addWidget(MakeLeftSide());
  sides->addWidget(MakeRightSide(), 1);
  auto* const body = new QWidget;
  body->setLayout(sides);
  setCentralWidget(body);
  for (QLabel* const label : {hint_, identity_}) label->setTextFormat(Qt::PlainText);
  identity_->setObjectName("Identity");
  statusBar()->addWidget(identity_);

  AddEditMenu();
  platform_.SetHostWindow(this);
  platform_.SetMenuButton(&commands_->MenuButton());
  RememberDevice();
  AttachToSession();
  AttachFiles();
  // Edits raise no event, so the window looks for them.
  QObject::connect(&watch_, &QTimer::timeout, this, [this] { ShowState(); });
  watch_.start(kWatchInterval);
  PlaceSurface();
  ShowLog();
  commands_->FocusDefault();
  const QSize borders(16, 48);
  resize(QSize(1180, 700).expandedTo(sizeHint()).boundedTo(screen()->availableSize() - borders));
  RememberPlaces();
}

void MainWindow::AttachToSession() {
  session_.on_change = [this] { ShowLog(); };
  session_.on_control_leaves = [this] { LeaveControl(); };
  session_.on_progress = [this](int done, int total) { ShowProgress(done, total); };
  session_.interrupt = &Interrupt;
  uploader_.run = [this] { Run(&HostSession::Upload); };
  uploader_.connect = [this] { return AskForDevice(); };
  uploader_.open = [this](const SettingPosition& at) { OpenAt(at); };
  // Not from within the menu's own event.
  session_.on_zones_wanted = [this](int cameras) {
    zones_wanted_ = cameras;
    zones_request_.start();
  };
  zones_request_.setSingleShot(true);
  QObject::connect(&zones_request_, &QTimer::timeout, this, [this] { EditZones(zones_wanted_); });
}

void MainWindow::AttachFiles() {
  files_->may_lose = [this](const QString& by) { return MayLoseChanges(by); };
  files_->on_opened = [this] {
    loaded_ = true;
    PlaceSurface();
    ShowState();
    commands_->FocusDefault();
  };
  // What comes from elsewhere is in no file of the user's.
  session_.on_arrival = [this] { files_->Opened().Forget(); };
}

void MainWindow::ShowProgress(int done, int total) {
  if (total <= 1) {
    pace_.reset();
    return files_->ShowTitle();
  }
  const LocalTime now = platform_.Now();
  if (!pace_) pace_.emplace().Begin(now);
  QString progress = Tr("%1 of %2").arg(done).arg(total);
  if (const auto left = pace_->SecondsLeft(now, done, total)) {
    progress = Tr("%1, %2 s left").arg(progress).arg(*left);
  }
  setWindowTitle(progress + " - muxhost");
}

MainWindow::~MainWindow() {
  session_.on_change = nullptr;
  session_.on_control_leaves = nullptr;
  session_.on_progress = nullptr;
  session_.on_arrival = nullptr;
  session_.interrupt = nullptr;
  session_.on_zones_wanted = nullptr;
}

void MainWindow::AddEditMenu() {
  QMenu* const menu = menuBar()->addMenu(Tr("&Edit"));
  undo_ = menu->addAction(Tr("&Undo"), QKeySequence::Undo, this, [this] {
    session_.Control().Undo();
    ShowState();
  });
  redo_ = menu->addAction(Tr("&Redo"), this, [this] {
    session_.Control().Redo();
    ShowState();
  });
  // As in the editors, beside what the desktop has for it.
  QList<QKeySequence> keys{QKeySequence(Qt::CTRL | Qt::Key_Y)};
  for (const QKeySequence& key : QKeySequence::keyBindings(QKeySequence::Redo)) {
    if (!keys.contains(key)) keys += key;
  }
  redo_->setShortcuts(keys);
  review_ =
      menu->addAction(Tr("Re&view changes..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R),
                      this, [this] { ReviewChanges(); });
  AddFinding(*menu);
}

void MainWindow::ReviewChanges() {
  ReviewBox box(session_, std::nullopt, this);
  box.exec();
  ShowState();
  if (box.Wanted() && isVisible()) OpenAt(*box.Wanted());
}

void MainWindow::OpenAt(const SettingPosition& at) {
  if (!session_.Control().OpenAt(at)) {
    log_->Tell(Tr("The control is not to be seen: %1.").arg(QString::fromStdString(at.control)));
  }
  ShowState();
}

void MainWindow::AddFinding(QMenu& edit) {
  edit.addAction(Tr("&Find..."), QKeySequence::Find, find_, [this] { find_->Begin(); });
  addDockWidget(Qt::BottomDockWidgetArea, find_);
  find_->hide();
  // What is waited for replaces the settings.
  find_->on_open = [this](const SettingPosition& at) {
    return !awaits_answer_ && session_.Control().OpenAt(at);
  };
  find_->name_of_export = [this] { return files_->ProposedName(".csv").toStdString(); };
  find_->on_close = [this] { commands_->FocusDefault(); };
}

/// An editor that is open shows what it has read: nothing is taken back behind it.
void MainWindow::ShowSteps() {
  // What is waited for replaces the settings.
  const bool free = !IsLocked() && !OthersAreOpen(this) && !awaits_answer_;
  const auto show = [free](QAction& action, const QString& verb, const QString& what,
                           const std::string& step) {
    action.setText(step.empty() ? verb : what.arg(QString::fromStdString(step)));
    action.setEnabled(free && !step.empty());
  };
  show(*undo_, Tr("&Undo"), Tr("&Undo \"%1\""), session_.Control().UndoText());
  show(*redo_, Tr("&Redo"), Tr("&Redo \"%1\""), session_.Control().RedoText());
  review_->setEnabled(free && loaded_);
}

QWidget* MainWindow::MakeLeftSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  for (QWidget* const box : std::initializer_list<QWidget*>{picker_, options_, backups_, link_}) {
    column->addWidget(box);
  }
  column->addStretch();
  picker_->on_connect = [this] { Connect(); };
  options_->on_change = [this](const HostSettings& settings) { session_.Configure(settings); };
  options_->on_link = [this](bool on) { session_.SwitchLink(on); };
  link_->on_fault = [this](const std::optional<Fault>& fault) { session_.SetFault(fault); };
  return new SideArea(side);
}

QWidget* MainWindow::MakeRightSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  hint_->setObjectName("Hint");
  hint_->setWordWrap(true);
  QFont bold = hint_->font();
  bold.setBold(true);
  hint_->setFont(bold);
  commands_->on_command = [this](Command command) { Do(command); };
  column->addWidget(commands_);
  auto* const events = new QGroupBox(Tr("Events"));
  (new QVBoxLayout(events))->addWidget(log_);
  const auto divide = [](QSplitter& between, QWidget* first, int share, QWidget* second, int rest) {
    between.setChildrenCollapsible(false);
    between.addWidget(first);
    between.addWidget(second);
    between.setStretchFactor(0, share);
    between.setStretchFactor(1, rest);
  };
  divide(*below_, events, 4, blocks_->ContentsBox(), 3);
  divide(*rows_, blocks_, 5, below_, 3);
  column->addWidget(rows_, 1);
  // The hint is not scrolled away.
  auto* const right = new QWidget;
  auto* const whole = new QVBoxLayout(right);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(hint_);
  whole->addWidget(new MainArea(side), 1);
  return right;
}

void MainWindow::PlaceSurface() {
  surface_ = new ControlSurfaceWidget(session_.Control().Surface(), this);
  commands_->SurfacePlace().addWidget(surface_);
}

void MainWindow::Do(Command command) {
  // What the command before waited for is not waited for any more.
  silence_.End();
  missed_.reset();
  switch (command) {
    case Command::kDownload: return Download();
    case Command::kMenu: return session_.OpenMenu();
    case Command::kZones: return EditZones(session_.Cameras());
    case Command::kUploadModified: return uploader_.Upload(false, commands_->WithMacros());
    case Command::kUploadAll: return uploader_.Upload(true, commands_->WithMacros());
    case Command::kSave: files_->SaveAs(); return ShowState();
    case Command::kRestore:
      if (!MayLoseChanges(Tr("Restoring a file"))) return;
      asked_ = command;
      Run(&HostSession::Restore);
      NoteOutcome();
      return ShowState();
    case Command::kDefaults: return BuildDefaults();
  }
}

void MainWindow::Run(void (HostSession::*command)()) {
  {
    const QScopedValueRollback<bool> runs(transfer_runs_, true);
    (session_.*command)();
  }
  // Whatever became of it: what the control holds now decides what can be done next.
  loaded_ = !session_.Control().Settings().empty();
  ShowState();
  commands_->FocusDefault();
}

void MainWindow::RunUntilAnswered(void (HostSession::*command)()) {
  Run(command);
  awaits_answer_ = true;
  ShowState();
}

void MainWindow::NoticeAnswer() {
  if (!awaits_answer_) return;
  if (!session_.LastExchange().arrived && session_.LinkIsOn()) return;
  awaits_answer_ = false;
  silence_.End();
  NoteOutcome();
}

void MainWindow::NoteOutcome() {
  const auto asked = std::exchange(asked_, std::nullopt);
  if (!session_.LastExchange().arrived) missed_ = asked;
}

int MainWindow::Patience() const {
  const auto& fault = session_.PendingFault();
  const int later = fault && fault->kind == FaultKind::kLate ? fault->delay_ms : 0;
  return SilenceWatch::kUsualPatience + session_.Settings().latency_ms + later;
}

void MainWindow::Download() {
  if (!MayLoseChanges(Tr("Downloading"))) return;
  loaded_ = false;
  asked_ = Command::kDownload;
  const bool with_dialog = session_.Settings().comm_id == 0;
  silence_.Begin(
      Patience(), [this] { return !session_.LastExchange().arrived; },
      with_dialog ? Tr("The device has not answered: close the dialog to break it off.")
                  : Tr("The device has not answered."));
  if (!with_dialog) return RunUntilAnswered(&HostSession::Download);
  Run(&HostSession::Download);
  silence_.End();
  if (!session_.LastExchange().arrived) {
    log_->Tell(Tr("The download has not come to its end: the control keeps what it had."));
  }
  NoteOutcome();
  ShowState();
}

void MainWindow::BuildDefaults() {
  if (!MayLoseChanges(Tr("Taking the factory defaults"))) return;
  asked_ = Command::kDefaults;
  // They are there when the message that says so is closed.
  silence_.Begin(
      Patience(), [this] { return !session_.LastExchange().arrived && !IsLocked(); },
      Tr("The device has not answered: there are no factory defaults."));
  RunUntilAnswered(&HostSession::BuildDefaults);
}

void MainWindow::EditZones(int cameras) {
  if (zones_ == nullptr) {
    zones_ = new ZoneEditor(session_, cameras, this);
    zones_->setAttribute(Qt::WA_DeleteOnClose);
    zones_->setWindowModality(Qt::ApplicationModal);
    QObject::connect(zones_, &QDialog::finished, this, [this] { ShowState(); });
  }
  zones_->show();
  zones_->raise();
  zones_->activateWindow();
  ShowState();
}

void MainWindow::ShowLog() {
  for (const std::string& entry : session_.TakeLog()) log_->Add(entry);
  silence_.Notice();
  ShowState();
}

Situation MainWindow::PresentSituation() const {
  const BlockStates& states = blocks_->States();
  const auto unwritten = states.Unwritten();
  const auto listed = session_.Control().ModifiedBlocks();
  const bool all_listed = std::all_of(unwritten.begin(), unwritten.end(), [&](Byte block) {
    return std::find(listed.begin(), listed.end(), block) != listed.end();
  });
  return {{.has_device = session_.HasDevice(),
           .link_on = session_.LinkIsOn(),
           .loaded = loaded_,
           .modified = !listed.empty(),
           .others_open = OthersAreOpen(this),
           .locked = IsLocked(),
           .waiting = awaits_answer_},
          unwritten.size(),
          states.In(BlockState::kFailed).size(),
          states.In(BlockState::kVerified).size(),
          all_listed,
          files_->IsUnsaved(),
          blocks_->OnlyMacrosAreLeft(),
          session_.Control().State().origin,
          missed_,
          session_.LackingBlocks()};
}

void MainWindow::ShowState() {
  loaded_ = loaded_ || session_.LastExchange().arrived;
  NoticeAnswer();
  blocks_->Update(transfer_runs_, OthersAreOpen(this));
  Situation situation = PresentSituation();
  const NextStep step = NextStepIn(situation);
  situation.commands.next = step.press;
  commands_->Show(situation.commands);
  hint_->setText(step.hint);
  const QString busy = CommandBox::Busy(situation.commands);
  const QString connects = session_.HasDevice() ? Tr("Replaces the device by a new one")
                                                : Tr("Connects the device to what is open");
  picker_->AllowConnect(busy.isEmpty(), busy.isEmpty() ? connects : busy);
  options_->AllowExchange(busy.isEmpty(), busy);
  link_->ShowPending(session_.PendingFault());
  const QString device = Describe(session_.Device(), platform_);
  identity_->setText(session_.HasDevice() ? device : Tr("Without a device:  %1").arg(device));
  files_->Show(busy, situation.commands.loaded);
  ShowSteps();
  if (!transfer_runs_) find_->Update();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  const bool one = event->mimeData()->urls().size() == 1;
  const bool busy = !CommandBox::Busy(PresentSituation().commands).isEmpty();
  if (one && !busy && event->mimeData()->urls().front().isLocalFile()) {
    event->acceptProposedAction();
  }
}

/// The program that it was dragged from waits until this returns, so that no question is asked
/// here.
void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  QMetaObject::invokeMethod(
      this,
      [this, path = event->mimeData()->urls().front().toLocalFile()] { files_->OpenFile(path); },
      Qt::QueuedConnection);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  // A button that has the focus, the default one too, takes its key itself.
  const QWidget* const focus = focusWidget();
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || (focus != nullptr && focus != this)) return QMainWindow::keyPressEvent(event);
  commands_->PressDefault();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (closing_) return;
  const QScopedValueRollback<bool> closing(closing_, true);
  if (!MayLoseChanges(Tr("Closing"))) return;
  if (zones_ != nullptr) zones_->Abandon();
  NotePlaces();
  // A command that waits for them in a loop of its own comes to its end.
  CloseLockingWindows();
  // The user has been asked: an editor that asked again could stay behind without this window.
  session_.Control().CloseMenu();
  event->accept();
}

}  // namespace quorvel::muxhost
