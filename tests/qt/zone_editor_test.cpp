#include "muxhost/window/zone_editor.h"

#include <QAccessible>

#include "tests/qt/muxhost_on_screen.h"
#include "tests/qt/on_screen.h"

namespace quorvel::muxhost {
namespace {

class MuxhostZones : public MuxhostOnScreen {
 protected:
  MuxhostZones() {
    Download();
    session_.WriteZones(2, std::vector<Byte>(32, 0));
    session_.WriteZones(3, std::vector<Byte>(32, 0));
    SendModified();
    Download();
  }

  /// Opens the editor by the menu, as a user does.
  void Open() {
    Choose("mnuActGrid");
    editor_ = OnScreen("ZoneEditor");
    ASSERT_NE(editor_, nullptr);
    grid_ = editor_->findChild<ZoneGrid*>();
    cameras_ = Find<QListWidget>(editor_, "Cameras");
  }
  void Press(const char* text) { QTest::mouseClick(Find(editor_.data(), text), Qt::LeftButton); }
  void Click(int row, int column) { ClickCell(*grid_, row, column); }
  void Drag(int row, int column, int to_row, int to_column) {
    QTest::mousePress(grid_->viewport(), Qt::LeftButton, {}, CellPlace(*grid_, row, column));
    QTest::mouseMove(grid_->viewport(), CellPlace(*grid_, to_row, to_column));
    QTest::mouseRelease(grid_->viewport(), Qt::LeftButton, {},
                        CellPlace(*grid_, to_row, to_column));
  }
  /// The bytes that are not 0, as "place=value".
  [[nodiscard]] std::string Bytes() const {
    QString text;
    int place = 0;
    for (const Byte byte : grid_->Cells().Bytes()) {
      if (byte != 0) text += QString(" %1=%2").arg(place).arg(byte, 2, 16, QChar('0'));
      ++place;
    }
    return text.mid(1).toStdString();
  }
  [[nodiscard]] std::string CurrentCell() const {
    return grid_->currentIndex().data(Qt::AccessibleTextRole).toString().toStdString();
  }

  QPointer<QWidget> editor_;
  ZoneGrid* grid_ = nullptr;
  QListWidget* cameras_ = nullptr;
};

TEST_F(MuxhostZones, CellsThatAreClickedReachTheBlocksOfTheirCamera) {
  Open();
  EXPECT_EQ(cameras_->count(), 16);
  EXPECT_FALSE(Button("Upload all").isEnabled());
  EXPECT_FALSE(Button("Menu").isEnabled());
  cameras_->setCurrentRow(2);
  Click(0, 0);
  Click(0, 15);
  Click(8, 9);
  EXPECT_EQ(Bytes(), "0=80 1=01 17=40");
  cameras_->setCurrentRow(3);
  Click(15, 15);
  EXPECT_EQ(cameras_->item(2)->text(), "Camera 3  Camera 03, changed");
  cameras_->setCurrentRow(2);
  EXPECT_EQ(Bytes(), "0=80 1=01 17=40");
  EXPECT_TRUE(session_.Control().ModifiedBlocks().empty());

  Press("OK");
  EXPECT_EQ(session_.Control().ModifiedBlocks(), (std::vector<Byte>{89, 90, 92}));
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return editor_.isNull() && Button("Upload all").isEnabled(); }));
  SendModified();
  EXPECT_EQ(session_.Device().ReadBlock(89).value().at(0), 0x80);
  EXPECT_EQ(session_.Device().ReadBlock(90).value().at(1), 0x40);
  EXPECT_EQ(session_.Device().ReadBlock(92).value().at(15), 0x01);
}

TEST_F(MuxhostZones, DragPaintsWithTheStateOfItsFirstCell) {
  Open();
  cameras_->setCurrentRow(2);
  Drag(2, 3, 2, 9);  // cells between are painted, however fast the mouse was
  EXPECT_EQ(Bytes(), "4=1f 5=c0");
  Drag(4, 4, 6, 4);
  EXPECT_EQ(Bytes(), "4=1f 5=c0 8=08 10=08 12=08");
  Drag(2, 5, 2, 15);  // the first cell is active: it clears
  EXPECT_EQ(Bytes(), "4=18 8=08 10=08 12=08");
  Press("Undo");
  EXPECT_EQ(Bytes(), "4=1f 5=c0 8=08 10=08 12=08");
  Click(2, 3);
  QTest::mouseDClick(grid_->viewport(), Qt::LeftButton, {},
                     CellPlace(*grid_, 2, 3));  // counts as a click
  EXPECT_EQ(Bytes(), "4=1f 5=c0 8=08 10=08 12=08");
  Click(2, 3);
  EXPECT_EQ(Bytes(), "4=0f 5=c0 8=08 10=08 12=08");
  Press("All");
  EXPECT_EQ(grid_->Cells().ActiveCount(), 256);
  Press("None");
  EXPECT_EQ(Bytes(), "");
  for (int i = 0; i < 3; ++i) QTest::keyClick(grid_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Bytes(), "4=1f 5=c0 8=08 10=08 12=08");
  while (Find(editor_.data(), "Undo")->isEnabled()) Press("Undo");
  EXPECT_EQ(Bytes(), "");
  EXPECT_EQ(cameras_->item(2)->text(), "Camera 3  Camera 03");
  Press("OK");
  EXPECT_TRUE(session_.Control().ModifiedBlocks().empty());
}

TEST_F(MuxhostZones, KeyboardMovesAndPaints) {
  Open();
  cameras_->setCurrentRow(2);
  struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* cell;
    const char* bytes;
  } const steps[] = {
      {Qt::Key_Down, {}, "row 2, column 1, inactive", ""},
      {Qt::Key_Right, {}, "row 2, column 2, inactive", ""},
      {Qt::Key_Space, {}, "row 2, column 2, active", "2=40"},
      {Qt::Key_Right, Qt::ShiftModifier, "row 2, column 3, active", "2=60"},
      {Qt::Key_Down, Qt::ShiftModifier, "row 3, column 3, active", "2=60 4=20"},
      {Qt::Key_Up, {}, "row 2, column 3, active", "2=60 4=20"},
      {Qt::Key_Space, {}, "row 2, column 3, inactive", "2=40 4=20"},
      {Qt::Key_Left, Qt::ShiftModifier, "row 2, column 2, inactive", "4=20"},
      {Qt::Key_Left, {}, "row 2, column 1, inactive", "4=20"},
      {Qt::Key_Left, Qt::ShiftModifier, "row 2, column 1, inactive", "4=20"},
      {Qt::Key_Return, {}, "row 2, column 1, inactive", "4=20"},
  };
  for (const auto& step : steps) {
    QTest::keyClick(grid_, static_cast<Qt::Key>(step.key), step.modifiers);
    EXPECT_EQ(CurrentCell(), step.cell);
    EXPECT_EQ(Bytes(), step.bytes);
  }
  EXPECT_EQ(grid_->accessibleName(), "Zones of camera 3");
  QAccessibleInterface* const table = QAccessible::queryAccessibleInterface(grid_);
  ASSERT_NE(table->tableInterface(), nullptr);
  EXPECT_EQ(table->tableInterface()->cellAt(2, 2)->text(QAccessible::Name),
            "row 3, column 3, active");
  QTest::keyClick(grid_, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(session_.Control().ModifiedBlocks(), (std::vector<Byte>{89}));
}

TEST_F(MuxhostZones, ChangesAreLostOnlyWhenTheUserSaysSo) {
  Open();
  QTest::keyClick(grid_, Qt::Key_Space);
  cameras_->setCurrentRow(3);
  Press("All");
  {
    const WhenShown question(Answering("Cancel"));
    QTest::keyClick(grid_, Qt::Key_Escape);
    EXPECT_EQ(told_,
              "The changed zones of cameras 1, 4 have not been handed to the control. "
              "Closing loses them.");
  }
  ASSERT_TRUE(editor_->isVisible());
  {
    const WhenShown question(Pressing("Discard"));
    editor_->close();
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return editor_.isNull(); }));
  EXPECT_TRUE(session_.Control().ModifiedBlocks().empty());

  Open();
  Press("Cancel");  // nothing to ask
  EXPECT_TRUE(QTest::qWaitFor([this] { return editor_.isNull(); }));
}

TEST_F(MuxhostZones, CamerasWithoutMotionDetectionAreMarkedAndItsEditorOpensTheZones) {
  Choose("mnuMTSetup");
  QTest::keyClick(Find<QAbstractButton>(OnScreen("frm_MDetect"), "Disable All"), Qt::Key_Space);
  const auto note = [this] {
    return Find<QLabel>(editor_,
                        "This camera does not detect motion: its zones have no effect "
                        "until the menu's motion detection enables it.");
  };
  const auto open_from_editor = [this] {
    QTest::mouseClick(Find(OnScreen("frm_MDetect"), "Setup Active zones"), Qt::LeftButton);
    editor_ = OnScreen("ZoneEditor");
    grid_ = editor_->findChild<ZoneGrid*>();
    cameras_ = Find<QListWidget>(editor_, "Cameras");
  };
  open_from_editor();
  EXPECT_EQ(cameras_->item(0)->text(), "Camera 1  Camera 01") << "the window has not been accepted";
  EXPECT_FALSE(note()->isVisible());
  Press("Cancel");
  QTest::mouseClick(Find(OnScreen("frm_MDetect"), "OK"), Qt::LeftButton);
  Choose("mnuMTSetup");
  open_from_editor();
  EXPECT_EQ(cameras_->item(15)->text(), "Camera 16  Camera 16, motion off");
  EXPECT_TRUE(note()->isVisible());
  QTest::keyClick(grid_, Qt::Key_Space);
  EXPECT_EQ(cameras_->item(0)->text(), "Camera 1  Camera 01, motion off, changed");
  Press("OK");
  EXPECT_EQ(session_.Control().ModifiedBlocks(), (std::vector<Byte>{49, 85}));
}

TEST_F(MuxhostZones, CloseOfTheHostTakesTheEditorAlong) {
  Open();
  Press("All");
  const WhenShown question(Pressing("Discard"));
  window_.close();
  EXPECT_FALSE(window_.isVisible());
  EXPECT_TRUE(editor_.isNull() || !editor_->isVisible());
  EXPECT_TRUE(session_.Control().ModifiedBlocks().empty());
}

}  // namespace
}  // namespace quorvel::muxhost
