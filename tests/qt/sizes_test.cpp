#include <gtest/gtest.h>

#include <QHeaderView>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <memory>

#include "muxhost/texts/built_in_languages.h"
#include "muxhost/texts/language.h"
#include "tests/qt/installer.h"
#include "tests/qt/keyboard_walk.h"
#include "tests/qt/on_screen.h"

namespace quorvel {
namespace {

/// Width of a text in two lines, or in one where it has no blank.
int WidthInTwoLines(const QFontMetrics& metrics, const QString& text) {
  int least = metrics.horizontalAdvance(text);
  for (auto at = text.indexOf(' '); at >= 0; at = text.indexOf(' ', at + 1)) {
    least = std::min(least, std::max(metrics.horizontalAdvance(text.left(at)),
                                     metrics.horizontalAdvance(text.mid(at + 1))));
  }
  return least;
}

/// Checks each control of a window against what its texts need.
class Fits {
 public:
  Fits(const Dialog& dialog, const QWidget& window) {
    for (const Widget* const model : dialog.Widgets()) {
      const auto* body = window.findChild<QWidget*>(QString::fromStdString(model->Name()));
      if (body == nullptr || !model->Showing()) continue;
      SCOPED_TRACE(model->Name());
      Check(*model, *body);
    }
  }

 private:
  static void Check(const Widget& model, const QWidget& body) {
    EXPECT_GE(body.width(), body.minimumSizeHint().width());
    EXPECT_GE(body.height(), body.minimumSizeHint().height());
    EXPECT_TRUE(body.parentWidget()->rect().contains(body.geometry())) << "outside its parent";
    const QFontMetrics metrics(body.font());
    const QSize hint =
        model.Kind() == WidgetKind::kFrame ? body.minimumSizeHint() : body.sizeHint();
    switch (model.Kind()) {
      case WidgetKind::kGrid:
        return CheckTable(static_cast<const Grid&>(model), dynamic_cast<const QTableView&>(body));
      case WidgetKind::kListBox: return CheckList(dynamic_cast<const QListView&>(body));
      case WidgetKind::kTabStrip: {
        const auto& tabs = dynamic_cast<const QTabWidget&>(body);
        for (int i = 0; i < tabs.count(); ++i) {
          if (!tabs.isTabVisible(i)) continue;
          const QSize text = metrics.size(Qt::TextShowMnemonic, tabs.tabText(i));
          EXPECT_GE(tabs.tabBar()->tabRect(i).width(), text.width());
        }
        return;
      }
      case WidgetKind::kTextBox: {
        const int shown = std::min(static_cast<const TextBox&>(model).ShownLength(), 24);
        EXPECT_GE(body.width(), metrics.horizontalAdvance(QString(shown, 'M')));
        break;
      }
      case WidgetKind::kSlider: EXPECT_GE(body.height(), hint.height()); return;  // has no text
      case WidgetKind::kProgressBar: break;
      default: EXPECT_GE(body.width(), TextWidth(body)); EXPECT_GE(body.width(), hint.width());
    }
    EXPECT_GE(body.height(), metrics.height());
    EXPECT_GE(body.height(), hint.height());
    const bool ends =
        model.Kind() == WidgetKind::kFrame && body.findChild<QTableView*>() == nullptr;
    if (ends) {
      EXPECT_LE(body.height(), body.sizeHint().height()) << "goes on below its content";
    }
  }

  static void CheckList(const QListView& list) {
    const QFontMetrics metrics(list.font());
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      const QModelIndex item = list.model()->index(row, 0);
      EXPECT_GE(list.viewport()->width(), metrics.horizontalAdvance(item.data().toString()));
      EXPECT_GE(list.visualRect(item).height(), metrics.height());
    }
    const int items = list.model()->rowCount() * list.sizeHintForRow(0);
    EXPECT_EQ(list.verticalScrollBar()->isVisible(), items > list.viewport()->height());
  }

  static int TextWidth(const QWidget& body) {
    const QFontMetrics metrics(body.font());
    if (const auto* box = qobject_cast<const QAbstractSpinBox*>(&body)) {
      const auto* line = box->findChild<QLineEdit*>();
      const int needed = metrics.horizontalAdvance(line->text());
      EXPECT_GE(line->width() - line->textMargins().right(), needed);
      return needed;
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&body)) {
      int most = 0;
      for (int i = 0; i < combo->count(); ++i) {
        most = std::max(most, metrics.horizontalAdvance(combo->itemText(i)));
      }
      return most;
    }
    const char* const property = body.inherits("QGroupBox") ? "title" : "text";
    return metrics.size(Qt::TextShowMnemonic, body.property(property).toString()).width();
  }

  /// Of a column, without what it shares with others.
  static QString NameRightOver(const Grid& grid, int column) {
    std::string name;
    for (const Grid::HeaderCell& cell : grid.Header()) {
      if (cell.column == column && cell.columns == 1) name = cell.text;
    }
    return QString::fromStdString(name);
  }

  static void CheckTable(const Grid& grid, const QTableView& table) {
    constexpr int kMargins = 24;
    const QFontMetrics metrics(table.font());
    const QAbstractItemModel& cells = *table.model();
    const int rows = cells.rowCount() * table.rowHeight(0);
    EXPECT_LE(table.viewport()->height(), rows) << "space below the last row";
    if (table.height() >= table.sizeHint().height() && !table.horizontalScrollBar()->isVisible()) {
      const int data_rows = grid.Rows() - grid.HeaderRows();
      EXPECT_GE(table.viewport()->height(), std::min(data_rows, 16) * table.rowHeight(0));
    }
    for (const Grid::HeaderCell& cell : grid.Header()) {
      int width = 0;
      for (int i = 0; i < cell.columns; ++i) width += table.columnWidth(cell.column + i);
      EXPECT_GE(width, WidthInTwoLines(metrics, QString::fromStdString(cell.text))) << cell.text;
    }
    for (int column = 0; column < cells.columnCount(); ++column) {
      int needed = grid.LeastWidth(column) * metrics.averageCharWidth();
      for (int row = 0; row < cells.rowCount(); ++row) {
        const QString text = cells.index(row, column).data().toString();
        needed = std::max(needed, metrics.horizontalAdvance(text));
        EXPECT_GE(table.rowHeight(row), metrics.height());
      }
      const QString name = NameRightOver(grid, column);
      const int one_line = metrics.horizontalAdvance(name);
      const int two_lines = WidthInTwoLines(metrics, name);
      const int width = table.columnWidth(column);
      EXPECT_GE(width, needed) << column;
      EXPECT_GE(table.horizontalHeader()->height(), metrics.height() * (one_line > width ? 2 : 1));
      if (grid.HasValueNotes(column)) continue;             // as wide as its notes may be
      const bool last = column + 1 == cells.columnCount();  // it has the space of a scroll bar
      const int bar = table.verticalScrollBar()->sizeHint().width();
      if (last) {
        const int least = table.horizontalHeader()->minimumSectionSize();
        EXPECT_LE(width, std::max({needed, one_line, least}) + kMargins + bar);
      }
      if (!last && std::max(needed, two_lines) + kMargins < one_line) {
        EXPECT_LT(width, one_line) << "in two lines it is narrower";
      }
    }
  }
};

/// Whatever of a window is not to be seen can be scrolled to.
void CheckScrolling(const QWidget& window) {
  const QSize screen = window.screen()->availableSize();
  EXPECT_LE(window.width(), screen.width());
  EXPECT_LE(window.height(), screen.height());
  for (const auto* area : window.findChildren<QScrollArea*>()) {
    if (!area->isVisibleTo(&window)) continue;
    const QSize hidden = area->widget()->size() - area->viewport()->size();
    EXPECT_EQ(area->verticalScrollBar()->maximum(), std::max(hidden.height(), 0));
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), std::max(hidden.width(), 0));
  }
}

class QtSizes : public ::testing::Test {
 protected:
  ~QtSizes() override {
    QApplication::setFont(font_);
    QApplication::setPalette(palette_);
  }

  void SetScale(double larger) {
    QFont font = font_;
    font.setPointSizeF(font_.pointSizeF() * larger);
    QApplication::setFont(font);
  }

  /// A page that is in front: what is drawn, and what is reached.
  static void CheckPage(const Dialog& editor, QWidget& window) {
    QApplication::processEvents();
    Fits(editor, window);
    CheckScrolling(window);
    for (const Widget* const widget : editor.Widgets()) {
      const WidgetKind kind = widget->Kind();
      const bool list = kind == WidgetKind::kListBox || kind == WidgetKind::kComboBox;
      EXPECT_TRUE(!list || widget->SpokenName() != widget->Name()) << widget->Name();
    }
    EXPECT_EQ(KeyboardWalk(editor, window).Unreached(), "");
  }

  /// Every page of an editor, which Ctrl+Tab leads to.
  static void CheckByKeyboard(const Dialog& editor, QWidget& window) {
    const TabStrip* const tabs = TabsOf(editor);
    if (tabs == nullptr) return CheckPage(editor, window);
    std::set<int> seen;
    while (seen.insert(tabs->Current()).second) {
      SCOPED_TRACE(testing::Message() << "page " << tabs->Current());
      CheckPage(editor, window);
      QTest::keyClick(window.findChild<QTabBar*>(), Qt::Key_Tab, Qt::ControlModifier);
    }
    EXPECT_EQ(std::ranges::count(tabs->Pages(), true, &Page::visible), std::ssize(seen));
  }

  /// Every editor of a device, with texts of its own; returns how many there are.
  static int CheckEditors(const Device& device, const TextSource::Answer& texts) {
    Installer installer(device, texts);
    const auto items = installer.Items();
    for (const std::string& item : items) {
      SCOPED_TRACE(item);
      Dialog& editor = installer.Open(item);
      CheckByKeyboard(editor, *installer.WindowOf(editor));
      editor.CloseWindow();
    }
    return static_cast<int>(items.size());
  }

  /// Every page of a window.
  void Check(const std::shared_ptr<Dialog>& dialog) {
    for (Widget* const widget : dialog->Widgets()) {
      if (widget->Kind() != WidgetKind::kTabStrip) continue;
      auto& tabs = static_cast<TabStrip&>(*widget);
      for (int page = 0; page < tabs.Count(); ++page) {
        tabs.SetCurrent(page);
        dialog->Show();
        QApplication::processEvents();
        QWidget& window = *platform_.WindowOf(*dialog);
        Fits(*dialog, window);
        CheckScrolling(window);
      }
    }
  }
  QFont font_ = QApplication::font();
  QPalette palette_ = QApplication::palette();
  QtPlatform platform_;
};

TEST_F(QtSizes, NothingClipsInAnyFontPaletteAndLengthOfTexts) {
  const auto open_already = std::make_shared<EveryKind>(platform_);
  open_already->Show();
  for (const double larger : {1.0, 1.5, 2.0}) {
    SetScale(larger);
    for (const bool dark : {false, true}) {
      QApplication::setPalette(QColor(dark ? 0x1e1e22 : 0xf0f0f0));
      for (const bool longer : {false, true}) {
        SCOPED_TRACE(testing::Message()
                     << larger << (dark ? " dark" : " light") << (longer ? " long texts" : ""));
        Check(std::make_shared<EveryKind>(platform_,
                                          longer ? EveryKind::HalfAgain : EveryKind::AsIs));
        Check(open_already);
      }
    }
  }
}

TEST_F(QtSizes, EveryEditorFitsAndIsWorkedByKeyboard) {
  int editors = 0;
  for (const double larger : {1.0, 1.5, 2.0}) {
    SetScale(larger);
    for (const Device& device : kFamilies) {
      const bool longer = (larger == 1.5) == (device.code < 6);
      SCOPED_TRACE(testing::Message() << larger << " model " << int{device.code} << device.variant
                                      << (longer ? " long texts" : ""));
      editors += CheckEditors(device, [longer](int id) {
        std::string text(BuiltInText(id));
        return longer ? EveryKind::HalfAgain(text) : text;
      });
    }
  }
  EXPECT_GE(editors, 2 * 3 * static_cast<int>(std::size(kFamilies)));
}

TEST_F(QtSizes, EveryEditorFitsInEveryLanguage) {
  for (const auto& [code, json] : muxhost::BuiltInLanguages()) {
    const muxhost::Language language = muxhost::ReadLanguage(json);
    for (const Device& device : kFamilies) {
      SCOPED_TRACE(testing::Message() << code << " model " << int{device.code} << device.variant);
      CheckEditors(device, [&language](int id) { return language.texts.at(id); });
    }
  }
}

TEST_F(QtSizes, AWarningMovesNothing) {
  Installer installer({16, 6, '2'});
  Dialog& editor = installer.Open("mnu_Alarm");
  editor.Find<TabStrip>("SSTab1").SetCurrent(7);
  QApplication::processEvents();
  const QWidget& window = *installer.WindowOf(editor);
  const auto* const frame = window.findChild<QWidget*>("Frame12");
  const QSize sizes[] = {window.size(), frame->size()};
  for (const char* const typed : {"no address", "", "a b@site.example", "", "guard"}) {
    editor.Find<TextBox>("txtUser1Addr").Type(typed);
    QApplication::processEvents();
    EXPECT_EQ(window.size(), sizes[0]) << typed;
    EXPECT_EQ(frame->size(), sizes[1]) << typed;
    EXPECT_EQ(window.findChild<QWidget*>("txtUser1Addr")->accessibleDescription().isEmpty(),
              std::string(typed).empty());
  }
}

/// A list beside a grid that is taller, on the page that is not in front when the window opens.
class ListOfTen : public Dialog {
 public:
  explicit ListOfTen(Platform& platform) : Dialog(platform, "frm_ListOfTen") {
    grid.SetSize(17, 2);
    list.SetItems({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"});
    list.Select(4);
    SetLayout(Column(Tabs(tabs, Page{"First", Column()}, Page{"Second", Row(grid, list)})));
  }
  TabStrip tabs{*this, "tabs"};
  Grid grid{*this, "grid"};
  ListBox list{*this, "list"};
};

TEST_F(QtSizes, AListOfTenIsShownWhole) {
  const auto dialog = std::make_shared<ListOfTen>(platform_);
  Check(dialog);
  const auto& list = *platform_.WindowOf(*dialog)->findChild<QListView*>("list");
  EXPECT_FALSE(list.verticalScrollBar()->isVisible());
  EXPECT_GE(list.viewport()->height(), 10 * list.visualRect(list.model()->index(0, 0)).height());
}

/// A grid alone, one of whose columns holds cameras.
class Titles : public Dialog {
 public:
  explicit Titles(Platform& platform) : Dialog(platform, "frm_Titles") {
    grid.SetSize(17, 4);
    grid.SetCell(1, 1, "7", 6);
    grid.SetCell(2, 1, "--", 16);
    Grid::ValueNotes titles(7);
    titles.at(6) = "Goods entrance of the building";
    grid.SetValueNotes(1, std::make_shared<Grid::ValueNotes>(titles));
    SetLayout(Column(grid));
  }
  Grid grid{*this, "grid"};
};

TEST_F(QtSizes, NotesStandBesideNumbersAndAreCutBeforeAnythingScrolls) {
  const auto dialog = std::make_shared<Titles>(platform_);
  dialog->Show();
  QWidget& window = *platform_.WindowOf(*dialog);
  const auto& table = *window.findChild<QTableView*>("grid");
  const auto spoken = [&](int row) {
    return table.model()->index(row, 1).data(Qt::AccessibleTextRole).toString();
  };
  const QString text = "7    Goods entrance of the building";
  const int whole = table.fontMetrics().horizontalAdvance(text);
  EXPECT_GE(table.columnWidth(1), whole);
  EXPECT_EQ(table.model()->index(0, 1).data(), "7");
  EXPECT_EQ(spoken(0), "7 Goods entrance of the building");
  EXPECT_EQ(spoken(1), "--");
  for (const int less : {whole / 3, whole / 2}) {
    window.resize(window.width() - less, window.height());
    QTest::qWait(50);  // bars follow columns a turn later
    EXPECT_LT(table.columnWidth(1), whole);
    EXPECT_GE(table.columnWidth(1), table.fontMetrics().horizontalAdvance("--"));
    EXPECT_EQ(table.horizontalScrollBar()->maximum(), 0) << less;
  }
}

/// The toolkit takes its scale when it starts, so this starts the tests above anew.
TEST_F(QtSizes, NothingClipsOnScaledScreens) {
  for (const char* const scale : {"1.5", "2"}) {
    QProcess again;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", scale);
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::MergedChannels);
    again.start(QApplication::applicationFilePath(),
                {"--gtest_filter=QtSizes.*Length*:QtSizes.EveryEditorFitsAnd*"});
    EXPECT_TRUE(again.waitForFinished(-1));
    EXPECT_TRUE(again.exitStatus() == QProcess::NormalExit && again.exitCode() == 0)
        << scale << "\n"
        << again.readAll().toStdString();
  }
}

}  // namespace
}  // namespace quorvel
