#include "platform/qt/questions.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>

#include "platform/qt/in_front.h"
#include "platform/qt/texts.h"

namespace quorvel::qt {

namespace {

/// The filter as the user reads it.
QString DescribeFilter(const QString& filter) {
  if (filter == QLatin1String("*.bin")) return Tr("Settings files") + " (*.bin)";
  return Tr("Files") + QStringLiteral(" (%1)").arg(filter);
}

/// A ticked box that says that the file is only read. While it is ticked, nothing in the folder can
/// be renamed or deleted from the dialog either. Dialogs of the desktop's own take no such box.
void AddReadOnlyBox(QFileDialog& dialog) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::ReadOnly);
  auto* const box = new QCheckBox(Tr("Open as read-only"), &dialog);
  box->setObjectName(QStringLiteral("readOnlyBox"));
  box->setChecked(true);
  QObject::connect(box, &QCheckBox::toggled, &dialog,
                   [&dialog](bool on) { dialog.setOption(QFileDialog::ReadOnly, on); });
  auto* const grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (grid != nullptr) grid->addWidget(box, grid->rowCount(), 0, 1, -1);
}

QMessageBox::Icon IconOf(Message::Kind kind) {
  switch (kind) {
    case Message::Kind::kInformation: return QMessageBox::Information;
    case Message::Kind::kWarning: return QMessageBox::Warning;
    case Message::Kind::kQuestion: return QMessageBox::Question;
    case Message::Kind::kError: return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

/// A filter in the place of a name would become a file that is called so.
bool IsPattern(const QString& name) { return name.contains('*') || name.contains('?'); }

}  // namespace

bool AskMessage(const Message& message, const QWidget* over) {
  QString text = Shown(message.text);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n');
  const bool may_cancel = message.buttons == Message::Buttons::kOkCancel;
  QMessageBox box;
  box.setIcon(IconOf(message.kind));
  box.setWindowTitle(Shown(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setStandardButtons(may_cancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
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
  if (request.read_only_box) AddReadOnlyBox(dialog);
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
                         Tr("The name of a file cannot contain * or ?."));
  }
  return std::nullopt;
}

}  // namespace quorvel::qt
