#include "apps/muxhost/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <set>
#include <stdexcept>

#include "apps/muxhost/window_interruption.h"
#include "apps/muxhost/window_side_area.h"
#include "apps/muxhost/window_words.h"
#include "host/model_catalogue.h"

namespace quorvel::muxhost {

namespace {

/// True while an editor, or the menu, is on screen beside the window.
bool OthersAreOpen(const QWidget* window) {
  for (const QWidget* const other : QApplication::topLevelWidgets()) {
    if (other != window && other->isVisible() && other->windowType() != Qt::ToolTip) return true;
  }
  return false;
}

/// Closes the windows that lock all others, the front one first, as a person would.
void CloseLockingWindows() {
  while (QWidget* const window = QApplication::activeModalWidget()) {
    if (!window->close()) return;
  }
}

QString DescribeDevice(const SimulatedDevice& device, const Platform& platform) {
  const auto& identity = device.IdentityBytes();
  const std::string name(identity.begin() + 2, identity.end());
  const std::string model(ModelText(device.ModelCode()));
  return QString("%1:  %2, %3 cameras, %4 blocks, %5")
      .arg(QString::fromStdString(platform.ToUtf8(name.substr(0, name.find('\0')))).trimmed())
      .arg(QString::fromStdString(model))
      .arg(int{identity[0]})
      .arg(device.BlockCount())
      .arg(device.IsCombined() ? "combined array" : "single blocks");
}

}  // namespace

MainWindow::MainWindow(QtPlatform& platform, HostSession& session)
    : platform_(platform),
      session_(session),
      picker_(new DevicePicker(platform)),
      options_(new HostOptions(session.Settings())),
      link_(new LinkBox),
      commands_(new CommandBox),
      modified_box_(new QGroupBox),
      modified_(new QListWidget),
      log_(new EventLog),
      identity_(new QLabel) {
  constexpr int kWatchInterval = 150;
  setWindowTitle("muxhost");
  auto* const sides = new QHBoxLayout;
  sides->addWidget(MakeLeftSide());
  sides->addWidget(MakeRightSide(), 1);
  auto* const body = new QWidget;
  body->setLayout(sides);
  setCentralWidget(body);
  statusBar()->addWidget(identity_);

  platform_.SetHostWindow(this);
  AttachToSession();
  // Edits raise no event, so the window looks for them.
  QObject::connect(&watch_, &QTimer::timeout, this, [this] { ShowState(); });
  watch_.start(kWatchInterval);
  PlaceSurface();
  ShowLog();
  const QSize borders(16, 48);
  resize(QSize(1060, 640).expandedTo(sizeHint()).boundedTo(screen()->availableSize() - borders));
}

void MainWindow::AttachToSession() {
  session_.on_change = [this] { ShowLog(); };
  session_.interrupt = &Interrupt;
  // Not from within the menu's own event.
  session_.on_zones_wanted = [this](int cameras) {
    zones_wanted_ = cameras;
    zones_request_.start();
  };
  zones_request_.setSingleShot(true);
  QObject::connect(&zones_request_, &QTimer::timeout, this, [this] { EditZones(zones_wanted_); });
  defaults_patience_.setSingleShot(true);
  QObject::connect(&defaults_patience_, &QTimer::timeout, this, [this] {
    constexpr int kReplies = 2;
    if (session_.LastExchange().blocks_read >= kReplies) return;
    log_->Add("the device has not answered: there are no factory defaults");
  });
}

MainWindow::~MainWindow() {
  session_.on_change = nullptr;
  session_.interrupt = nullptr;
  session_.on_zones_wanted = nullptr;
}

QWidget* MainWindow::MakeLeftSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(picker_);
  column->addWidget(options_);
  column->addWidget(link_);
  column->addStretch();
  picker_->on_connect = [this] { Connect(); };
  options_->on_change = [this](const HostSettings& settings) { session_.Configure(settings); };
  link_->on_fault = [this](const std::optional<Fault>& fault) { session_.SetFault(fault); };
  return new SideArea(side);
}

QWidget* MainWindow::MakeRightSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  commands_->on_command = [this](Command command) { Do(command); };
  column->addWidget(commands_);
  auto* const row = new QHBoxLayout;
  modified_->setAccessibleName("Modified blocks");
  (new QVBoxLayout(modified_box_))->addWidget(modified_);
  modified_box_->setFixedWidth(fontMetrics().horizontalAdvance("Modified blocks: 255  ") + 24);
  auto* const events = new QGroupBox("Events");
  (new QVBoxLayout(events))->addWidget(log_);
  row->addWidget(modified_box_);
  row->addWidget(events, 1);
  column->addLayout(row, 1);
  return side;
}

void MainWindow::PlaceSurface() {
  surface_ = new ControlSurfaceWidget(session_.Control().Surface(), this);
  commands_->SurfacePlace().addWidget(surface_);
}

std::size_t MainWindow::UnsentBlocks() {
  // The list of modified blocks does not tell: it outlives a send.
  if (!loaded_) return 0;
  std::set<std::uint8_t> blocks;
  const auto differences = session_.Control().DifferencesFrom(session_.Device().Bytes());
  if (!differences.has_value()) return session_.Control().ModifiedBlocks().size();
  for (const SettingDifference& difference : *differences) {
    blocks.insert(difference.blocks.begin(), difference.blocks.end());
  }
  return blocks.size();
}

bool MainWindow::MayLoseChanges(const QString& by) {
  const auto changed = UnsentBlocks();
  QString question;
  if (changed > 0) {
    question = QString("%1 changed %2 not been sent to the device. ")
                   .arg(changed)
                   .arg(changed == 1 ? "block has" : "blocks have");
  }
  // A transfer's dialog locks the window, an editor does not.
  const bool locked = QApplication::activeModalWidget() != nullptr;
  if (locked) {
    question += "A transfer or a question is still open. ";
  } else if (OthersAreOpen(this)) {
    question += "A window of the menu is open. ";
  }
  if (question.isEmpty()) return true;
  question += by + (locked ? " breaks it off and loses the changes." : " loses the changes.");
  return QMessageBox::question(this, windowTitle(), question,
                               QMessageBox::Discard | QMessageBox::Cancel,
                               QMessageBox::Cancel) == QMessageBox::Discard;
}

void MainWindow::Connect() {
  if (!MayLoseChanges("Connecting another device")) return;
  try {
    SimulatedDevice device(picker_->Setup());
    defaults_patience_.stop();
    surface_->Detach();
    delete surface_;
    surface_ = nullptr;
    loaded_ = false;
    session_.Connect(std::move(device));
    PlaceSurface();
    log_->Add("a new device is connected");
  } catch (const std::invalid_argument& error) {
    QMessageBox::warning(this, windowTitle(), QString::fromStdString(error.what()));
  }
  ShowState();
}

void MainWindow::Do(Command command) {
  switch (command) {
    case Command::kDownload: return Download();
    case Command::kMenu: return session_.OpenMenu();
    case Command::kUpload: return Upload();
    case Command::kSave: return Run(&HostSession::Save);
    case Command::kRestore:
      if (MayLoseChanges("Restoring a file")) Run(&HostSession::Restore);
      return;
    case Command::kDefaults: return BuildDefaults();
  }
}

void MainWindow::Run(void (HostSession::*command)()) {
  defaults_patience_.stop();
  (session_.*command)();
  // Whatever became of it: what the control holds now decides what can be done next.
  loaded_ = !session_.Control().Settings().empty();
  ShowState();
}

void MainWindow::Download() {
  if (!MayLoseChanges("Downloading")) return;
  loaded_ = false;
  Run(&HostSession::Download);
}

void MainWindow::Upload() {
  do {
    Run(&HostSession::Upload);
  } while (WantsToSendAgain());
}

bool MainWindow::WantsToSendAgain() {
  const Exchange& exchange = session_.LastExchange();
  const bool by_blocks = exchange.array_bytes == 0 && !exchange.sent_blocks.empty();
  if (by_blocks && !exchange.end_written) log_->Add("the upload has not come to its end");
  const QString trouble = WhatWentWrong(exchange);
  if (trouble.isEmpty() || !isVisible()) return false;
  QMessageBox box(QMessageBox::Warning, windowTitle(), trouble, QMessageBox::Close, this);
  box.setInformativeText("Send again?");
  const auto* const again = box.addButton("Send again", QMessageBox::AcceptRole);
  box.exec();
  return box.clickedButton() == again && isVisible();
}

void MainWindow::BuildDefaults() {
  constexpr int kReplies = 2;
  constexpr int kPatience = 2000;
  if (!MayLoseChanges("Taking the factory defaults")) return;
  Run(&HostSession::BuildDefaults);
  const auto& fault = session_.PendingFault();
  const int later = fault && fault->kind == FaultKind::kLate ? fault->delay_ms : 0;
  defaults_patience_.start(kPatience + kReplies * session_.Settings().latency_ms + later);
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
  ShowState();
}

void MainWindow::ShowState() {
  loaded_ = loaded_ || session_.LastExchange().arrived;
  const bool others_open = OthersAreOpen(this);
  commands_->Show({.loaded = loaded_,
                   .others_open = others_open,
                   .locked = QApplication::activeModalWidget() != nullptr});
  picker_->AllowConnect(!others_open, CommandBox::Busy());
  link_->ShowPending(session_.PendingFault());
  ShowModified();
  identity_->setText(DescribeDevice(session_.Device(), platform_));
}

void MainWindow::ShowModified() {
  QStringList numbers;
  for (const auto number : session_.Control().ModifiedBlocks()) {
    numbers << QString("Block %1").arg(number);
  }
  modified_box_->setTitle(QString("Modified blocks: %1").arg(numbers.size()));
  if (numbers == shown_modified_) return;
  shown_modified_ = numbers;
  modified_->clear();
  modified_->addItems(numbers);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (closing_) return;
  const QScopedValueRollback<bool> closing(closing_, true);
  if (!MayLoseChanges("Closing")) return;
  if (zones_ != nullptr) zones_->Abandon();
  // A command that waits for them in a loop of its own comes to its end.
  CloseLockingWindows();
  event->accept();
}

}  // namespace quorvel::muxhost
