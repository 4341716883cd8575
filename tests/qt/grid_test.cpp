#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtGrid : public OnScreen {
 protected:
  QtGrid() {
    dialog_->grid.SetSize(17, 4);
    Show();
  }

  [[nodiscard]] QTableView& Table() const { return Body<QTableView>("grid"); }
  /// The middle of a cell, numbered as in the model.
  [[nodiscard]] QPoint Place(int row, int column) const {
    return CellPlace(Table(), row - 1, column);
  }
  /// Rows selected on screen, as "first-last@column", numbered as in the model.
  [[nodiscard]] std::string Selected() const {
    const auto ranges = Table().selectionModel()->selection();
    if (ranges.size() != 1) return std::to_string(ranges.size()) + " ranges";
    const auto& range = ranges.front();
    return std::to_string(range.top() + 1) + "-" + std::to_string(range.bottom() + 1) + "@" +
           std::to_string(range.left());
  }
};

TEST_F(QtGrid, PressDragReleaseSelectsRowsOfOneColumn) {
  QWidget* const viewport = Table().viewport();
  QTest::mousePress(viewport, Qt::LeftButton, {}, Place(3, 2));
  EXPECT_EQ(TakeNotes(), "press 3,2; ");
  QTest::mouseMove(viewport, Place(7, 3));
  EXPECT_EQ(Selected(), "3-7@2");
  EXPECT_EQ(dialog_->grid.RowSel(), 3);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, Place(7, 3));
  EXPECT_EQ(TakeNotes(), "grid 3-7@2; ");
  EXPECT_EQ(Selected(), "3-7@2");
  QTest::mouseClick(viewport, Qt::LeftButton, Qt::ShiftModifier, Place(1, 2));
  EXPECT_EQ(TakeNotes(), "grid 1-3@2; ");
  QTest::mouseDClick(viewport, Qt::LeftButton, {}, Place(5, 1));
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, Place(5, 1));
  EXPECT_EQ(TakeNotes(), "press 5,1; grid 5-5@1; ");
}

TEST_F(QtGrid, KeysMoveAndExtend) {
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* notes;
    const char* selected;
  } cases[] = {
      {Qt::Key_Down, {}, "press 2,1; grid 2-2@1; ", "2-2@1"},
      {Qt::Key_Right, {}, "press 2,2; grid 2-2@2; ", "2-2@2"},
      {Qt::Key_Left, {}, "press 2,1; grid 2-2@1; ", "2-2@1"},
      {Qt::Key_Left, {}, "press 2,1; grid 2-2@1; ", "2-2@1"},
      {Qt::Key_End, Qt::ControlModifier, "press 16,1; grid 16-16@1; ", "16-16@1"},
      {Qt::Key_Down, {}, "press 16,1; grid 16-16@1; ", "16-16@1"},
      {Qt::Key_Home, Qt::ControlModifier, "press 1,1; grid 1-1@1; ", "1-1@1"},
      {Qt::Key_Down, Qt::ShiftModifier, "", "1-2@1"},
      {Qt::Key_Down, Qt::ShiftModifier, "", "1-3@1"},
      {Qt::Key_Return, {}, "", "1-3@1"},
      {Qt::Key_C, {}, "", "1-3@1"},
  };
  for (const auto& it : cases) {
    QTest::keyPress(&Table(), it.key, it.modifiers);
    EXPECT_EQ(TakeNotes(), it.notes) << it.selected;
    EXPECT_EQ(Selected(), it.selected);
  }
  QTest::keyRelease(&Table(), Qt::Key_Shift);
  EXPECT_EQ(TakeNotes(), "grid 1-3@1; ");
  dialog_->grid.SetSize(1, 2);
  QTest::keyClick(&Table(), Qt::Key_Down);
  EXPECT_EQ(TakeNotes(), "");
}

TEST_F(QtGrid, HandlersMayRebuildOrCloseUnderThePress) {
  dialog_->grid.on_press = [this] { dialog_->grid.SetSize(3, 2); };
  ClickCell(Table(), 8, 3);
  EXPECT_EQ(Table().model()->rowCount(), 2);
  dialog_->grid.on_press = [this] { dialog_->Close(); };
  QTest::mousePress(Table().viewport(), Qt::LeftButton, {}, Place(1, 1));
  EXPECT_EQ(platform_.WindowOf(*dialog_), nullptr);
}

}  // namespace
}  // namespace quorvel
