#include "muxhost/window/event_log.h"

#include <QScrollBar>
#include <QTime>

#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"

namespace quorvel::muxhost {

namespace {

// Each new line has all of them laid out again.
constexpr int kMostLines = 300;
const QString kTime = "HH:mm:ss   ";

}  // namespace

EventLog::EventLog(QWidget* parent) : QListWidget(parent) {
  setAccessibleName(Tr("Events"));
  setSelectionMode(ExtendedSelection);
  setWordWrap(true);
  setResizeMode(Adjust);
  setTextElideMode(Qt::ElideNone);
  QScrollBar* const bar = verticalScrollBar();
  QObject::connect(bar, &QScrollBar::valueChanged, this,
                   [this, bar](int value) { at_end_ = value == bar->maximum(); });
  QObject::connect(bar, &QScrollBar::rangeChanged, this, [this, bar] {
    if (at_end_) bar->setValue(bar->maximum());
  });
}

void EventLog::Add(const std::string& entry) {
  const QString text = QString::fromStdString(entry);
  const BlockEntry block = AsBlockEntry(text);
  const bool counts = !block.about.isEmpty();
  if (counts && block.about == run_ && block.number == run_last_ + 1) {
    run_last_ = block.number;
    item(count() - 1)->setText(run_time_ + block.SentenceFrom(run_first_));
    return;
  }
  run_ = block.about;
  run_first_ = run_last_ = block.number;
  run_time_ = QTime::currentTime().toString(kTime);
  AddLine(run_time_ + (counts ? block.SentenceFrom(block.number) : Sentence(text)));
}

void EventLog::Tell(const QString& sentence) {
  run_.clear();
  AddLine(QTime::currentTime().toString(kTime) + sentence);
}

void EventLog::AddLine(const QString& text) {
  if (count() == kMostLines) delete takeItem(0);
  addItem(text);
}

}  // namespace quorvel::muxhost
