#include <QClipboard>
#include <QFocusFrame>
#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QToolTip>

#include "tests/qt/on_screen.h"
#include "ui/editing/grid_editing.h"

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
  TurnWheel(*Table().viewport(), {5, 5}, {-1200, 0});
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

/// A grid with two header rows, of which two columns share the first.
class GridDialog : public Dialog {
 public:
  explicit GridDialog(Platform& platform) : Dialog(platform, "frm_Grid") {
    grid.SetHeaderRows(2);
    grid.SetMergedHeader(true);
    grid.SetSize(6, 3);
    const char* const texts[2][3] = {{"Camera", "Macro", "Macro"}, {"Camera", "1", "2"}};
    for (int row = 0; row < 2; ++row) {
      for (int column = 0; column < 3; ++column) grid.SetCell(row, column, texts[row][column]);
    }
    for (const int column : {1, 2}) editing.Bind(column, list, Choices({"Off", "On"}));
    for (int row = 2; row < 6; ++row) {
      for (const int column : {1, 2}) editing.SetValue(row, column, 0);
    }
    SetLayout(Row(grid, list));
  }
  std::string Cells() const {
    std::string cells;
    for (int row = 2; row < 6; ++row) cells += grid.Cell(row, 1) + "," + grid.Cell(row, 2) + " ";
    return cells;
  }

  Grid grid{*this, "MSFG"};
  ListBox list{*this, "lst"};
  GridEditing editing{grid, GridEditing::Release::kSelects};
};

class QtGridHeader : public OnScreenOf<GridDialog> {
 protected:
  QtGridHeader() {
    Show();
    table_ = &Body<QTableView>("MSFG");
  }
  QTableView* table_ = nullptr;
};

TEST_F(QtGridHeader, TwoRowsAboveTheData) {
  EXPECT_EQ(table_->model()->rowCount(), 4);
  EXPECT_EQ(table_->model()->headerData(0, Qt::Horizontal), "Camera");
  EXPECT_EQ(table_->model()->headerData(2, Qt::Horizontal), "Macro, 2");
  EXPECT_GT(table_->horizontalHeader()->height(), table_->rowHeight(0));
  ClickCell(*table_, 0, 1);
  EXPECT_EQ(dialog_->grid.Row(), 2);
  dialog_->list.Choose(1);
  EXPECT_EQ(dialog_->Cells(), "On,Off Off,Off Off,Off Off,Off ");
  EXPECT_EQ(table_->model()->index(0, 1).data(), "On");
  QTest::keyClick(table_, Qt::Key_Up);
  EXPECT_EQ(dialog_->grid.Row(), 2) << "the header is not entered";
  QTest::keyClick(table_, Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(dialog_->grid.Row(), 5);
  dialog_->grid.SetRange(Grid::Range::kOneRow);
  QTest::keyClick(table_, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(dialog_->grid.FirstSelected(), 5);
}

TEST_F(QtGridHeader, ListOfTheCurrentColumnIsMarkedAndThatOfAnotherNotChosen) {
  QListView& list = Body<QListView>("lst");
  dialog_->SetEditsCellWords("Edits ");
  const auto marked = [this] {
    const auto* const mark = Window().findChild<QFocusFrame*>();
    return mark == nullptr || !mark->isVisible() ? nullptr : mark->widget();
  };
  for (const int column : {0, 2, 0}) {
    ClickCell(*table_, 0, column);
    EXPECT_EQ(marked(), column == 0 ? nullptr : &list);
    EXPECT_EQ(list.accessibleDescription(), column == 0 ? "" : "Edits Macro, 2");
  }
  ClickCell(list, 1);
  EXPECT_EQ(dialog_->Cells(), "Off,Off Off,Off Off,Off Off,Off ");
  EXPECT_EQ(list.selectionModel()->selectedIndexes(), QModelIndexList{list.model()->index(0, 0)});
}

TEST_F(QtGridHeader, TextOverSeveralColumnsSharesTheirWidth) {
  const int before = table_->horizontalHeader()->height();
  for (const int column : {1, 2}) dialog_->grid.SetCell(0, column, "Camera position");
  QApplication::processEvents();
  EXPECT_GE(table_->columnWidth(1) + table_->columnWidth(2),
            table_->fontMetrics().horizontalAdvance("position"));
  EXPECT_LT(table_->columnWidth(1), table_->fontMetrics().horizontalAdvance("Camera position"));
  EXPECT_GT(table_->horizontalHeader()->height(), before) << "it stands in two lines";
}

TEST_F(QtGridHeader, CopyAndPaste) {
  dialog_->editing.SetValue(3, 1, 1);
  dialog_->grid.Press(2, 1);
  dialog_->grid.Release(2, 4);
  QTest::keyClick(table_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "Off\nOn\nOff");
  dialog_->grid.Press(3, 2);
  QTest::keyClick(table_, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(dialog_->Cells(), "Off,Off On,Off Off,On Off,Off ");
  dialog_->grid.Press(3, 2);
  dialog_->SetPasteRefusals("no choice", "no space");
  for (const auto& [text, refusal] :
       {std::pair{"On\nPerhaps", "no choice"}, {"On\nOn\nOn\nOn", "no space"}}) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(table_, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialog_->Cells(), "Off,Off On,Off Off,On Off,Off ");
    EXPECT_EQ(QToolTip::text(), refusal);
  }
}

}  // namespace
}  // namespace quorvel
