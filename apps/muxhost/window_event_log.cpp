#include "apps/muxhost/window_event_log.h"

#include <QMap>
#include <QTime>

namespace quorvel::muxhost {

namespace {

constexpr int kMostLines = 2000;

/// Events by name, with %1 for what follows the name.
const QMap<QString, QString>& Sentences() {
  static const QMap<QString, QString> sentences{
      {"RequestComboBlocks", "The control asks for the whole configuration."},
      {"SendComboBlocks", "The control hands over the whole configuration: %1."},
      {"ULSucceededWithStr", "The configuration has arrived in one piece: %1."},
      {"RequestBlk", "The control asks for block %1."},
      {"UploadSucceeded", "The device's configuration has arrived in the control."},
      {"DownLoadData", "The control hands over block %1."},
      {"ActGridPop", "The user wants to edit the active zones of %1 cameras."},
      {"ActGridData", "The control hands over an activity grid: %1."},
      {"Click", "The control was clicked."},
      {"DblClick", "The control was double-clicked."},
  };
  return sentences;
}

/// An entry that is no event is in words already.
QString InWords(const QString& event, const QString& rest, const QString& entry) {
  if (event == "DownLoadData" && rest == "end") return "The control has handed over everything.";
  const QString sentence = Sentences().value(event);
  if (sentence.isEmpty()) return entry.left(1).toUpper() + entry.mid(1) + ".";
  return sentence.contains("%1") ? sentence.arg(rest) : sentence;
}

}  // namespace

EventLog::EventLog(QWidget* parent) : QListWidget(parent) {
  setAccessibleName("Events");
  setSelectionMode(ExtendedSelection);
  setUniformItemSizes(true);
}

void EventLog::Add(const std::string& entry) {
  const QString text = QString::fromStdString(entry);
  const QString event = text.section(' ', 0, 0);
  const QString rest = text.section(' ', 1);
  bool numbered = false;
  const int number = rest.toInt(&numbered);
  const bool counts = numbered && (event == "RequestBlk" || event == "DownLoadData");
  if (counts && event == run_ && number == run_last_ + 1) {
    run_last_ = number;
    const QString range = QString("%1 to %2").arg(run_first_).arg(run_last_);
    item(count() - 1)
        ->setText(run_time_ + InWords(event, range, text).replace("block ", "blocks "));
    return;
  }
  run_ = counts ? event : QString();
  run_first_ = run_last_ = number;
  run_time_ = QTime::currentTime().toString("HH:mm:ss   ");
  AddLine(run_time_ + InWords(event, rest, text));
}

void EventLog::AddLine(const QString& text) {
  if (count() == kMostLines) delete takeItem(0);
  addItem(text);
  scrollToBottom();
}

}  // namespace quorvel::muxhost
