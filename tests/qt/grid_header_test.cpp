#include <QClipboard>
#include <QFocusFrame>
#include <QHeaderView>
#include <QListView>
#include <QToolTip>

#include "tests/qt/on_screen.h"
#include "ui/editing/grid_editing.h"

namespace quorvel {
namespace {

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
