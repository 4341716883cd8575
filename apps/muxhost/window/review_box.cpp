#include "muxhost/window/review_box.h"

#include <QHeaderView>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "muxhost/review_text.h"
#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

constexpr int kLineRole = Qt::UserRole;
enum Column { kWhere, kOld, kNew, kBlocks, kColumns };

/// Where a line stands inside its editor.
QString PlaceInEditor(const ReviewLine& line) {
  SettingPosition at = line.at;
  if (at.page == at.editor) at.page.clear();
  at.editor.clear();
  return QString::fromStdString(Place(at, line.settings));
}

QString Heading(const ReviewLine& line) {
  return line.at.item.empty() ? Tr("In no editor") : QString::fromStdString(line.at.editor);
}

QString Value(const std::string& text) {
  return text.empty() ? Tr("(empty)") : QString::fromStdString(text);
}

}  // namespace

ReviewBox::ReviewBox(HostSession& session, const std::optional<Sending>& sending, QWidget* parent)
    : QDialog(parent),
      session_(session),
      sending_(sending),
      summary_(new QLabel),
      tree_(new QTreeWidget),
      take_back_(new QPushButton(Tr("&Take back"))),
      open_(new QPushButton(Tr("&Open editor"))),
      send_(new QPushButton(Tr("&Go on"))) {
  setWindowTitle(sending ? Tr("Before it is sent") : Tr("Review changes"));
  summary_->setObjectName("ReviewSummary");
  summary_->setTextFormat(Qt::PlainText);
  summary_->setWordWrap(true);
  tree_->setAccessibleName(Tr("Changes"));
  const bool known = session_.Control().KnowsDevice();
  tree_->setHeaderLabels(
      {Tr("Where"), known ? Tr("Device") : Tr("Was"), Tr("Changed to"), Tr("Blocks")});
  tree_->setAllColumnsShowFocus(true);
  tree_->setUniformRowHeights(true);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(summary_);
  column->addWidget(tree_, 1);
  column->addLayout(MakeButtons(sending.has_value()));
  QObject::connect(tree_, &QTreeWidget::currentItemChanged, this, [this] { ShowChosen(); });
  QObject::connect(tree_, &QTreeWidget::itemDoubleClicked, this, [this] { OpenChosen(); });
  // Return goes to the line where the list has the focus, not to the default button.
  auto* const enter = new QShortcut(QKeySequence(Qt::Key_Return), tree_);
  auto* const keypad = new QShortcut(QKeySequence(Qt::Key_Enter), tree_);
  auto* const remove = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Backspace), tree_);
  for (QShortcut* const it : {enter, keypad, remove}) it->setContext(Qt::WidgetShortcut);
  for (QShortcut* const it : {enter, keypad}) {
    QObject::connect(it, &QShortcut::activated, this, [this] { OpenChosen(); });
  }
  QObject::connect(remove, &QShortcut::activated, this, [this] { TakeBack(); });
  ShowLines();
  const int em = fontMetrics().horizontalAdvance('m');
  resize(em * 70, em * 34);
}

QLayout* ReviewBox::MakeButtons(bool sends) {
  auto* const row = new QHBoxLayout;
  auto* const close = new QPushButton(sends ? Tr("Cancel") : Tr("Close"));
  open_->setToolTip(Tr("Opens its editor there (Return)"));
  row->addWidget(take_back_);
  row->addWidget(open_);
  row->addStretch();
  send_->setVisible(sends);
  row->addWidget(send_);
  row->addWidget(close);
  (sends ? send_ : close)->setDefault(true);
  for (QPushButton* const it : {take_back_, open_}) it->setAutoDefault(false);
  QObject::connect(take_back_, &QPushButton::clicked, this, [this] { TakeBack(); });
  QObject::connect(open_, &QPushButton::clicked, this, [this] { OpenChosen(); });
  QObject::connect(send_, &QPushButton::clicked, this, &QDialog::accept);
  QObject::connect(close, &QPushButton::clicked, this, &QDialog::reject);
  return row;
}

void ReviewBox::ShowLines() {
  lines_ = session_.Control().Review();
  tree_->clear();
  QTreeWidgetItem* heading = nullptr;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const ReviewLine& line = lines_[i];
    if (heading == nullptr || heading->text(kWhere) != Heading(line)) {
      heading = new QTreeWidgetItem(tree_, {Heading(line)});
      heading->setFirstColumnSpanned(true);
      heading->setFlags(Qt::ItemIsEnabled);
    }
    const QString blocks = QString::fromStdString(Numbers(line.blocks));
    auto* const item = new QTreeWidgetItem(
        heading, {PlaceInEditor(line), Value(line.old_value), Value(line.new_value), blocks});
    item->setData(kWhere, kLineRole, static_cast<int>(i));
    for (int column = 0; column < kColumns; ++column) {
      item->setToolTip(column, item->text(column));
    }
  }
  tree_->expandAll();
  if (tree_->topLevelItemCount() > 0) tree_->setCurrentItem(tree_->topLevelItem(0)->child(0));
  for (int column = 0; column < kBlocks; ++column) tree_->resizeColumnToContents(column);
  ShowSummary();
  ShowChosen();
}

void ReviewBox::ShowSummary() {
  QStringList sentences;
  if (!session_.Control().KnowsDevice()) {
    sentences << (lines_.empty()
                      ? Tr("Nothing was changed since the settings were opened.")
                      : Tr(lines_.size(), "%1 line was changed since the settings were opened.",
                           "%1 lines were changed since the settings were opened.")
                            .arg(lines_.size()));
    if (session_.HasDevice()) sentences << Tr("The device has not been read.");
  } else if (lines_.empty()) {
    sentences << Tr("Nothing differs from the device.");
  } else {
    sentences << Tr(lines_.size(), "%1 line differs from the device.",
                    "%1 lines differ from the device.")
                     .arg(lines_.size());
  }
  const auto listed = session_.Control().ModifiedBlocks();
  std::set<std::uint8_t> differing;
  for (const ReviewLine& line : lines_) differing.insert(line.blocks.begin(), line.blocks.end());
  std::vector<std::uint8_t> for_nothing;
  std::ranges::copy_if(listed, std::back_inserter(for_nothing),
                       [&](std::uint8_t it) { return !differing.contains(it); });
  std::ranges::sort(for_nothing);
  if (!for_nothing.empty()) {
    sentences << Tr(for_nothing.size(), "Nothing differs in block %1, which is listed.",
                    "Nothing differs in blocks %1, which are listed.")
                     .arg(InWords(for_nothing));
  }
  std::vector<std::uint8_t> behind;
  std::ranges::copy_if(differing, std::back_inserter(behind), [&](std::uint8_t it) {
    return std::ranges::find(listed, it) == listed.end();
  });
  if (!behind.empty() && sending_ && !sending_->all) {
    sentences << Tr(behind.size(), "Not listed as modified, and not sent: block %1.",
                    "Not listed as modified, and not sent: blocks %1.")
                     .arg(InWords(behind));
  }
  if (sending_ && !sending_->along.isEmpty()) sentences << sending_->along;
  summary_->setText(sentences.join('\n'));
}

const ReviewLine* ReviewBox::Chosen() const {
  const QTreeWidgetItem* const item = tree_->currentItem();
  if (item == nullptr || !item->data(kWhere, kLineRole).isValid()) return nullptr;
  return &lines_.at(static_cast<std::size_t>(item->data(kWhere, kLineRole).toInt()));
}

void ReviewBox::ShowChosen() {
  const ReviewLine* const line = Chosen();
  const bool writable = line == nullptr || line->writable;
  take_back_->setEnabled(line != nullptr && writable);
  take_back_->setToolTip(writable ? Tr("Sets it as the device has it (Ctrl+Backspace)")
                                  : Tr("It cannot be taken back: only the device writes it."));
  open_->setEnabled(line != nullptr && !line->at.item.empty());
}

void ReviewBox::TakeBack() {
  const ReviewLine* const line = Chosen();
  if (line == nullptr) return;
  const auto next = static_cast<std::size_t>(line - lines_.data());
  // The device may have brought other settings meanwhile: what was shown is theirs no more.
  if (session_.Control().Review() != lines_) return ShowLines();
  if (!session_.Control().TakeBack(*line)) {
    summary_->setText(Tr("It cannot be taken back: only the device writes it."));
    return;
  }
  ShowLines();
  for (QTreeWidgetItemIterator it(tree_); *it != nullptr; ++it) {
    const QVariant number = (*it)->data(kWhere, kLineRole);
    if (!number.isValid()) continue;
    tree_->setCurrentItem(*it);
    if (number.toInt() >= static_cast<int>(next)) break;
  }
  tree_->setFocus();
}

void ReviewBox::OpenChosen() {
  const ReviewLine* const line = Chosen();
  if (line == nullptr || line->at.item.empty()) return;
  wanted_ = line->at;
  reject();
}

}  // namespace quorvel::muxhost
