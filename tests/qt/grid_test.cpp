#include <QImage>
#include <QScrollBar>
#include <QWheelEvent>

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
  EXPECT_EQ(TakeNotes(), "") << "a range that is only selected writes nothing";
  EXPECT_EQ(Selected(), "1-3@2");
  EXPECT_EQ(dialog_->grid.FirstSelected(), 1);
  QTest::mouseDClick(viewport, Qt::LeftButton, {}, Place(5, 1));
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, Place(5, 1));
  EXPECT_EQ(TakeNotes(), "press 5,1; grid 5-5@1; ");
}

TEST_F(QtGrid, KeysMoveExtendAndEmpty) {
  dialog_->grid.can_empty = [this] { return dialog_->grid.Column() == 1; };
  dialog_->grid.on_empty = [this] { dialog_->notes += "empty; "; };
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
      {Qt::Key_Delete, Qt::ShiftModifier, "", "1-3@1"},
      {Qt::Key_Delete, {}, "empty; ", "1-3@1"},
      {Qt::Key_A, Qt::ControlModifier, "press 1,1; ", "1-16@1"},
  };
  for (const auto& it : cases) {
    QTest::keyPress(&Table(), it.key, it.modifiers);
    EXPECT_EQ(TakeNotes(), it.notes) << it.selected;
    EXPECT_EQ(Selected(), it.selected);
    EXPECT_EQ(dialog_->grid.LastSelected(),
              Table().selectionModel()->selection().front().bottom() + 1);
  }
  dialog_->grid.SetSize(1, 2);
  QTest::keyClick(&Table(), Qt::Key_Down);
  EXPECT_EQ(TakeNotes(), "");
}

TEST_F(QtGrid, NumbersOfTheRowsStayInSight) {
  dialog_->grid.SetSize(17, 14);
  for (int row = 1; row < 17; ++row) dialog_->grid.SetCell(row, 0, std::to_string(row));
  for (int column = 1; column < 14; ++column) dialog_->grid.SetLeastWidth(column, 16);
  Settle();
  const QImage before = Table().grab().toImage();
  const QRect names(0, 0, Table().columnWidth(0) - 1, before.height() / 2);
  QTest::keyClick(&Table(), Qt::Key_End);
  Settle();
  ASSERT_GT(Table().horizontalScrollBar()->value(), 0);
  EXPECT_EQ(Table().grab().toImage().copy(names), before.copy(names)) << "header and numbers";
  EXPECT_EQ(Table().indexAt({2, Place(3, 0).y()}), Table().model()->index(2, 0));
  EXPECT_EQ(Table().indexAt(Place(3, 0)), Table().model()->index(2, 0));
  EXPECT_EQ(dialog_->grid.Column(), 13);

  // A press there scrolls nothing back, and a column under the numbers is brought out.
  QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Place(3, 0));
  EXPECT_EQ(TakeNotes(), "press 1,13; grid 1-1@13; press 3,0; grid 3-3@0; ");
  EXPECT_GT(Table().horizontalScrollBar()->value(), 0);
  for (int column = 12; column > 0; --column) {
    dialog_->grid.Press(3, column);
    const int left = Table().visualRect(Table().currentIndex()).left();
    EXPECT_GE(left, Table().columnWidth(0)) << column;
  }
  QWheelEvent turn(QPointF(5, 5), Table().viewport()->mapToGlobal(QPointF(5, 5)), {}, {-1200, 0},
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(Table().viewport(), &turn);
  EXPECT_GT(Table().horizontalScrollBar()->value(), 0);
  EXPECT_EQ(Table().visualRect(Table().model()->index(4, 0)).left(), 0);
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
