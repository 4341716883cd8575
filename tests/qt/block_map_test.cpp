#include "apps/muxhost/window/block_map.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>

#include "tests/qt/muxhost_on_screen.h"

namespace quorvel::muxhost {
namespace {

class MuxhostBlocks : public MuxhostOnScreen {
 protected:
  [[nodiscard]] QPoint PlaceOf(int block) {
    map_.scrollTo(map_.model()->index(block - 1, 0));
    return map_.visualRect(map_.model()->index(block - 1, 0)).center();
  }
  [[nodiscard]] std::string Contents() {
    return Find<QPlainTextEdit>(&window_, "What the block holds")->toPlainText().toStdString();
  }
  [[nodiscard]] QString Hint() { return window_.findChild<QLabel*>("Hint")->text(); }
};

TEST_F(MuxhostBlocks, NewcomerDownloadsEditsUploadsAndSeesItVerified) {
  window_.Backups().SetWanted(true);
  EXPECT_EQ(window_.focusWidget(), &Button("Download"));
  EXPECT_TRUE(Button("Download").isDefault());
  Download();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Button("Menu").isDefault(); }));
  EXPECT_EQ(Hint(), "Next: Menu opens the editors, such as those of the cameras.");

  Choose("mnu_CSetup");
  QWidget& editor = *OnScreen("frm_CameraSetup");
  auto* const title = Find<QLineEdit>(&editor, "m_CameraTitle(2)");
  QTest::mouseClick(title, Qt::LeftButton);
  title->selectAll();
  QTest::keyClicks(title, "Gate");
  QTest::mouseClick(Find(&editor, "OK"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
  QApplication::activePopupWidget()->close();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Button("Upload modified").isDefault(); }));
  EXPECT_EQ(Cell(3), "Block 3, changed");
  EXPECT_EQ(Hint(), "1 block modified and not in the device yet. Next: Upload modified.");
  map_.setCurrentIndex(map_.model()->index(2, 0));
  EXPECT_NE(Contents().find("CamInfo(2).title = \"Gate"), std::string::npos) << Contents();
  EXPECT_EQ(Contents().rfind("In the control:\n47 61 74 65 20", 0), 0U) << "the bytes as edited";

  const auto before = session_.Device().Bytes();
  const QByteArray old(reinterpret_cast<const char*>(before.data()),
                       static_cast<qsizetype>(before.size()));
  const WhenShown start([] { return Press("START"); });
  const WhenShown sent([this] { return Cell(3) == "Block 3, sent"; });
  const WhenShown finish([this] { return session_.LastExchange().end_written && Press("CLOSE"); });
  Click("Upload modified");
  EXPECT_EQ(session_.LastExchange().blocks_written, std::vector<Byte>{3});
  EXPECT_EQ(Cell(3), "Block 3, verified");
  EXPECT_EQ(Hint(), "1 block verified: the device holds what was sent.");

  // What the device held is kept.
  ASSERT_EQ(BackupFiles().size(), 1);
  QFile file(BackupFiles().front());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), old);
  EXPECT_NE(Events().find("Backup of the device: 3600 bytes in " + file.fileName().toStdString()),
            std::string::npos);
}

TEST_F(MuxhostBlocks, BlockAtWhichASendBreaksOffHasFailed) {
  Download();
  ChangeZones();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Cell(86) == "Block 86, changed"; }));
  for (const bool link_stays : {true, false}) {
    // A packet that is never acknowledged; the dialog is closed.
    session_.SetFault(Fault{.kind = FaultKind::kSilent, .at = 1});
    const WhenShown start([] { return Press("START"); });
    const WhenShown close([&] {
      if (!session_.LastExchange().unanswered) return false;
      if (!link_stays) session_.SwitchLink(false);
      return QApplication::activeModalWidget()->close();
    });
    QString told;
    const WhenShown question([&told] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box != nullptr) told = box->text();
      return box != nullptr && Press("Close");
    });
    Click("Upload modified");
    EXPECT_EQ(told, "The device has not acknowledged block 85.");
    EXPECT_EQ(Cell(85), "Block 85, failed");
    EXPECT_NE(Events().find("not come to its end: block 85 was not acknowledged.\n"),
              std::string::npos);
    EXPECT_EQ(Cell(86), "Block 86, changed");
    const QString next = link_stays ? "1 block failed. Next: Upload modified."
                                    : "Next: switch the link on (Host, at the left).";
    EXPECT_TRUE(QTest::qWaitFor([&] { return Hint() == next; })) << Hint().toStdString();
  }
}

TEST_F(MuxhostBlocks, MacroBlocksOfAFileGoToTheDeviceWithTheMacros) {
  Download();
  auto image = session_.Control().Image();
  image.at(149 * 16) ^= 1;
  QFile file(backups_.filePath("other.bin"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(reinterpret_cast<const char*>(image.data()), static_cast<qsizetype>(image.size()));
  file.close();
  {
    const WhenShown name([&] { return Name(file.fileName()); });
    const WhenShown finish([] { return Press("OK"); });
    Click("Restore file");
  }
  EXPECT_EQ(Cell(150), "Block 150, changed");
  EXPECT_EQ(Hint(),
            "The control holds a file's configuration: 1 block is not in the device yet. Next: "
            "Upload all, "
            "with macros.");
}

TEST_F(MuxhostBlocks, CellTellsWhatItsBlockHoldsByPointerAndByKey) {
  Download();
  map_.setFocus();
  QTest::keyClick(&map_, Qt::Key_Return);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "the default button is not pressed";
  ChangeZones();
  QTest::keyClick(&map_, Qt::Key_Home);
  QTest::keyClick(&map_, Qt::Key_Right);
  const std::string second =
      "In control and device:\n43 61 6d 65 72 61 20 30 32 20 20 20 00 00 00 00\n"
      "CamInfo(1).title = \"Camera 02   \\x00\"";
  EXPECT_EQ(Contents(), second);
  QApplication::processEvents();  // the hint has changed the window's layout
  QTest::mouseMove(map_.viewport(), PlaceOf(149));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Contents() != second; }));
  EXPECT_EQ(Contents().substr(0, 91),
            "In control and device:\n00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
            "CamInfo(0).Relay = 0");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(map_.viewport(), &leave);
  EXPECT_EQ(Contents(), second);
}

TEST_F(MuxhostBlocks, WithoutABackupTheUploadAsksFirst) {
  Download();
  ChangeZones();
  window_.Backups().SetWanted(true);
  QString told;
  const auto answer = [&told](const char* with) {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return false;
    told = box->text();
    return Press(with);
  };
  session_.SetFault(Fault{.kind = FaultKind::kShort, .at = 3});
  {
    const WhenShown question([&] { return answer("Cancel"); });
    Click("Upload modified");
  }
  EXPECT_EQ(told, "There is no backup of the device: block 3 came with 8 bytes.");
  EXPECT_TRUE(session_.LastExchange().sent_blocks.empty());
  QFile file(backups_.filePath("file"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  window_.Backups().SetFolder(file.fileName() + "/below");
  const WhenShown question([&] { return answer("Upload without backup"); });
  SendModified();
  EXPECT_TRUE(session_.LastExchange().read_back->AsSent());
}

}  // namespace
}  // namespace quorvel::muxhost
