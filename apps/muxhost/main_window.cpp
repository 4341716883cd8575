#include "apps/muxhost/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <set>
#include <stdexcept>

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

QString DescribeDevice(const SimulatedDevice& device, const Platform& platform) {
  const auto& identity = device.IdentityBytes();
  const std::string name(identity.begin() + 2, identity.end());
  const std::string model(ModelText(device.ModelCode()));
  return QString("%1:  %2, %3 cameras, %4 blocks")
      .arg(QString::fromStdString(platform.ToUtf8(name.substr(0, name.find('\0')))).trimmed())
      .arg(QString::fromStdString(model))
      .arg(int{identity[0]})
      .arg(device.BlockCount());
}

}  // namespace

MainWindow::MainWindow(QtPlatform& platform, HostSession& session)
    : platform_(platform),
      session_(session),
      picker_(new DevicePicker(platform)),
      options_(new HostOptions(session.Settings())),
      download_(new QPushButton("Download")),
      menu_(new QPushButton("Menu")),
      upload_(new QPushButton("Upload")),
      surface_place_(new QVBoxLayout),
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
  session_.on_change = [this] { ShowLog(); };
  // Edits raise no event, so the window looks for them.
  QObject::connect(&watch_, &QTimer::timeout, this, [this] { ShowState(); });
  watch_.start(kWatchInterval);
  PlaceSurface();
  ShowLog();
  const QSize borders(16, 48);
  resize(QSize(980, 600).boundedTo(screen()->availableSize() - borders));
}

MainWindow::~MainWindow() { session_.on_change = nullptr; }

QWidget* MainWindow::MakeLeftSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(picker_);
  column->addWidget(options_);
  column->addStretch();
  picker_->on_connect = [this] { Connect(); };
  options_->on_change = [this](const HostSettings& settings) { session_.Configure(settings); };
  return side;
}

QGroupBox* MainWindow::MakeControlBox() {
  auto* const box = new QGroupBox("Control");
  auto* const row = new QHBoxLayout(box);
  auto* const border = new QFrame;
  border->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  border->setLayout(surface_place_);
  row->addWidget(border);
  row->addStretch();
  for (QPushButton* const button : {download_, menu_, upload_}) row->addWidget(button);
  QObject::connect(download_, &QPushButton::clicked, this, [this] { Download(); });
  QObject::connect(menu_, &QPushButton::clicked, this, [this] { session_.OpenMenu(); });
  QObject::connect(upload_, &QPushButton::clicked, this, [this] {
    session_.Upload();
    ShowState();
  });
  return box;
}

QWidget* MainWindow::MakeRightSide() {
  constexpr int kModifiedWidth = 150;
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(MakeControlBox());
  auto* const row = new QHBoxLayout;
  modified_->setAccessibleName("Modified blocks");
  (new QVBoxLayout(modified_box_))->addWidget(modified_);
  modified_box_->setFixedWidth(kModifiedWidth);
  auto* const events = new QGroupBox("Events");
  (new QVBoxLayout(events))->addWidget(log_);
  row->addWidget(modified_box_);
  row->addWidget(events, 1);
  column->addLayout(row, 1);
  return side;
}

void MainWindow::PlaceSurface() {
  surface_ = new ControlSurfaceWidget(session_.Control().Surface(), this);
  surface_place_->addWidget(surface_);
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
  if (OthersAreOpen(this)) question += "A window of the menu is open. ";
  if (question.isEmpty()) return true;
  question += by + " loses the changes.";
  return QMessageBox::question(this, windowTitle(), question,
                               QMessageBox::Discard | QMessageBox::Cancel,
                               QMessageBox::Cancel) == QMessageBox::Discard;
}

void MainWindow::Connect() {
  if (!MayLoseChanges("Connecting another device")) return;
  try {
    SimulatedDevice device(picker_->Setup());
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

void MainWindow::Download() {
  if (!MayLoseChanges("Downloading")) return;
  loaded_ = false;
  session_.Download();
  ShowState();
}

void MainWindow::ShowLog() {
  for (const std::string& entry : session_.TakeLog()) log_->Add(entry);
  ShowState();
}

void MainWindow::ShowState() {
  loaded_ = loaded_ || session_.LastExchange().arrived;
  const QString missing("Download the device's configuration first");
  const QString busy("Close the menu's windows first");
  const bool idle = !OthersAreOpen(this);
  picker_->AllowConnect(idle, busy);
  download_->setEnabled(idle);
  download_->setToolTip(idle ? "Reads the device's configuration" : busy);
  // Beside an editor the menu opens; nothing does beside a dialog that locks the windows.
  const bool locked = QApplication::activeModalWidget() != nullptr;
  menu_->setEnabled(loaded_ && !locked);
  menu_->setToolTip(!loaded_ ? missing : locked ? busy : "Opens the configuration menu");
  upload_->setEnabled(loaded_ && idle);
  upload_->setToolTip(!loaded_ ? missing : idle ? "Writes the configuration to the device" : busy);

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

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(MayLoseChanges("Closing")); }

}  // namespace quorvel::muxhost
