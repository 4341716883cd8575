#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>

#include "tests/qt/muxhost_on_screen.h"

namespace quorvel::muxhost {
namespace {

class MuxhostFiles : public MuxhostOnScreen {
 protected:
  QAction& Entry(const QString& menu, const QString& text) {
    for (QAction* const it : window_.menuBar()->actions()) {
      if (it->text() != menu) continue;
      for (QAction* const entry : it->menu()->actions()) {
        if (entry->text() == text) return *entry;
      }
    }
    throw std::runtime_error("no entry " + text.toStdString());
  }
  template <class... Acts>
  void Give(const char* entry, Acts... acts) {
    std::list<WhenShown> waiting;
    (waiting.emplace_back(acts), ...);
    Entry("&File", entry).trigger();
  }
  static Act Naming(const QString& path) {
    return [path] { return Name(path); };
  }
  [[nodiscard]] QStringList Recent() {
    QMenu* const menu = Entry("&File", "Open &recent").menu();
    emit menu->aboutToShow();
    QStringList names;
    for (const QAction* const it : menu->actions()) names << it->text().section('/', -1);
    return names;
  }
  QString FactoryFile(const char* name) {
    const auto bytes = session_.Device().Bytes();
    return NewFile(name, {bytes.begin(), bytes.end()});
  }
  void SetTitle(int camera, const char* title) {
    session_.Control().SetSetting("CamInfo(" + std::to_string(camera) + ").title", title);
  }
  [[nodiscard]] std::string TitleOf(int camera) {
    return session_.Control()
        .GetSetting("CamInfo(" + std::to_string(camera) + ").title")
        .value_or("");
  }
  [[nodiscard]] bool IsMarked(bool marked) {
    return QTest::qWaitFor([&] { return window_.isWindowModified() == marked; });
  }
  /// Chooses a model in the dialog that asks for a device, and connects it.
  static Act Connecting(int model) {
    return [model] {
      QWidget* const box = QApplication::activeModalWidget();
      if (box == nullptr || box->objectName() != "Device") return false;
      auto* const list = box->findChild<QComboBox*>();
      EXPECT_EQ(list->currentData().toInt(), 6) << "that of what is open";
      list->setCurrentIndex(model);
      return Press("Connect");
    };
  }
};

TEST_F(MuxhostFiles, AreEditedAndSavedWithoutADeviceAndSentLater) {
  window_.Backups().SetWanted(true);
  const QString path = FactoryFile("gate.bin");
  EXPECT_EQ(window_.windowTitle(), "muxhost");
  Give("&Open...", Naming(path));
  EXPECT_EQ(window_.windowTitle(), "gate.bin[*] - muxhost");
  EXPECT_FALSE(window_.isWindowModified());
  EXPECT_TRUE(window_.findChild<QLabel*>("Identity")->text().startsWith("Without a device:  TX16"));
  EXPECT_EQ(Button("Download").toolTip(), "Connect a device first (at the left)");
  EXPECT_EQ(window_.focusWidget(), &Button("Menu"));

  Choose("mnu_CSetup");
  QWidget& editor = *OnScreen("frm_CameraSetup");
  auto* const title = Find<QLineEdit>(&editor, "m_CameraTitle(2)");
  title->selectAll();
  QTest::keyClicks(title, "Yard");
  QTest::mouseClick(Find<QPushButton>(&editor, "cmd_OK"), Qt::LeftButton);
  DismissMenu();
  EXPECT_TRUE(IsMarked(true));
  {
    const WhenShown question(Answering("Cancel"));
    window_.close();
  }
  EXPECT_EQ(told_, "gate.bin has changes that are not saved. Closing loses the changes.");
  Give("&Save");
  EXPECT_TRUE(IsMarked(false));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.read(38).mid(32), "Yard  ") << "the title of the third camera";

  // Another model is refused before it is read, let alone written.
  Click("Upload all", Connecting(8), Answering("OK"));
  EXPECT_TRUE(told_.contains("TX16 (16 ch, Triplex NTSC, Lite/EZ)")) << told_.toStdString();
  EXPECT_FALSE(session_.HasDevice());
  EXPECT_EQ(BackupFiles().size(), 0);
  EXPECT_EQ(TitleOf(2), "\"Yard\"");

  Click("Upload modified", Connecting(6), SendListed,
        [this] { return session_.LastExchange().end_written && Press("CLOSE"); });
  EXPECT_EQ(BackupFiles().size(), 1);
  EXPECT_EQ(session_.Device().ReadBlock(3)->at(0), 'Y');
  EXPECT_TRUE(window_.close()) << "nothing is lost";
}

TEST_F(MuxhostFiles, RestoredForAnotherModelTheyAreComparedBeforeTheBackup) {
  const QString path = FactoryFile("gate.bin");
  session_.Connect(SimulatedDevice(DeviceSetup{.model = 8}));
  window_.Backups().SetWanted(true);
  Restore(path);
  Click("Upload all", Answering("OK"));
  EXPECT_TRUE(told_.startsWith("The current data does not match")) << told_.toStdString();
  EXPECT_EQ(BackupFiles().size(), 0);
}

TEST_F(MuxhostFiles, AreDroppedRememberedAndToldWhenTheyCannotBeUsed) {
  const auto drop = [this](const QString& path, auto... acts) {
    std::list<WhenShown> waiting;
    (waiting.emplace_back(acts), ...);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window_, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window_, &event);
    QApplication::processEvents();
  };
  EXPECT_EQ(Recent(), QStringList{"No file was opened yet"});
  for (const char* const name : {"a.bin", "b&c.bin", "a.bin"}) drop(FactoryFile(name));
  EXPECT_EQ(window_.windowTitle(), "a.bin[*] - muxhost");
  EXPECT_EQ(Recent(), (QStringList{"a.bin", "b&&c.bin"}));

  SetTitle(0, "Kept");
  const auto discard = [] { return Press("Discard"); };
  drop(NewFile("odd.bin", std::vector<Byte>(64)), discard, Answering("OK"));
  EXPECT_EQ(told_, "odd.bin is not a settings file that can be used.");
  EXPECT_EQ(TitleOf(0), "\"Kept\"");
  EXPECT_EQ(window_.windowTitle(), "a.bin[*] - muxhost");

  QFile::remove(backups_.filePath("b&c.bin"));
  {
    const WhenShown told(Answering("OK"));
    Entry("&File", "Open &recent").menu()->actions().at(1)->trigger();
  }
  EXPECT_EQ(told_, "b&c.bin cannot be read.");
  EXPECT_EQ(Recent(), QStringList{"a.bin"});

  // What is open is saved before another is.
  drop(FactoryFile("d.bin"), [] { return Press("Save"); });
  EXPECT_EQ(window_.windowTitle(), "d.bin[*] - muxhost");
  drop(backups_.filePath("a.bin"));
  EXPECT_EQ(TitleOf(0), "\"Kept\"");
}

TEST_F(MuxhostFiles, BeginWithFactoryDefaultsAndAreComparedWithOthers) {
  const QString other = FactoryFile("other.bin");
  Give("&New from factory defaults...", [] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr || box->objectName() != "Device") return false;
    box->findChild<QLineEdit*>("name")->setText("Front: gate");
    return Press("New");
  });
  EXPECT_EQ(window_.windowTitle(), "Front: gate (new)[*] - muxhost");
  EXPECT_FALSE(window_.isWindowModified());
  SetTitle(0, "Dock");
  EXPECT_TRUE(IsMarked(true));
  const QString saved = backups_.filePath("dock.bin");  // typed without its ending
  QString proposed;
  Give("Save &as...", [&] {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return false;
    proposed = dialog->findChild<QLineEdit*>("fileNameEdit")->text();
    return Name(backups_.filePath("dock"));
  });
  const QString date = QDate::currentDate().toString(Qt::ISODate);
  EXPECT_EQ(proposed.section('/', -1), "TX16 Front_ gate " + date + ".bin");
  EXPECT_EQ(window_.windowTitle(), "dock.bin[*] - muxhost");

  QString shown;
  const auto copy = [&shown] {
    QWidget* const box = QApplication::activeModalWidget();
    if (box == nullptr || box->objectName() != "Comparison" || !Press("C&opy")) return false;
    shown = QApplication::clipboard()->text();
    return Press("Close") || Press("&Close");
  };
  Give("&Compare with file...", Naming(other), copy);
  EXPECT_TRUE(shown.contains("CamInfo(0).title: \"Camera 01   \\x00\" -> \"Dock\"\n"))
      << shown.toStdString();
  Give("Compare &two files...", Naming(saved), Naming(other), copy);
  EXPECT_TRUE(shown.startsWith("blocks: 200 -> 225\n")) << shown.toStdString();
}

TEST_F(MuxhostFiles, ReportsAreCalledByTheirKind) {
  Give("&Open...", Naming(FactoryFile("gate.bin")));
  const auto choose = [this](int kind, const char* name) {
    return [this, kind, name] {
      auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return false;
      emit dialog->filterSelected(dialog->nameFilters().at(kind));
      EXPECT_TRUE(dialog->findChild<QLineEdit*>("fileNameEdit")->text().endsWith(".html"));
      return Name(backups_.filePath(name));
    };
  };
  Give("Save r&eport...", choose(1, "paper"));
  QFile report(backups_.filePath("paper.html"));
  ASSERT_TRUE(report.open(QIODevice::ReadOnly));
  EXPECT_TRUE(report.readAll().startsWith("<!DOCTYPE html>"));
}

TEST_F(MuxhostFiles, CloseWithAnOpenEditorOnlyAsTheUserSaysAndLeaveNoneBehind) {
  Give("&Open...", Naming(FactoryFile("gate.bin")));
  SetTitle(0, "Dock");
  EXPECT_TRUE(IsMarked(true));
  Choose("mnu_CSetup");
  QWidget& editor = *OnScreen("frm_CameraSetup");
  QTest::keyClicks(Find<QLineEdit>(&editor, "m_CameraTitle(2)"), "Yard");
  {
    const WhenShown question([this] {
      QWidget* const box = QApplication::activeModalWidget();
      EXPECT_EQ(Find<QPushButton>(box, "Save"), nullptr) << "what is typed would not be saved";
      return Answering("Cancel")();
    });
    EXPECT_FALSE(window_.close());
  }
  EXPECT_EQ(told_,
            "gate.bin has changes that are not saved. A window of the menu is open. Closing loses "
            "the changes.");
  EXPECT_TRUE(editor.isVisible());
  const QPointer<QWidget> left(&editor);
  const WhenShown question(Answering("Discard"));
  EXPECT_TRUE(window_.close());
  EXPECT_TRUE(QTest::qWaitFor([&] { return left == nullptr || !left->isVisible(); }));
}

TEST_F(MuxhostFiles, ConnectLeavesThemOnlyWhenToldTo) {
  Give("&Open...", Naming(FactoryFile("gate.bin")));
  window_.centralWidget()->findChildren<QComboBox*>().at(0)->setCurrentIndex(3);
  Click("Connect", Answering("Cancel"));
  EXPECT_EQ(window_.windowTitle(), "gate.bin[*] - muxhost");
  Click("Connect", Answering("Connect without it"));
  EXPECT_EQ(window_.windowTitle(), "muxhost");
  EXPECT_EQ(session_.Device().ModelCode(), 3);

  // The next run begins with that device.
  window_.close();
  HostSession session(platform_, [](int, const std::function<void()>&) {});
  const MainWindow next(platform_, session, Kept());
  EXPECT_EQ(session.Device().ModelCode(), 3);
}

}  // namespace
}  // namespace quorvel::muxhost
