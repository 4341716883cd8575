// What the user does with the settings that were found.
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QRegularExpression>
#include <algorithm>

#include "muxhost/find/csv.h"
#include "muxhost/window/find_box.h"
#include "muxhost/window/plain_box.h"
#include "muxhost/window/tr.h"

namespace quorvel::muxhost {

namespace {

bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// A letter that goes on with the words that are looked for; a blank selects a row.
bool IsTyped(const QKeyEvent& key) {
  constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const QString text = key.text();
  return !text.isEmpty() && text.front().isPrint() && !text.front().isSpace() &&
         (key.modifiers() & kCommands) == 0;
}

}  // namespace

bool FindBox::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDockWidget::eventFilter(object, event);
  auto& key = static_cast<QKeyEvent&>(*event);
  return object == words_ ? KeyInWords(key) : KeyInList(key);
}

bool FindBox::KeyInWords(const QKeyEvent& key) {
  if (IsEnter(key)) {
    Open();
    return true;
  }
  const bool down = key.key() == Qt::Key_Down || key.key() == Qt::Key_PageDown;
  if (!down || !list_->isVisible()) return false;
  list_->setFocus(Qt::TabFocusReason);
  return true;
}

bool FindBox::KeyInList(QKeyEvent& key) {
  if (IsEnter(key)) {
    Open();
  } else if (key.matches(QKeySequence::Copy)) {
    Copy();
  } else if (key.key() == Qt::Key_Up && key.modifiers() == Qt::NoModifier &&
             list_->currentIndex().row() == 0) {
    words_->setFocus(Qt::BacktabFocusReason);
  } else if (IsTyped(key)) {
    words_->setFocus(Qt::OtherFocusReason);
    words_->end(false);
    QApplication::sendEvent(words_, &key);
  } else {
    return false;
  }
  return true;
}

void FindBox::Open() {
  const int row = list_->currentIndex().row();
  if (row < 0) return;
  // Of its own, as the list may change while the editor opens.
  const SettingPosition at = model_.Setting(row).at;
  if (!at.item.empty() && on_open && on_open(at)) return;
  QMessageBox::information(
      this, windowTitle(),
      at.item.empty() ? Tr("No editor shows this setting.") : Tr("Its editor does not open now."));
}

void FindBox::Copy() {
  QModelIndexList rows = list_->selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  QString text;
  for (const QModelIndex& row : rows) {
    QStringList cells;
    for (int column = 0; column < FindModel::kColumns; ++column) {
      if (list_->isColumnHidden(column)) continue;
      const std::string cell = row.siblingAtColumn(column).data().toString().toStdString();
      cells << QString::fromStdString(HarmlessCell(cell)).replace(QRegularExpression("\\s"), " ");
    }
    text += cells.join('\t') + '\n';
  }
  QGuiApplication::clipboard()->setText(text);
}

void FindBox::Export() {
  const auto path =
      platform_.AskFile({.purpose = FileRequest::Purpose::kSave,
                         .title = Say("Export as CSV"),
                         .default_name = name_of_export ? name_of_export() : std::string(),
                         .filter = "*.csv",
                         .default_extension = "csv",
                         .ask_before_overwriting = true});
  if (!path) return;
  const std::string csv = CsvOf(model_.Table(), model_.Shown());
  try {
    platform_.StoreFile(*path, {reinterpret_cast<const Byte*>(csv.data()), csv.size()});
    count_->setText(Tr("%1 exported").arg(model_.rowCount()));
  } catch (const std::exception& error) {
    PlainBox(QMessageBox::Warning, QString::fromStdString(error.what()), QMessageBox::Ok, this)
        .exec();
  }
}

}  // namespace quorvel::muxhost
