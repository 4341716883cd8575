#include <QHeaderView>
#include <QTableView>

#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

class QtGrid : public OnScreen {
 protected:
  QtGrid() {
    dialog_->pages.SetCurrent(1);
    Show();
    dialog_->TakeNotes();
  }

  [[nodiscard]] QTableView& Table() const { return Body<QTableView>("MSFG_Action"); }
  /// The middle of a cell, numbered as in the model.
  [[nodiscard]] QPoint Place(int row, int column) const {
    return Table().visualRect(Table().model()->index(row - 1, column)).center();
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
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"press 3,2"});
  QTest::mouseMove(viewport, Place(7, 3));
  EXPECT_EQ(Selected(), "3-7@2");
  EXPECT_EQ(dialog_->grid.RowSel(), 3);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, Place(7, 3));
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"release 3-7"});
  EXPECT_EQ(Selected(), "3-7@2");
  QTest::mouseClick(viewport, Qt::LeftButton, Qt::ShiftModifier, Place(1, 2));
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"release 1-3"});
  QTest::mouseDClick(viewport, Qt::LeftButton, {}, Place(5, 1));
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, Place(5, 1));
  EXPECT_EQ(dialog_->TakeNotes(), (Notes{"press 5,1", "release 5-5"}));
}

TEST_F(QtGrid, KeysMoveAndExtend) {
  struct Case {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    Notes notes;
    const char* selected;
  };
  const Case cases[] = {
      {Qt::Key_Down, {}, {"press 2,1", "release 2-2"}, "2-2@1"},
      {Qt::Key_Right, {}, {"press 2,2", "release 2-2"}, "2-2@2"},
      {Qt::Key_Left, {}, {"press 2,1", "release 2-2"}, "2-2@1"},
      {Qt::Key_Left, {}, {"press 2,1", "release 2-2"}, "2-2@1"},
      {Qt::Key_End, Qt::ControlModifier, {"press 16,1", "release 16-16"}, "16-16@1"},
      {Qt::Key_Down, {}, {"press 16,1", "release 16-16"}, "16-16@1"},
      {Qt::Key_Home, Qt::ControlModifier, {"press 1,1", "release 1-1"}, "1-1@1"},
      {Qt::Key_Down, Qt::ShiftModifier, {}, "1-2@1"},
      {Qt::Key_Down, Qt::ShiftModifier, {}, "1-3@1"},
      {Qt::Key_Return, {}, {}, "1-3@1"},
      {Qt::Key_C, {}, {}, "1-3@1"},
  };
  for (const Case& it : cases) {
    QTest::keyPress(&Table(), it.key, it.modifiers);
    EXPECT_EQ(dialog_->TakeNotes(), it.notes) << it.selected;
    EXPECT_EQ(Selected(), it.selected);
  }
  QTest::keyRelease(&Table(), Qt::Key_Shift);
  EXPECT_EQ(dialog_->TakeNotes(), Notes{"release 1-3"});
}

TEST_F(QtGrid, DrawingFollowsTheProgram) {
  QTableView& table = Table();
  const auto text = [&table](int row, int column) {
    return table.model()->index(row, column).data().toString().toStdString();
  };
  EXPECT_EQ(table.model()->headerData(2, Qt::Horizontal).toString(), "Record rate");
  EXPECT_EQ(text(0, 0), "Camera 1");
  dialog_->grid.SetCell(4, 2, "On & off");
  EXPECT_EQ(text(3, 2), "On & off");
  dialog_->grid.SetCurrent(9, 3);
  EXPECT_EQ(Selected(), "9-9@3");
  dialog_->grid.SetSize(1, 2);
  EXPECT_EQ(table.model()->rowCount(), 0);
  EXPECT_EQ(Selected(), "0 ranges");
  QTest::keyClick(&table, Qt::Key_Down);
  dialog_->grid.SetSize(65, 3);
  EXPECT_EQ(table.model()->rowCount(), 64);
  EXPECT_EQ(Selected(), "1-1@1");
  dialog_->grid.SetCurrent(60, 1);
  EXPECT_TRUE(table.viewport()->rect().contains(Place(60, 1)));
  EXPECT_EQ(dialog_->TakeNotes(), Notes{});
}

TEST_F(QtGrid, HandlersMayRebuildOrCloseUnderThePress) {
  dialog_->grid.on_press = [this] { dialog_->grid.SetSize(3, 2); };
  QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Place(9, 3));
  EXPECT_EQ(Table().model()->rowCount(), 2);
  dialog_->grid.on_press = [this] { dialog_->Close(); };
  QTest::mousePress(Table().viewport(), Qt::LeftButton, {}, Place(1, 1));
  EXPECT_EQ(platform_.WindowOf(*dialog_), nullptr);
}

}  // namespace
}  // namespace quorvel
