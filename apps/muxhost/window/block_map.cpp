#include "muxhost/window/block_map.h"

#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "muxhost/block_contents.h"
#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

/// A state's colour and sign.
class Swatch : public QWidget {
 public:
  explicit Swatch(BlockState state) : state_(state) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }
  [[nodiscard]] QSize sizeHint() const override {
    return {fontMetrics().height() + 4, fontMetrics().height() + 4};
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    BlockPainter::PaintState(painter, rect(), palette(), state_);
  }

 private:
  BlockState state_;
};

}  // namespace

BlockGrid::BlockGrid(QWidget* parent) : QListView(parent) {
  setAccessibleName(Tr("Blocks"));
  setFlow(LeftToRight);
  setWrapping(true);
  setResizeMode(Adjust);
  setUniformItemSizes(true);
  setMovement(Static);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMouseTracking(true);
  setItemDelegate(new BlockPainter(this));
  QObject::connect(this, &QListView::entered, this,
                   [this](const QModelIndex& cell) { on_look(cell.row() + 1); });
}

QSize BlockGrid::Cells(int columns, int rows) const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const QSize cell = itemDelegate()->sizeHint(option, {});
  const int borders = 2 * frameWidth() + 2;
  return {cell.width() * columns + borders + verticalScrollBar()->sizeHint().width(),
          cell.height() * rows + borders};
}

QSize BlockGrid::sizeHint() const { return Cells(16, 15); }
QSize BlockGrid::minimumSizeHint() const { return Cells(5, 4); }

bool BlockGrid::viewportEvent(QEvent* event) {
  const bool done = QListView::viewportEvent(event);
  if (event->type() == QEvent::Leave && currentIndex().isValid()) {
    on_look(currentIndex().row() + 1);
  }
  return done;
}

void BlockGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (current.isValid()) on_look(current.row() + 1);
}

void BlockGrid::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange) scheduleDelayedItemsLayout();
}

BlockMapBox::BlockMapBox(HostSession& session, QWidget* parent)
    : QGroupBox(parent),
      session_(session),
      model_(new BlockModel(this)),
      grid_(new BlockGrid),
      contents_box_(new QGroupBox),
      contents_(new QPlainTextEdit) {
  grid_->on_look = [this](int block) { Look(block); };
  grid_->setModel(model_);
  // What happens is seen, unless the user has scrolled elsewhere.
  QObject::connect(model_, &BlockModel::dataChanged, this, [this](const QModelIndex& cell) {
    if (!grid_->hasFocus() && !grid_->underMouse()) grid_->scrollTo(cell);
  });
  contents_->setReadOnly(true);
  contents_->setAccessibleName(Tr("What the block holds"));
  contents_->setTabChangesFocus(true);
  auto* const row = new QHBoxLayout(this);
  row->addWidget(grid_, 1);
  row->addLayout(MakeLegend());
  Measure();
  (new QVBoxLayout(contents_box_))->addWidget(contents_);
  Update(false, false);
  grid_->setCurrentIndex(model_->index(0));
}

QLayout* BlockMapBox::MakeLegend() {
  auto* const legend = new QGridLayout;
  for (int i = 0; i < kBlockStates; ++i) {
    QLabel* const count = counts_.at(static_cast<std::size_t>(i)) = new QLabel;
    legend->addWidget(new Swatch(static_cast<BlockState>(i)), i, 0);
    legend->addWidget(count, i, 1);
  }
  legend->setRowStretch(kBlockStates, 1);
  return legend;
}

void BlockMapBox::Measure() {
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (font().pointSizeF() > 0) {
    fixed.setPointSizeF(font().pointSizeF());
  } else {
    fixed.setPixelSize(font().pixelSize());
  }
  contents_->setFont(fixed);
  contents_->setMinimumHeight(3 * fontMetrics().lineSpacing());
  // Counts that grow move nothing.
  int width = 0;
  for (int i = 0; i < kBlockStates; ++i) {
    const QString widest = Tr("%1: %2").arg(InWords(static_cast<BlockState>(i)), "255 ");
    width = std::max(width, fontMetrics().horizontalAdvance(widest));
  }
  for (QLabel* const count : counts_) count->setMinimumWidth(width);
}

void BlockMapBox::changeEvent(QEvent* event) {
  QGroupBox::changeEvent(event);
  if (event->type() == QEvent::FontChange) Measure();
}

bool BlockMapBox::MayHaveChanges(bool editor_is_open) {
  const auto device = session_.Device().Bytes();
  auto image = session_.Control().Image();
  auto edited = session_.Control().EditedImage();
  auto listed = session_.Control().ModifiedBlocks();
  if (image != image_) {
    contents_are_old_ = true;
    bare_ = FindBareBlocks(image, session_.Device().IsCombined());
  }
  // What an editor did last is there when it has closed.
  const bool may = std::exchange(editor_was_open_, editor_is_open) || editor_is_open ||
                   image != image_ || edited != edited_ || listed != listed_ ||
                   !std::equal(device.begin(), device.end(), device_.begin(), device_.end());
  image_ = std::move(image);
  edited_ = std::move(edited);
  listed_ = std::move(listed);
  device_.assign(device.begin(), device.end());
  return may;
}

void BlockMapBox::Update(bool transfer_runs, bool editor_is_open) {
  const Exchange& exchange = session_.LastExchange();
  // What is not looked at now is looked at later.
  const bool busy = transfer_runs && !exchange.read_back && !exchange.arrived;
  if (busy) {
    editor_was_open_ = true;
  } else if (MayHaveChanges(editor_is_open)) {
    TakeChanges();
  }
  states_.Follow(exchange);
  const auto in_control = static_cast<int>(image_.size()) / kBlockSize;
  const int blocks =
      std::min(std::max(in_control, session_.Device().BlockCount()), kMostDeviceBlocks);
  const QVariant before = model_->index(looked_at_ - 1).data(BlockModel::kStateRole);
  const bool other_size = blocks != model_->rowCount();
  model_->Show(blocks, states_);
  if (other_size) grid_->setCurrentIndex(model_->index(0));
  const QVariant after = model_->index(looked_at_ - 1).data(BlockModel::kStateRole);
  if (contents_are_old_ || before != after) ShowContents();
  ShowCounts();
}

void BlockMapBox::TakeChanges() {
  const MainMenuCtrl& control = session_.Control();
  auto differences =
      control.DifferencesFrom(session_.Device().Bytes()).value_or(std::vector<SettingDifference>());
  std::set<Byte> blocks = bare_.Differing(image_, device_);
  for (const SettingDifference& difference : differences) {
    if (IsLockOfTheMenu(difference)) continue;
    blocks.insert(difference.blocks.begin(), difference.blocks.end());
  }
  states_.SetChanges(listed_, std::move(blocks));
  if (differences != differences_) contents_are_old_ = true;
  differences_ = std::move(differences);
}

/// The control locks the keyboards of older devices by itself when its menu opens. That is no
/// change of the user's, and no reason to upload.
bool BlockMapBox::IsLockOfTheMenu(const SettingDifference& difference) const {
  constexpr int kFirstLockableModel = 6;
  return difference.name == "LockKeyBoard" && session_.Settings().comm_id == 0 &&
         session_.Device().ModelCode() < kFirstLockableModel &&
         std::none_of(difference.blocks.begin(), difference.blocks.end(), [this](Byte block) {
           return std::find(listed_.begin(), listed_.end(), block) != listed_.end();
         });
}

bool BlockMapBox::OnlyMacrosAreLeft() const {
  std::vector<Byte> left = states_.Unwritten();
  const std::vector<Byte> failed = states_.In(BlockState::kFailed);
  left.insert(left.end(), failed.begin(), failed.end());
  return !left.empty() && std::all_of(left.begin(), left.end(), [this](Byte block) {
    return bare_.with_macros.contains(block);
  });
}

void BlockMapBox::Look(int block) {
  looked_at_ = block;
  ShowContents();
}

void BlockMapBox::ShowContents() {
  contents_are_old_ = false;
  const QVariant state = model_->index(looked_at_ - 1).data(BlockModel::kStateRole);
  contents_box_->setTitle(
      Tr("Block %1: %2").arg(looked_at_).arg(InWords(static_cast<BlockState>(state.toInt()))));
  const auto contents = ContentsOf(session_.Control(), session_.Device().Bytes(), looked_at_);
  const QString text =
      QString::fromStdString(InWords(contents, session_.HasDevice(), Say)).trimmed();
  if (text == contents_->toPlainText()) return;
  contents_->setPlainText(text);
}

void BlockMapBox::ShowCounts() {
  std::array<int, kBlockStates> counts{};
  for (int row = 0; row < model_->rowCount(); ++row) {
    const auto state = model_->index(row).data(BlockModel::kStateRole).toUInt();
    ++counts.at(state);
  }
  for (std::size_t i = 0; i < counts.size(); ++i) {
    counts_.at(i)->setText(Tr("%1: %2").arg(InWords(static_cast<BlockState>(i))).arg(counts.at(i)));
  }
  const auto unwritten = states_.Unwritten().size();
  setTitle(unwritten == 0 ? Tr("Blocks: none modified")
                          : Tr("Blocks: %1 modified, not yet in the device").arg(unwritten));
}

}  // namespace quorvel::muxhost
