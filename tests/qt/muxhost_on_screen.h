#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <list>
#include <string>
#include <utility>

#include "muxhost/window/main_window.h"

namespace quorvel::muxhost {

/// What the user does to a window that comes up; false as long as it has not come.
using Act = std::function<bool()>;

/// Acts on the first window of a kind that comes on screen, from within the loop.
class WhenShown : public QObject {
 public:
  explicit WhenShown(Act act) : act_(std::move(act)) {
    QObject::connect(&timer_, &QTimer::timeout, this, [this] {
      if (act_()) timer_.stop();
    });
    timer_.start(1);
  }
  ~WhenShown() override { EXPECT_FALSE(timer_.isActive()) << "the window did not come"; }

 private:
  Act act_;
  QTimer timer_;
};

/// The host's window on screen, with a session whose link takes no time.
class MuxhostOnScreen : public testing::Test {
 protected:
  MuxhostOnScreen() {
    session_.Configure({.latency_ms = 0});
    window_.Backups().SetFolder(backups_.filePath("kept"));
    window_.Backups().SetWanted(false);  // a fault of the link would strike it
    window_.Backups().SetReviewWanted(false);
    window_.show();
  }

  /// A part of a window by its text, its name for screen readers or its name in the code.
  template <class QtWidget = QPushButton>
  [[nodiscard]] static QtWidget* Find(QWidget* in, const QString& text) {
    for (QtWidget* const widget : in->findChildren<QtWidget*>()) {
      if (widget->property("text") == text || widget->accessibleName() == text ||
          widget->objectName() == text) {
        return widget;
      }
    }
    return nullptr;
  }
  [[nodiscard]] QPushButton& Button(const char* text) { return *Find(&window_, text); }
  /// Clicks a button of the window once it can be: the window looks for changes from time to time.
  /// Then acts on the windows that come up.
  template <class... Acts>
  void Click(const char* text, Acts... acts) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return Button(text).isEnabled(); })) << text;
    std::list<WhenShown> waiting;
    (waiting.emplace_back(acts), ...);
    QTest::mouseClick(&Button(text), Qt::LeftButton);
  }
  [[nodiscard]] QString Hint() { return window_.findChild<QLabel*>("Hint")->text(); }
  void ExpectHint(const QString& text) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Hint() == text; })) << Hint().toStdString();
  }
  [[nodiscard]] std::string Contents() {
    return Find<QPlainTextEdit>(&window_, "What the block holds")->toPlainText().toStdString();
  }
  [[nodiscard]] std::string Events() {
    auto* const log = Find<QListWidget>(&window_, "Events");
    std::string text;
    for (int i = 0; i < log->count(); ++i)
      text += log->item(i)->text().mid(11).toStdString() + "\n";
    return text;
  }
  /// Presses a button of a modal window once it can be pressed.
  static bool Press(const QString& text) {
    QWidget* const modal = QApplication::activeModalWidget();
    QPushButton* const button = modal == nullptr ? nullptr : Find(modal, text);
    if (button == nullptr || !button->isEnabled() || !button->isVisible()) return false;
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
  }
  static Act Pressing(const char* text) {
    return [text] { return Press(text); };
  }
  /// Answers a message box, and keeps what it told.
  Act Answering(const char* with) {
    return [this, with] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box != nullptr) told_ = box->text();
      return box != nullptr && Press(with);
    };
  }
  /// What a screen reader is told of a block's cell in the map.
  [[nodiscard]] std::string Cell(int block) {
    return map_.model()->index(block - 1, 0).data(Qt::AccessibleTextRole).toString().toStdString();
  }
  /// The files that hold backups, with their paths.
  [[nodiscard]] QStringList BackupFiles() {
    const QDir folder(window_.Backups().Folder());
    QStringList files = folder.entryList(QDir::Files);
    for (QString& file : files) file = folder.filePath(file);
    return files;
  }
  void ChangeZones() {
    session_.WriteZones(0, std::vector<Byte>(32, 0xA5));
    ASSERT_EQ(session_.Control().ModifiedBlocks(), (std::vector<Byte>{85, 86}));
  }
  /// Answers a file dialog.
  static bool Name(const QString& path) {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return false;
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
    return QMetaObject::invokeMethod(dialog, "accept");
  }
  /// Writes a file that is not the device's own.
  QString NewFile(const char* name, const std::vector<Byte>& bytes) {
    QFile file(backups_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    return file.fileName();
  }
  template <class... Acts>
  void Restore(const QString& path, Acts... acts) {
    Click(
        "Restore file", [path] { return Name(path); }, acts..., Pressing("OK"));
  }
  void Download() { Click("Download", Pressing("OK")); }
  /// Chooses what to send in the send dialog, and presses START.
  static bool StartSending(const QString& choice) {
    QWidget* const dialog = QApplication::activeModalWidget();
    auto* const option = dialog == nullptr ? nullptr : Find<QRadioButton>(dialog, choice);
    if (option == nullptr) return false;
    option->click();
    return Press("START");
  }
  static bool SendListed() { return StartSending("Select modified blocks"); }
  void SendModified() {
    Click("Upload modified", SendListed,
          [this] { return session_.LastExchange().end_written && Press("CLOSE"); });
  }
  static void DismissMenu() {
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    QApplication::activePopupWidget()->close();
  }
  void Choose(const char* item) {
    Click("Menu");
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    auto* const action = menu->findChild<QAction*>(item);
    for (QMenu* const inner : menu->findChildren<QMenu*>()) {
      if (!inner->actions().contains(action)) continue;
      menu->setActiveAction(inner->menuAction());
      QTest::keyClick(menu, Qt::Key_Right);
      menu = inner;
    }
    ASSERT_TRUE(menu->actions().contains(action)) << item;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
  }
  /// A window that is on screen, by its name in the code.
  [[nodiscard]] static QWidget* OnScreen(const char* name) {
    QWidget* window = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      for (QWidget* const it : QApplication::topLevelWidgets()) {
        if (it->objectName() == name && it->isVisible()) window = it;
      }
      return window != nullptr;
    })) << name;
    return window;
  }

  /// What the window remembers, in a file of the test's own.
  [[nodiscard]] std::unique_ptr<QSettings> Kept() const {
    return std::make_unique<QSettings>(backups_.filePath("muxhost.ini"), QSettings::IniFormat);
  }

  QString told_;  ///< by the last message box that was answered
  QTemporaryDir backups_;
  QtPlatform platform_;
  QObject turns_;
  HostSession session_{platform_, [this](int milliseconds, std::function<void()> task) {
                         QTimer::singleShot(milliseconds, &turns_, std::move(task));
                       }};
  MainWindow window_{platform_, session_, Kept()};
  QListView& map_ = *Find<QListView>(&window_, "Blocks");
};

}  // namespace quorvel::muxhost
