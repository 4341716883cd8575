#include "muxhost/window/zone_editor.h"

#include <QHBoxLayout>
#include <QMessageBox>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

QString Marked(QString name, bool without_motion, bool changed) {
  if (without_motion) name = Tr("%1, motion off").arg(name);
  return changed ? Tr("%1, changed").arg(name) : name;
}

QPushButton* MakeButton(const QString& text, const QString& tool_tip) {
  auto* const button = new QPushButton(text);
  button->setToolTip(tool_tip);
  button->setAutoDefault(false);  // Return in the grid or the list presses nothing
  return button;
}

}  // namespace

ZoneEditor::ZoneEditor(HostSession& session, int cameras, QWidget* parent)
    : QDialog(parent),
      session_(session),
      grids_(static_cast<std::size_t>(std::max(cameras, 0))),
      cameras_(new QListWidget),
      grid_(new ZoneGrid),
      count_(new QLabel),
      without_motion_(new QLabel(Tr("This camera does not detect motion: its zones have no effect "
                                    "until the menu's motion detection enables it."))),
      all_(MakeButton(Tr("All"), Tr("Makes every cell of this camera active"))),
      none_(MakeButton(Tr("None"), Tr("Makes no cell of this camera active"))),
      undo_(MakeButton(Tr("Undo"), Tr("Takes this camera's last change back (Ctrl+Z)"))) {
  setObjectName("ZoneEditor");
  setWindowTitle(Tr("Active zones"));
  auto* const column = new QVBoxLayout(this);
  auto* const sides = new QHBoxLayout;
  sides->addWidget(MakeCameraSide());
  sides->addWidget(MakeGridSide(), 1);
  column->addLayout(sides, 1);
  column->addLayout(MakeEndButtons());
  for (int camera = 0; camera < cameras; ++camera) {
    cameras_->addItem(NameOf(camera));
    ShowName(camera, false);
  }
  QObject::connect(cameras_, &QListWidget::currentRowChanged, this, [this] { ShowChosen(); });
  cameras_->setCurrentRow(0);
  grid_->setFocus();
  const QSize borders(16, 48);
  resize(sizeHint().boundedTo(screen()->availableSize() - borders));
}

QString ZoneEditor::NameOf(int camera) const {
  const QString name = Tr("Camera %1").arg(camera + 1);
  const std::string title = session_.TitleOf(camera);
  return title.empty() ? name : name + "  " + QString::fromStdString(title);
}

QWidget* ZoneEditor::MakeCameraSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(new QLabel(Tr("Cameras")));
  column->addWidget(cameras_);
  cameras_->setAccessibleName(Tr("Cameras"));
  constexpr int kBesideText = 40;  // the scroll bar and the list's borders
  int width = 0;
  for (int camera = 0; camera < kMostCameras; ++camera) {
    const QString longest = Marked(NameOf(camera), true, true);
    width = std::max(width, cameras_->fontMetrics().horizontalAdvance(longest));
  }
  cameras_->setFixedWidth(width + kBesideText);
  return side;
}

QWidget* ZoneEditor::MakeGridSide() {
  auto* const side = new QWidget;
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(count_);
  without_motion_->setWordWrap(true);
  column->addWidget(without_motion_);
  column->addWidget(grid_, 1);
  auto* const how =
      new QLabel(Tr("Click, or drag over cells. Keys: arrows, Space, Shift with arrows."));
  how->setWordWrap(true);
  column->addWidget(how);
  auto* const row = new QHBoxLayout;
  for (QPushButton* const button : {all_, none_, undo_}) row->addWidget(button);
  row->addStretch();
  column->addLayout(row);
  grid_->on_change = [this](const ZoneCells& before) { TakeChange(before); };
  QObject::connect(all_, &QPushButton::clicked, this, [this] { Fill(true); });
  QObject::connect(none_, &QPushButton::clicked, this, [this] { Fill(false); });
  QObject::connect(undo_, &QPushButton::clicked, this, [this] { Undo(); });
  auto* const keys = new QShortcut(QKeySequence::Undo, this);
  QObject::connect(keys, &QShortcut::activated, this, [this] { Undo(); });
  return side;
}

QLayout* ZoneEditor::MakeEndButtons() {
  auto* const row = new QHBoxLayout;
  auto* const ok = MakeButton(Tr("OK"), Tr("Hands the changed zones to the control (Ctrl+Return)"));
  auto* const cancel = MakeButton(Tr("Cancel"), Tr("Changes nothing"));
  row->addStretch();
  row->addWidget(ok);
  row->addWidget(cancel);
  QObject::connect(ok, &QPushButton::clicked, this, [this] { accept(); });
  QObject::connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
  auto* const keys = new QShortcut(QKeySequence("Ctrl+Return"), this);
  QObject::connect(keys, &QShortcut::activated, this, [this] { accept(); });
  return row;
}

ZoneEditor::Camera* ZoneEditor::Chosen() {
  const int number = cameras_->currentRow();
  if (number < 0) return nullptr;
  auto& camera = grids_.at(static_cast<std::size_t>(number));
  if (!camera) {
    const auto bytes = session_.ReadZones(number);
    if (!bytes) return nullptr;
    const ZoneCells cells(*bytes);
    camera = Camera{cells, cells, {}};
  }
  return &*camera;
}

void ZoneEditor::ShowChosen() {
  const Camera* const camera = Chosen();
  grid_->SetCells(camera != nullptr ? camera->cells : ZoneCells());
  for (QWidget* const control :
       {static_cast<QWidget*>(grid_), static_cast<QWidget*>(all_), static_cast<QWidget*>(none_)}) {
    control->setEnabled(camera != nullptr);
  }
  ShowCells();
}

void ZoneEditor::ShowName(int number, bool changed) {
  cameras_->item(number)->setText(Marked(NameOf(number), !session_.DetectsMotion(number), changed));
}

void ZoneEditor::ShowCells() {
  const Camera* const camera = Chosen();
  undo_->setEnabled(camera != nullptr && !camera->before.empty());
  without_motion_->setVisible(camera != nullptr && !session_.DetectsMotion(cameras_->currentRow()));
  if (camera == nullptr) {
    count_->setText(Tr("The control has no such camera."));
    return;
  }
  const int number = cameras_->currentRow();
  ShowName(number, camera->cells != camera->from_control);
  grid_->setAccessibleName(Tr("Zones of camera %1").arg(number + 1));
  count_->setText(Tr("%1: %2 of %3 cells active")
                      .arg(NameOf(number), QString::number(camera->cells.ActiveCount()),
                           QString::number(ZoneCells::kCount)));
}

void ZoneEditor::TakeChange(const ZoneCells& before) {
  Camera* const camera = Chosen();
  if (camera == nullptr) return;
  camera->before.push_back(before);
  camera->cells = grid_->Cells();
  ShowCells();
}

void ZoneEditor::Fill(bool active) {
  grid_->EndPainting();
  const ZoneCells before = grid_->Cells();
  ZoneCells filled;
  filled.Fill(active);
  if (filled == before) return;
  grid_->SetCells(filled);
  TakeChange(before);
}

void ZoneEditor::Undo() {
  grid_->EndPainting();
  Camera* const camera = Chosen();
  if (camera == nullptr || camera->before.empty()) return;
  camera->cells = camera->before.back();
  camera->before.pop_back();
  grid_->SetCells(camera->cells);
  ShowCells();
}

std::vector<Byte> ZoneEditor::Changed() const {
  std::vector<Byte> numbers;
  for (std::size_t i = 0; i < grids_.size(); ++i) {
    const auto& camera = grids_.at(i);
    if (camera && camera->cells != camera->from_control) {
      numbers.push_back(static_cast<Byte>(i + 1));
    }
  }
  return numbers;
}

void ZoneEditor::accept() {
  grid_->EndPainting();
  for (const int number : Changed()) {
    const auto& camera = grids_.at(static_cast<std::size_t>(number - 1));
    session_.WriteZones(number - 1, camera->cells.Bytes());
  }
  QDialog::accept();
}

void ZoneEditor::reject() {
  grid_->EndPainting();
  const auto changed = Changed();
  if (!changed.empty()) {
    const QString question = Tr(changed.size(),
                                "The changed zones of camera %1 have not been handed to the "
                                "control. Closing loses them.",
                                "The changed zones of cameras %1 have not been handed to the "
                                "control. Closing loses them.")
                                 .arg(InWords(changed));
    const auto answer =
        QMessageBox::question(this, windowTitle(), question,
                              QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer != QMessageBox::Discard) return;
  }
  QDialog::reject();
}

}  // namespace quorvel::muxhost
