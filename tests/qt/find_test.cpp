#include <QClipboard>
#include <QComboBox>
#include <QTreeView>

#include "muxhost/window/find_box.h"
#include "tests/qt/muxhost_on_screen.h"

namespace quorvel::muxhost {
namespace {

class FindOnScreen : public MuxhostOnScreen {
 protected:
  void Begin() {
    // What was in front has just closed, and may take the window's activity with it.
    ASSERT_TRUE(QTest::qWaitFor([this] {
      if (!window_.isActiveWindow()) window_.activateWindow();
      return window_.isActiveWindow();
    }));
    QTest::keyClick(&window_, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([this] { return words_.hasFocus(); }));
  }
  void Look(const char* words) {
    words_.selectAll();
    QTest::keyClicks(&words_, words);
  }
  /// The row's cells that are to be seen.
  [[nodiscard]] std::string Row(int row) {
    QStringList cells;
    for (int column = 0; column < list_.model()->columnCount(); ++column) {
      if (!list_.isColumnHidden(column))
        cells << list_.model()->index(row, column).data().toString();
    }
    return cells.join('|').toStdString();
  }
  [[nodiscard]] std::string Nothing() {
    const auto* const label = window_.findChild<QLabel*>("FindNothing");
    return label->isVisible() ? label->text().toStdString() : "";
  }
  void Filter(int item) {
    filter_.setCurrentIndex(item);
    emit filter_.activated(item);
  }

  QLineEdit& words_ = *window_.findChild<QLineEdit*>("FindWords");
  QTreeView& list_ = *Find<QTreeView>(&window_, "Settings");
  QComboBox& filter_ = *Find<QComboBox>(&window_, "Show");
};

TEST_F(FindOnScreen, LeadsToASettingByKeyboardAlone) {
  Begin();
  EXPECT_EQ(Nothing(), "Receive or open settings first.");
  Download();
  Begin();
  session_.Control().SetSetting("CamInfo(2).title", "Größe");
  Look("sensitivity GROSSE");
  ASSERT_TRUE(QTest::qWaitFor([this] { return list_.model()->rowCount() == 1; }));
  EXPECT_EQ(Row(0).rfind("Motion Detection > Sensitivity > Camera 3 \"Größe\"|", 0), 0U) << Row(0);
  Look("title 3");
  const std::string title = "Camera Setup > Title 3|Größe|3|device, factory|CamInfo(2).title";
  EXPECT_EQ(Row(0), title);
  EXPECT_EQ(list_.model()->index(0, 0).data(Qt::AccessibleTextRole).toString(),
            "Camera Setup > Title 3, changed");
  QTest::keyClick(&words_, Qt::Key_Down);
  EXPECT_TRUE(list_.hasFocus());
  QTest::keyClick(&list_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(),
            QString::fromStdString(title).replace('|', '\t') + '\n');

  // It follows changes, with the row and the focus as they are.
  session_.Control().SetSetting("CamInfo(2).title", "=1");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Row(0).find("|=1|") != std::string::npos; }));
  EXPECT_TRUE(list_.hasFocus());
  EXPECT_EQ(list_.currentIndex().row(), 0);
  QTest::keyClick(&list_, Qt::Key_Return);
  QWidget* const editor = OnScreen("frm_CameraSetup");
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->focusWidget()->objectName(), "m_CameraTitle(2)");
  editor->close();

  QTest::keyClick(&list_, 'z');
  EXPECT_TRUE(words_.hasFocus());
  EXPECT_EQ(words_.text(), "title 3z");
  EXPECT_EQ(Nothing(), "No setting has all of these words.");
  QTest::keyClick(&words_, Qt::Key_Escape);
  EXPECT_FALSE(window_.findChild<QWidget*>("Find")->isVisible());
}

TEST_F(FindOnScreen, ListsAndExportsWhatDiffers) {
  Download();
  Begin();
  Filter(1);
  EXPECT_EQ(Nothing(), "Nothing differs from the device.");
  const auto before = session_.Control().Image();
  session_.Control().SetSetting("MultiDwell", "12");
  ASSERT_TRUE(QTest::qWaitFor([this] { return list_.model()->rowCount() == 1; }));
  EXPECT_EQ(Row(0), "Sequencing > Multiscreen Dwell|12 s|59|device, factory|MultiDwell");
  const QString csv = backups_.filePath("changed.csv");
  Click("E&xport as CSV...", [&] { return Name(csv); });
  QFile file(csv);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(
      file.readAll().endsWith("\r\nSequencing,,Multiscreen Dwell,,12 s,59,yes,yes,MultiDwell\r\n"));

  const WhenShown named([path = NewFile("site.bin", before)] { return Name(path); });
  Filter(3);
  EXPECT_EQ(filter_.currentText(), "What differs from site.bin");
  EXPECT_EQ(Row(0), "Sequencing > Multiscreen Dwell|12 s|5 s|59|device, factory|MultiDwell");
  session_.Control().Undo();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Nothing() == "Nothing differs from site.bin."; }));
}

TEST_F(FindOnScreen, NothingIsClippedInASmallWindow) {
  Download();
  Begin();
  window_.resize(800, 600);
  QTest::qWait(50);
  EXPECT_EQ(window_.size(), QSize(800, 600));
  for (const QObject* const child : list_.parentWidget()->children()) {
    const auto* const part = qobject_cast<const QWidget*>(child);
    if (part == nullptr || !part->isVisible()) continue;
    EXPECT_GE(part->width(), part->minimumSizeHint().width()) << part->objectName().toStdString();
    EXPECT_GE(part->height(), part->minimumSizeHint().height()) << part->objectName().toStdString();
  }
}

}  // namespace
}  // namespace quorvel::muxhost
