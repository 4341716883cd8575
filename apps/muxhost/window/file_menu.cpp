#include "muxhost/window/file_menu.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <stdexcept>

#include "muxhost/file_name.h"
#include "muxhost/report/pdf.h"
#include "muxhost/report/report.h"
#include "muxhost/window/compare_box.h"
#include "muxhost/window/device_box.h"
#include "muxhost/window/plain_box.h"
#include "muxhost/window/report_box.h"
#include "muxhost/window/tr.h"
#include "muxhost/window/words.h"
#include "quorvel/settings_file.h"

namespace quorvel::muxhost {

namespace {

const QString kSettings = "settings";
const QString kReports = "reports";
const QString kComparing = "comparing";
const QString kNewDevice = "newDevice";

QString SettingsFiles() {
  return QString("%1 (*.bin);;%2 (*)").arg(Tr("Settings files"), Tr("All files"));
}

}  // namespace

FileMenu::FileMenu(const Surroundings& at) : QObject(&at.window), at_(at) {
  AddActions(*at_.window.menuBar()->addMenu(Tr("&File")));
}

void FileMenu::AddActions(QMenu& menu) {
  const auto add = [&](const QString& text, auto act, const QKeySequence& keys = {}) {
    return menu.addAction(text, keys, this, act);
  };
  opening_.push_back(add(
      Tr("&New from factory defaults..."), [this] { New(); }, QKeySequence::New));
  opening_.push_back(add(
      Tr("&Open..."), [this] { AskForFile(); }, QKeySequence::Open));
  recent_ = menu.addMenu(Tr("Open &recent"));
  opening_.push_back(recent_->menuAction());
  QObject::connect(recent_, &QMenu::aboutToShow, this, [this] { ListRecent(); });
  menu.addSeparator();
  keeping_.push_back(add(
      Tr("&Save"), [this] { Save(); }, QKeySequence::Save));
  keeping_.push_back(add(
      Tr("Save &as..."), [this] { SaveAs(); }, QKeySequence("Ctrl+Shift+S")));
  menu.addSeparator();
  keeping_.push_back(add(Tr("&Compare with file..."), [this] { CompareWithFile(); }));
  add(Tr("Compare &two files..."), [this] { CompareTwoFiles(); });
  menu.addSeparator();
  keeping_.push_back(add(
      Tr("&Print report..."), [this] { PreviewReport(at_.window, Report()); },
      QKeySequence::Print));
  keeping_.push_back(add(Tr("Save r&eport..."), [this] { SaveReport(); }));
  menu.addSeparator();
  add(
      Tr("&Quit"), [this] { at_.window.close(); }, QKeySequence("Ctrl+Q"));
  ListRecent();
}

void FileMenu::ListRecent() {
  recent_->clear();
  int number = 0;
  for (const QString& path : at_.memory.RecentFiles()) {
    QString shown = QDir::toNativeSeparators(path);
    shown.replace('&', "&&");
    recent_->addAction(QString("&%1  %2").arg(++number).arg(shown), this,
                       [this, path] { OpenFile(path); });
  }
  if (number == 0) recent_->addAction(Tr("No file was opened yet"))->setEnabled(false);
}

void FileMenu::Warn(const QString& trouble, const std::string& why) {
  PlainBox box(QMessageBox::Warning, trouble, QMessageBox::Ok, &at_.window);
  box.setInformativeText(QString::fromStdString(why));
  box.exec();
}

std::optional<std::vector<Byte>> FileMenu::Read(const QString& path) {
  try {
    return at_.platform.ReadFile(path.toStdString());
  } catch (const std::exception& error) {
    if (!QFileInfo::exists(path)) at_.memory.DropRecent(path);
    Warn(Tr("%1 cannot be read.").arg(QFileInfo(path).fileName()), error.what());
    return std::nullopt;
  }
}

QString FileMenu::AskForName(const QString& title, const QString& purpose) {
  const QString path =
      QFileDialog::getOpenFileName(&at_.window, title, at_.memory.Folder(purpose), SettingsFiles());
  if (!path.isEmpty()) at_.memory.NoteFolderOf(purpose, path);
  return path;
}

void FileMenu::New() {
  DeviceBox box(DeviceBox::For::kDefaults, at_.platform, &at_.window);
  box.Picker().Choose(at_.memory.Value(kNewDevice).toMap());
  const auto setup = box.Ask();
  if (!setup || !may_lose(Tr("A new configuration"))) return;
  const QString none = Tr("There are no factory defaults of that device.");
  try {
    const LoadAnswer answer = at_.session.OpenDefaults(*setup);
    if (!answer) return Warn(none, answer.cause);
  } catch (const std::invalid_argument& error) {
    return Warn(none, error.what());
  }
  at_.memory.SetValue(kNewDevice, box.Picker().Choice());
  document_.Begin(at_.session.Control(), {},
                  Tr("%1 (new)").arg(NameOf(at_.session.Device(), at_.platform)));
  at_.log.Tell(Tr("Factory defaults are open, without a device."));
  on_opened();
}

void FileMenu::AskForFile() {
  const QString path = AskForName(Tr("Open a settings file"), kSettings);
  if (!path.isEmpty()) OpenFile(path);
}

void FileMenu::OpenFile(const QString& path) {
  const auto bytes = Read(path);
  if (!bytes || !may_lose(Tr("Opening a file"))) return;
  const QString file = QFileInfo(path).fileName();
  const LoadAnswer answer = at_.session.Open(*bytes);
  if (!answer) {
    return Warn(Tr("%1 is not a settings file that can be used.").arg(file), answer.cause);
  }
  at_.memory.AddRecent(path);
  document_.Begin(at_.session.Control(), QFileInfo(path).absoluteFilePath(), {});
  at_.log.Tell(Tr("%1 is open, without a device.").arg(file));
  on_opened();
  if (!answer.cause.empty()) Warn(Tr("%1 is not complete.").arg(file), answer.cause);
}

bool FileMenu::Save() { return document_.Path().isEmpty() ? SaveAs() : SaveInto(document_.Path()); }

QString FileMenu::ProposedName(const QString& ending) const {
  const auto image = at_.session.Control().EditedImage();
  const QString proposed = QString::fromStdString(ProposedFileName(image, at_.platform.Now().date));
  return proposed.left(proposed.lastIndexOf('.')) + ending;
}

QString FileMenu::AskForNewName(const QString& title, const QString& purpose,
                                const std::vector<Kind>& kinds) {
  QFileDialog dialog(&at_.window, title, at_.memory.Folder(purpose));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  QStringList filters;
  for (const Kind& kind : kinds) filters << kind.name + " (*" + kind.ending + ")";
  dialog.setNameFilters(filters << Tr("All files") + " (*)");
  dialog.setDefaultSuffix(kinds.front().ending);
  dialog.selectFile(ProposedName(kinds.front().ending));
  // A name that has the ending of one kind gets that of the next.
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
    const auto number = filters.indexOf(filter);
    if (number < 0 || number >= static_cast<qsizetype>(kinds.size())) return;
    const QString& ending = kinds.at(static_cast<std::size_t>(number)).ending;
    const QString former = '.' + dialog.defaultSuffix();
    dialog.setDefaultSuffix(ending);
    const QString name = QFileInfo(dialog.selectedFiles().value(0)).fileName();
    if (!name.endsWith(former, Qt::CaseInsensitive)) return;
    dialog.selectFile(name.left(name.size() - former.size()) + ending);
  });
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  at_.memory.NoteFolderOf(purpose, dialog.selectedFiles().front());
  return dialog.selectedFiles().front();
}

std::string FileMenu::Report() {
  const std::string file = document_.IsOpen() ? document_.Name().toStdString() : std::string();
  return HtmlReport(at_.session.Control(), {file, at_.platform.Now(), Say});
}

void FileMenu::SaveReport() {
  const QString path = AskForNewName(Tr("Save a report"), kReports,
                                     {{Tr("PDF files"), ".pdf"}, {Tr("HTML files"), ".html"}});
  if (path.isEmpty()) return;
  const std::string html = Report();
  const bool is_html = path.endsWith(".html", Qt::CaseInsensitive);
  try {
    at_.platform.StoreFile(path.toStdString(),
                           is_html ? std::vector<Byte>(html.begin(), html.end()) : PdfOf(html));
    at_.log.Tell(Tr("Report: %1.").arg(path));
  } catch (const std::exception& error) {
    Warn(Tr("The report is not saved."), error.what());
  }
}

bool FileMenu::SaveAs() {
  const QString path =
      AskForNewName(Tr("Save the settings"), kSettings, {{Tr("Settings files"), ".bin"}});
  return !path.isEmpty() && SaveInto(path);
}

bool FileMenu::SaveInto(const QString& path) {
  const auto bytes = at_.session.Control().SaveSettings();
  try {
    at_.platform.StoreFile(path.toStdString(), bytes);
  } catch (const std::exception& error) {
    Warn(Tr("The settings are not saved."), error.what());
    return false;
  }
  at_.memory.AddRecent(path);
  document_.Begin(at_.session.Control(), QFileInfo(path).absoluteFilePath(), {});
  ShowTitle();
  at_.log.Tell(Tr("Saved: %1 bytes in %2.").arg(bytes.size()).arg(path));
  if (bytes.size() >= kRestoreLimit) {
    Warn(Tr("The file is too long to be opened again."),
         Say("Files of 32768 bytes or more are kept, but cannot be restored."));
  }
  return true;
}

void FileMenu::CompareWithFile() {
  const QString path = AskForName(Tr("Compare with a settings file"), kComparing);
  const auto bytes = path.isEmpty() ? std::nullopt : Read(path);
  if (!bytes) return;
  ShowComparison(Tr("From %1 to the open settings").arg(QFileInfo(path).fileName()),
                 muxhost::CompareWithFile(*bytes, at_.session.Control()));
}

void FileMenu::CompareTwoFiles() {
  const QString first = AskForName(Tr("The first file to compare"), kComparing);
  const auto before = first.isEmpty() ? std::nullopt : Read(first);
  if (!before) return;
  const QString second = AskForName(Tr("The second file to compare"), kComparing);
  const auto after = second.isEmpty() ? std::nullopt : Read(second);
  if (!after) return;
  ShowComparison(Tr("From %1 to %2").arg(QFileInfo(first).fileName(), QFileInfo(second).fileName()),
                 CompareFiles(*before, *after));
}

void FileMenu::ShowComparison(const QString& what, const Comparison& comparison) {
  if (!comparison.refusal.empty()) {
    return Warn(Tr("The settings cannot be compared."), comparison.refusal);
  }
  CompareBox(what, comparison, &at_.window).exec();
}

void FileMenu::Show(const QString& why_not, bool loaded) {
  for (QAction* const action : opening_) action->setEnabled(why_not.isEmpty());
  for (QAction* const action : keeping_) action->setEnabled(loaded);
  ShowTitle();
}

void FileMenu::ShowTitle() {
  at_.window.setWindowTitle(document_.IsOpen() ? document_.Name() + "[*] - muxhost" : "muxhost");
  at_.window.setWindowModified(IsUnsaved());
}

}  // namespace quorvel::muxhost
