#include "muxhost/window/find_box.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>

#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

namespace {

enum Filter { kAll, kChanged, kNotFactory, kFile, kOtherFile };

}  // namespace

FindBox::FindBox(QtPlatform& platform, HostSession& session, QWidget* parent)
    : QDockWidget(Tr("Find settings"), parent),
      platform_(platform),
      model_(session),
      words_(new QLineEdit),
      filter_(new QComboBox),
      export_(new QPushButton(Tr("E&xport as CSV..."))),
      count_(new QLabel),
      list_(new QTreeView),
      nothing_(new QLabel) {
  setObjectName("Find");
  // As a window of its own it would lock what may not be done beside other windows.
  setFeatures(DockWidgetClosable | DockWidgetMovable);
  setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
  setWidget(MakeContents());
  SetUpList();
  Measure();
  NameFilters();
  QObject::connect(words_, &QLineEdit::textChanged, this, [this] { List(); });
  QObject::connect(filter_, &QComboBox::activated, this, [this](int it) { Choose(it); });
  QObject::connect(export_, &QPushButton::clicked, this, [this] { Export(); });
  auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(escape, &QShortcut::activated, this, [this] { close(); });
}

QWidget* FindBox::MakeContents() {
  words_->setObjectName("FindWords");
  words_->setPlaceholderText(Tr("A caption, a camera's title, a name, a value, a block"));
  words_->setClearButtonEnabled(true);
  words_->installEventFilter(this);
  filter_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  filter_->setMinimumContentsLength(16);
  auto* const find = new QLabel(Tr("&Find:"));
  find->setBuddy(words_);
  words_->setAccessibleName(Tr("Find"));
  auto* const show = new QLabel(Tr("&Show:"));
  show->setBuddy(filter_);
  filter_->setAccessibleName(Tr("Show"));
  count_->setObjectName("FindCount");
  nothing_->setObjectName("FindNothing");
  for (QLabel* const label : {count_, nothing_}) label->setTextFormat(Qt::PlainText);
  nothing_->setWordWrap(true);
  nothing_->setAlignment(Qt::AlignCenter);
  auto* const contents = new QWidget;
  auto* const grid = new QGridLayout(contents);
  grid->addWidget(find, 0, 0);
  grid->addWidget(words_, 0, 1);
  grid->addWidget(count_, 0, 2);
  grid->addWidget(show, 1, 0);
  grid->addWidget(filter_, 1, 1);
  grid->addWidget(export_, 1, 2);
  grid->addWidget(list_, 2, 0, 1, 3);
  grid->addWidget(nothing_, 2, 0, 1, 3);  // one of the two is to be seen
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(2, 1);
  return contents;
}

void FindBox::SetUpList() {
  list_->setModel(&model_);
  list_->setAccessibleName(Tr("Settings"));
  list_->setColumnHidden(FindModel::kInFile, true);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setTextElideMode(Qt::ElideMiddle);  // a place ends with its camera
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setTabKeyNavigation(false);
  list_->installEventFilter(this);
  list_->setContextMenuPolicy(Qt::ActionsContextMenu);
  list_->addAction(Tr("&Open editor"), this, [this] { Open(); });
  list_->addAction(Tr("&Copy"), this, [this] { Copy(); });
  QObject::connect(list_, &QTreeView::doubleClicked, this, [this] { Open(); });
}

void FindBox::Measure() {
  constexpr int kLines = 3;
  // In letters; the last column takes the rest.
  constexpr int kWidths[] = {76, 26, 26, 8, 19};
  const int letter = list_->fontMetrics().averageCharWidth();
  for (int column = 0; column < static_cast<int>(std::size(kWidths)); ++column) {
    list_->setColumnWidth(column, kWidths[column] * letter);
  }
  count_->setMinimumWidth(
      fontMetrics().horizontalAdvance(Tr("%1 of %2").arg(9999).arg(9999) + " "));
  const int height =
      kLines * list_->fontMetrics().lineSpacing() + list_->header()->sizeHint().height();
  for (QWidget* const it : std::initializer_list<QWidget*>{list_, nothing_}) {
    it->setMinimumHeight(height);
  }
}

void FindBox::changeEvent(QEvent* event) {
  QDockWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) Measure();
}

void FindBox::Begin() {
  show();
  raise();
  words_->setFocus(Qt::ShortcutFocusReason);
  words_->selectAll();
}

void FindBox::showEvent(QShowEvent* event) {
  QDockWidget::showEvent(event);
  Update();
  Tell();
}

void FindBox::closeEvent(QCloseEvent* event) {
  QDockWidget::closeEvent(event);
  if (event->isAccepted() && on_close) on_close();
}

void FindBox::Update() {
  if (!isVisible()) return;
  const int row = list_->currentIndex().row();
  const auto current = row < 0 ? std::vector<std::string>() : model_.Setting(row).settings;
  const int scrolled = list_->verticalScrollBar()->value();
  if (!model_.Update()) return;
  const int now = current.empty() ? -1 : model_.RowOf(current);
  MakeCurrent(std::max(now, 0));
  list_->verticalScrollBar()->setValue(scrolled);
  Tell();
}

void FindBox::NameFilters() {
  const QSignalBlocker quiet(filter_);
  filter_->clear();
  filter_->addItems({Tr("All settings"), Tr("What differs from the device"),
                     Tr("What differs from the factory's settings")});
  if (!file_.empty()) {
    const QFileInfo file(QString::fromStdString(file_));
    filter_->addItem(Tr("What differs from %1").arg(file.fileName()));
    filter_->setItemData(kFile, file.filePath(), Qt::ToolTipRole);
  }
  filter_->addItem(file_.empty() ? Tr("What differs from a file...")
                                 : Tr("What differs from another file..."));
  filter_->setCurrentIndex(chosen_);
}

Among FindBox::Chosen() const {
  switch (chosen_) {
    case kChanged: return Among::kChanged;
    case kNotFactory: return Among::kNotFactory;
    case kFile: return Among::kNotFile;
    default: return Among::kAll;
  }
}

void FindBox::Choose(int filter) {
  if (filter == filter_->count() - 1) {
    FileRequest request;
    request.title = Say("Compare with");
    request.filter = "*.bin";
    request.must_exist = true;
    const auto path = platform_.AskFile(request);
    if (path) TakeFile(*path);
  } else if (filter == kFile) {
    TakeFile(file_);
  } else {
    chosen_ = filter;
    unreadable_.clear();
    model_.CompareWith(std::nullopt);
  }
  NameFilters();
  List();
}

void FindBox::TakeFile(const std::string& path) {
  file_ = path;
  chosen_ = kFile;
  unreadable_.clear();
  try {
    model_.CompareWith(platform_.ReadFile(path));
  } catch (const std::exception& error) {
    unreadable_ = error.what();
    model_.CompareWith(std::nullopt);
  }
}

void FindBox::List() {
  model_.Show(Chosen(), words_->text());
  list_->setColumnHidden(FindModel::kInFile, Chosen() != Among::kNotFile);
  MakeCurrent(0);
  Tell();
}

void FindBox::MakeCurrent(int row) {
  if (row < model_.rowCount()) list_->setCurrentIndex(model_.index(row, FindModel::kWhere));
}

void FindBox::Tell() {
  const int rows = model_.rowCount();
  count_->setText(Tr("%1 of %2").arg(rows).arg(model_.Table().Rows().size()));
  export_->setEnabled(rows > 0);
  nothing_->setText(WhyNone());
  if (rows == 0 && list_->hasFocus()) words_->setFocus();
  list_->setVisible(rows > 0);
  nothing_->setVisible(rows == 0);
}

QString FindBox::WhyNone() const {
  if (model_.Table().Rows().empty()) return Tr("Receive or open settings first.");
  const QString file = QFileInfo(QString::fromStdString(file_)).fileName();
  const std::string& cause = unreadable_.empty() ? model_.Table().Cause() : unreadable_;
  if (!cause.empty())
    return Tr("Not compared with %1: %2.").arg(file, QString::fromStdString(cause));
  const bool all = Chosen() == Among::kAll;
  if (!words_->text().trimmed().isEmpty()) {
    return all ? Tr("No setting has all of these words.")
               : Tr("No setting of those that differ has all of these words.");
  }
  switch (Chosen()) {
    case Among::kChanged: return Tr("Nothing differs from the device.");
    case Among::kNotFactory: return Tr("Nothing differs from the factory's settings.");
    case Among::kNotFile: return Tr("Nothing differs from %1.").arg(file);
    case Among::kAll: break;
  }
  return {};
}

}  // namespace quorvel::muxhost
