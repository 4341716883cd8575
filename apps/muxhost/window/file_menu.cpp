#include "muxhost/window/file_menu.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <stdexcept>

#include "muxhost/file_name.h"
#include "muxhost/report/pdf.h"
#include "muxhost/report/report.h"
#include "muxhost/window/compare_box.h"
#include "muxhost/window/device_box.h"
#include "muxhost/window/report_box.h"
#include "muxhost/window/words.h"
#include "quorvel/settings_file.h"

namespace quorvel::muxhost {

namespace {

const QString kFilter = "Settings files (*.bin);;All files (*)";
const QString kSettings = "settings";
const QString kReports = "reports";
const QString kComparing = "comparing";
const QString kNewDevice = "newDevice";

}  // namespace

FileMenu::FileMenu(const Surroundings& at) : QObject(&at.window), at_(at) {
  AddActions(*at_.window.menuBar()->addMenu("&File"));
}

void FileMenu::AddActions(QMenu& menu) {
  const auto add = [&](const char* text, auto act, const QKeySequence& keys = {}) {
    return menu.addAction(text, keys, this, act);
  };
  opening_.push_back(add(
      "&New from factory defaults...", [this] { New(); }, QKeySequence::New));
  opening_.push_back(add(
      "&Open...", [this] { AskForFile(); }, QKeySequence::Open));
  recent_ = menu.addMenu("Open &recent");
  opening_.push_back(recent_->menuAction());
  QObject::connect(recent_, &QMenu::aboutToShow, this, [this] { ListRecent(); });
  menu.addSeparator();
  keeping_.push_back(add(
      "&Save", [this] { Save(); }, QKeySequence::Save));
  keeping_.push_back(add(
      "Save &as...", [this] { SaveAs(); }, QKeySequence("Ctrl+Shift+S")));
  menu.addSeparator();
  keeping_.push_back(add("&Compare with file...", [this] { CompareWithFile(); }));
  add("Compare &two files...", [this] { CompareTwoFiles(); });
  menu.addSeparator();
  keeping_.push_back(add(
      "&Print report...", [this] { PreviewReport(at_.window, Report()); }, QKeySequence::Print));
  keeping_.push_back(add("Save r&eport...", [this] { SaveReport(); }));
  menu.addSeparator();
  add(
      "&Quit", [this] { at_.window.close(); }, QKeySequence("Ctrl+Q"));
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
  if (number == 0) recent_->addAction("No file was opened yet")->setEnabled(false);
}

void FileMenu::Warn(const QString& trouble, const std::string& why) {
  QMessageBox box(QMessageBox::Warning, at_.window.windowTitle(), trouble, QMessageBox::Ok,
                  &at_.window);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(QString::fromStdString(why));
  box.exec();
}

std::optional<std::vector<Byte>> FileMenu::Read(const QString& path) {
  try {
    return at_.platform.ReadFile(path.toStdString());
  } catch (const std::exception& error) {
    if (!QFileInfo::exists(path)) at_.memory.DropRecent(path);
    Warn(QString("%1 cannot be read.").arg(QFileInfo(path).fileName()), error.what());
    return std::nullopt;
  }
}

QString FileMenu::AskForName(const QString& title, const QString& purpose) {
  const QString path =
      QFileDialog::getOpenFileName(&at_.window, title, at_.memory.Folder(purpose), kFilter);
  if (!path.isEmpty()) at_.memory.NoteFolderOf(purpose, path);
  return path;
}

void FileMenu::New() {
  DeviceBox box(DeviceBox::For::kDefaults, at_.platform, &at_.window);
  box.Picker().Choose(at_.memory.Value(kNewDevice).toMap());
  const auto setup = box.Ask();
  if (!setup || !may_lose("A new configuration")) return;
  try {
    const LoadAnswer answer = at_.session.OpenDefaults(*setup);
    if (!answer) return Warn("There are no factory defaults of that device.", answer.cause);
  } catch (const std::invalid_argument& error) {
    return Warn("There are no factory defaults of that device.", error.what());
  }
  at_.memory.SetValue(kNewDevice, box.Picker().Choice());
  document_.Begin(at_.session.Control(), {}, NameOf(at_.session.Device(), at_.platform) + " (new)");
  at_.log.Add("factory defaults are open, without a device");
  on_opened(false);
}

void FileMenu::AskForFile() {
  const QString path = AskForName("Open a settings file", kSettings);
  if (!path.isEmpty()) OpenFile(path);
}

void FileMenu::OpenFile(const QString& path) {
  const auto bytes = Read(path);
  if (!bytes || !may_lose("Opening a file")) return;
  const QString file = QFileInfo(path).fileName();
  const LoadAnswer answer = at_.session.Open(*bytes);
  if (!answer) {
    return Warn(QString("%1 is not a settings file that can be used.").arg(file), answer.cause);
  }
  at_.memory.AddRecent(path);
  document_.Begin(at_.session.Control(), QFileInfo(path).absoluteFilePath(), {});
  at_.log.Add(file.toStdString() + " is open, without a device");
  on_opened(true);
  if (!answer.cause.empty()) Warn(QString("%1 is not complete.").arg(file), answer.cause);
}

bool FileMenu::Save() { return document_.Path().isEmpty() ? SaveAs() : SaveInto(document_.Path()); }

QString FileMenu::ProposedName(const QString& purpose, const QString& ending) {
  const auto image = at_.session.Control().EditedImage();
  QString proposed = QString::fromStdString(ProposedFileName(image, at_.platform.Now().date));
  if (!ending.isEmpty()) proposed.replace(proposed.lastIndexOf('.'), proposed.size(), ending);
  const QString folder = at_.memory.Folder(purpose);
  return folder.isEmpty() ? proposed : QDir(folder).filePath(proposed);
}

std::string FileMenu::Report() {
  const std::string source = document_.IsOpen() ? document_.Name().toStdString() : "the device";
  return HtmlReport(at_.session.Control(), {source, at_.platform.Now()});
}

void FileMenu::SaveReport() {
  const QString path =
      QFileDialog::getSaveFileName(&at_.window, "Save a report", ProposedName(kReports, ".pdf"),
                                   "PDF files (*.pdf);;HTML files (*.html)");
  if (path.isEmpty()) return;
  at_.memory.NoteFolderOf(kReports, path);
  const std::string html = Report();
  const bool is_html = path.endsWith(".html", Qt::CaseInsensitive);
  try {
    at_.platform.StoreFile(path.toStdString(),
                           is_html ? std::vector<Byte>(html.begin(), html.end()) : PdfOf(html));
    at_.log.Add("report: " + path.toStdString());
  } catch (const std::exception& error) {
    Warn("The report is not saved.", error.what());
  }
}

bool FileMenu::SaveAs() {
  const QString path = QFileDialog::getSaveFileName(&at_.window, "Save the settings",
                                                    ProposedName(kSettings), kFilter);
  if (path.isEmpty()) return false;
  at_.memory.NoteFolderOf(kSettings, path);
  return SaveInto(path);
}

bool FileMenu::SaveInto(const QString& path) {
  const auto bytes = at_.session.Control().SaveSettings();
  try {
    at_.platform.StoreFile(path.toStdString(), bytes);
  } catch (const std::exception& error) {
    Warn("The settings are not saved.", error.what());
    return false;
  }
  at_.memory.AddRecent(path);
  document_.Begin(at_.session.Control(), QFileInfo(path).absoluteFilePath(), {});
  ShowTitle();
  at_.log.Add("saved: " + std::to_string(bytes.size()) + " bytes in " + path.toStdString());
  if (bytes.size() >= kRestoreLimit) {
    Warn("The file is too long to be opened again.",
         "Files of 32768 bytes or more are kept, but cannot be restored.");
  }
  return true;
}

void FileMenu::CompareWithFile() {
  const QString path = AskForName("Compare with a settings file", kComparing);
  const auto bytes = path.isEmpty() ? std::nullopt : Read(path);
  if (!bytes) return;
  ShowComparison(QString("From %1 to the open settings").arg(QFileInfo(path).fileName()),
                 muxhost::CompareWithFile(*bytes, at_.session.Control()));
}

void FileMenu::CompareTwoFiles() {
  const QString first = AskForName("The first file to compare", kComparing);
  const auto before = first.isEmpty() ? std::nullopt : Read(first);
  if (!before) return;
  const QString second = AskForName("The second file to compare", kComparing);
  const auto after = second.isEmpty() ? std::nullopt : Read(second);
  if (!after) return;
  ShowComparison(
      QString("From %1 to %2").arg(QFileInfo(first).fileName(), QFileInfo(second).fileName()),
      CompareFiles(*before, *after));
}

void FileMenu::ShowComparison(const QString& what, const Comparison& comparison) {
  if (!comparison.refusal.empty()) {
    return Warn("The settings cannot be compared.", comparison.refusal);
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
