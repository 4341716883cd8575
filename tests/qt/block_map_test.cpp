#include "muxhost/window/block_map.h"

#include "tests/qt/muxhost_on_screen.h"

namespace quorvel::muxhost {
namespace {

class MuxhostBlocks : public MuxhostOnScreen {
 protected:
  [[nodiscard]] QPoint PlaceOf(int block) {
    map_.scrollTo(map_.model()->index(block - 1, 0));
    return map_.visualRect(map_.model()->index(block - 1, 0)).center();
  }
};

TEST_F(MuxhostBlocks, BlockAtWhichASendBreaksOffHasFailed) {
  Download();
  ChangeZones();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Cell(86) == "Block 86, changed"; }));
  for (const bool link_stays : {true, false}) {
    // A packet that is never acknowledged; the dialog is closed.
    session_.SetFault(Fault{.kind = FaultKind::kSilent, .at = 1});
    const auto close = [&] {
      if (!session_.LastExchange().unanswered) return false;
      if (!link_stays) session_.SwitchLink(false);
      return QApplication::activeModalWidget()->close();
    };
    Click("Upload modified", Pressing("START"), close, Answering("Close"));
    EXPECT_EQ(told_, "The device has not acknowledged block 85.");
    EXPECT_EQ(Cell(85), "Block 85, failed");
    EXPECT_NE(Events().find("not come to its end: block 85 was not acknowledged.\n"),
              std::string::npos);
    EXPECT_EQ(Cell(86), "Block 86, changed");
    ExpectHint(link_stays ? "1 block failed. Next: Upload modified."
                          : "Next: switch the link on (Host, at the left).");
  }
}

TEST_F(MuxhostBlocks, MacroBlocksOfAFileGoToTheDeviceWithTheMacros) {
  Download();
  auto image = session_.Control().Image();
  image.at(149 * 16) ^= 1;
  Restore(NewFile("other.bin", image));
  EXPECT_EQ(Cell(150), "Block 150, changed");
  EXPECT_EQ(Hint(),
            "The control holds a file's configuration: 1 block is not in the device yet. Next: "
            "Upload all, with macros.");
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
  session_.SetFault(Fault{.kind = FaultKind::kShort, .at = 3});
  Click("Upload modified", Answering("Cancel"));
  EXPECT_EQ(told_, "There is no backup of the device: block 3 came with 8 bytes.");
  EXPECT_TRUE(session_.LastExchange().sent_blocks.empty());
  window_.Backups().SetFolder(NewFile("file", {}) + "/below");
  const WhenShown question(Answering("Upload without backup"));
  SendModified();
  EXPECT_TRUE(session_.LastExchange().read_back->AsSent());
}

TEST_F(MuxhostBlocks, AStepWithinABlockThatWasSentAndStaysListedIsSeen) {
  Download();
  const auto expect_cell = [this](const char* text) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Cell(1) == text; })) << Cell(1) << ", not " << text;
  };
  session_.Control().SetSetting("CamInfo(0).title", "Gate");
  expect_cell("Block 1, changed");
  SendModified();
  expect_cell("Block 1, verified");
  session_.Control().SetSetting("CamInfo(0).title", "Yard");
  expect_cell("Block 1, changed");
  session_.Control().Undo();
  expect_cell("Block 1, verified");
  session_.Control().Redo();
  expect_cell("Block 1, changed");
}

}  // namespace
}  // namespace quorvel::muxhost
