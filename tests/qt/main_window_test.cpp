#include "apps/muxhost/main_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRadioButton>
#include <QTest>
#include <functional>

#include "apps/muxhost/window_event_log.h"

namespace quorvel::muxhost {
namespace {

/// Acts on the first window of a kind that comes on screen, from within the loop.
class WhenShown : public QObject {
 public:
  explicit WhenShown(std::function<bool()> act) : act_(std::move(act)) {
    QObject::connect(&timer_, &QTimer::timeout, this, [this] {
      if (act_()) timer_.stop();
    });
    timer_.start(1);
  }
  ~WhenShown() override { EXPECT_FALSE(timer_.isActive()) << "the window did not come"; }

 private:
  std::function<bool()> act_;
  QTimer timer_;
};

class MuxhostWindow : public testing::Test {
 protected:
  MuxhostWindow() { window_.show(); }

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
  /// Presses a button of a modal window once it can be pressed.
  static bool Press(const QString& text) {
    QWidget* const modal = QApplication::activeModalWidget();
    QPushButton* const button = modal == nullptr ? nullptr : Find(modal, text);
    if (button == nullptr || !button->isEnabled()) return false;
    button->click();
    return true;
  }
  void Download() {
    const WhenShown finish([] { return Press("OK"); });
    Button("Download").click();
  }
  void SendModified() {
    const WhenShown send([] {
      QWidget* const dialog = QApplication::activeModalWidget();
      if (dialog == nullptr) return false;
      Find<QRadioButton>(dialog, "Select modified blocks")->click();
      return Press("START");
    });
    const WhenShown finish(
        [this] { return session_.LastExchange().end_written && Press("CLOSE"); });
    Button("Upload").click();
  }
  QWidget& Editor(const char* item, const char* name) {
    Button("Menu").click();
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(menu->findChild<QAction*>(item)).center());
    QWidget* editor = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      for (QWidget* const it : QApplication::topLevelWidgets()) {
        if (it->objectName() == name && it->isVisible()) editor = it;
      }
      return editor != nullptr;
    }));
    return *editor;
  }

  QtPlatform platform_;
  QObject turns_;
  HostSession session_{platform_, [this](int milliseconds, std::function<void()> task) {
                         QTimer::singleShot(milliseconds, &turns_, std::move(task));
                       }};
  MainWindow window_{platform_, session_};
};

TEST_F(MuxhostWindow, TitleTypedInTheEditorReachesTheDevice) {
  session_.Configure({.latency_ms = 0});
  EXPECT_FALSE(Button("Menu").isEnabled());
  EXPECT_FALSE(Button("Upload").isEnabled());
  Download();
  ASSERT_TRUE(Button("Menu").isEnabled());

  QWidget& editor = Editor("mnu_CSetup", "frm_CameraSetup");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Button("Upload").isEnabled(); }));
  auto* const title = Find<QLineEdit>(&editor, "m_CameraTitle(2)");
  title->selectAll();
  QTest::keyClicks(title, "Gate");
  QTest::keyClick(title, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
  QApplication::activePopupWidget()->close();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Button("Upload").isEnabled(); }));
  auto* const modified = Find<QListWidget>(&window_, "Modified blocks");
  ASSERT_EQ(modified->count(), 1);

  SendModified();
  EXPECT_EQ(session_.LastExchange().blocks_written.size(), 1U);
  const auto changed = session_.Control().Image();
  EXPECT_TRUE(std::equal(changed.begin(), changed.end(), session_.Device().Bytes().begin(),
                         session_.Device().Bytes().end()));
  const std::string bytes(changed.begin(), changed.end());
  EXPECT_NE(bytes.find("Gate"), std::string::npos);
}

TEST_F(MuxhostWindow, AnotherDeviceIsConnectedWithTheButton) {
  auto* const model = window_.findChildren<QComboBox*>().at(0);
  auto* const cameras = window_.findChildren<QComboBox*>().at(1);
  EXPECT_EQ(model->itemText(14), "14  Triplex NTSC, Matrix");
  EXPECT_EQ(model->count(), 21);
  model->setCurrentIndex(3);
  cameras->setCurrentIndex(1);
  Button("Connect").click();
  EXPECT_EQ(session_.Device().ModelCode(), 3);
  EXPECT_EQ(session_.Device().IdentityBytes().at(0), 9);
  EXPECT_EQ(session_.Device().BlockCount(), 185);
  EXPECT_FALSE(Button("Menu").isEnabled());
}

TEST_F(MuxhostWindow, ClosingAsksBeforeChangesAreLost) {
  session_.Configure({.latency_ms = 0});
  Download();
  std::vector<std::uint8_t> grid(33, 0xAA);
  grid[0] = 0;
  session_.Control().UpdateActGrid(grid);
  ASSERT_FALSE(session_.Control().ModifiedBlocks().empty());
  for (const char* const answer : {"Cancel", "Discard"}) {
    const WhenShown question([answer] { return Press(answer); });
    window_.close();
    EXPECT_EQ(window_.isVisible(), std::string(answer) == "Cancel");
  }

  window_.show();
  SendModified();
  EXPECT_FALSE(session_.Control().ModifiedBlocks().empty());
  bool asked = false;
  QTimer::singleShot(0, &turns_, [&asked] { asked = Press("Discard"); });
  window_.close();
  EXPECT_FALSE(asked);
  EXPECT_FALSE(window_.isVisible());
}

TEST(MuxhostEventLog, TellsEventsInWordsAndRunsInOneLine) {
  EventLog log;
  for (const char* const entry :
       {"RequestBlk 1", "RequestBlk 2", "RequestBlk 3", "RequestBlk 3", "UploadSucceeded",
        "DownLoadData 9", "DownLoadData end", "not written: the device refuses block 9"}) {
    log.Add(entry);
  }
  const char* const lines[] = {"The control asks for blocks 1 to 3.",
                               "The control asks for block 3.",
                               "The device's configuration has arrived in the control.",
                               "The control hands over block 9.",
                               "The control has handed over everything.",
                               "Not written: the device refuses block 9."};
  ASSERT_EQ(log.count(), 6);
  for (int i = 0; i < log.count(); ++i) EXPECT_EQ(log.item(i)->text().mid(11), lines[i]);
}

}  // namespace
}  // namespace quorvel::muxhost
