#include "platform/qt/questions.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "platform/qt/in_front.h"
#include "platform/qt/texts.h"

namespace quorvel::qt {

namespace {

/// The filter as people read it.
QString DescribeFilter(const QString& filter) {
  if (filter == QLatin1String("*.bin")) return QStringLiteral("Settings files (*.bin)");
  return QStringLiteral("Files (%1)").arg(filter);
}

/// A filter in the place of a name would become a file that is called so.
bool IsPattern(const QString& name) { return name.contains('*') || name.contains('?'); }

}  // namespace

bool AskMessage(const Message& message, const QWidget* over) {
  QString text = Shown(message.text);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n');
  const bool question = message.buttons == Message::Buttons::kOkCancel;
  QMessageBox box;
  box.setIcon(question ? QMessageBox::Question : QMessageBox::Information);
  box.setWindowTitle(Shown(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setStandardButtons(question ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
  KeepInFrontOf(box, over);
  return box.exec() == QMessageBox::Ok;
}

std::optional<std::string> AskForFile(const FileRequest& request, QString& folder,
                                      const QWidget* over) {
  const bool save = request.purpose == FileRequest::Purpose::kSave;
  QFileDialog dialog;
  if (!request.title.empty()) dialog.setWindowTitle(Shown(request.title));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.ask_before_overwriting);
  if (!request.filter.empty()) dialog.setNameFilter(DescribeFilter(Shown(request.filter)));
  dialog.setDefaultSuffix(Shown(request.default_extension));
  if (!folder.isEmpty()) dialog.setDirectory(folder);
  const QString proposed = Shown(request.default_name);
  if (!proposed.isEmpty() && !IsPattern(proposed)) dialog.selectFile(proposed);
  KeepInFrontOf(dialog, over);
  while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
    const QFileInfo file(dialog.selectedFiles().front());
    if (!IsPattern(file.fileName())) {
      folder = file.absolutePath();
      return Stored(dialog.selectedFiles().front());
    }
    QMessageBox::warning(nullptr, dialog.windowTitle(),
                         QStringLiteral("The name of a file cannot contain * or ?."));
  }
  return std::nullopt;
}

}  // namespace quorvel::qt
