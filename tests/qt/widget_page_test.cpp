#include "ui/widget_page/widget_page.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <map>
#include <set>

#include "muxhost/gallery/texts.h"
#include "muxhost/gallery/tour.h"
#include "quorvel/qt_platform.h"
#include "tests/qt/drawn_as_told.h"

namespace quorvel::muxhost {
namespace {

std::map<std::string, std::string> Values(const Dialog& dialog) {
  std::map<std::string, std::string> values;
  for (const Widget* const widget : dialog.Widgets()) {
    values[widget->Name()] = widget->ValueText();
  }
  return values;
}

TEST(QtWidgetPage, HasEveryKindAndDrawingChangesNoModel) {
  QtPlatform platform;
  const auto page = std::make_shared<WidgetPage>(platform);
  std::set<WidgetKind> kinds;
  for (const Widget* const widget : page->Widgets()) kinds.insert(widget->Kind());
  EXPECT_EQ(kinds.size(), static_cast<std::size_t>(WidgetKind::kStatusBar) + 1);
  const auto before = Values(*page);
  EXPECT_EQ(before.size(), page->Widgets().size()) << "names are unique";

  page->Show();
  for (int i = 0; i < page->pages.Count(); ++i) {
    page->pages.SetCurrent(i);
    QApplication::processEvents();
    EXPECT_EQ(DrawnAsTold::FirstDifference(*platform.WindowOf(*page), *page), "");
  }
  page->pages.SetCurrent(0);
  EXPECT_EQ(Values(*page), before);
  EXPECT_EQ(before.at("sldOutside"), "200 of 0..20");
  EXPECT_EQ(before.at("txtBeyond"), "Longer than twelve characters");
  EXPECT_EQ(before.at("txtZero"), std::string("A\0B", 3));

  page->chkShowHidden.Click();
  page->cmdAddColumn.Click();
  QApplication::processEvents();
  EXPECT_EQ(DrawnAsTold::FirstDifference(*platform.WindowOf(*page), *page), "");
  page->cmdCancel.Click();
  EXPECT_FALSE(page->Shown());
}

TEST(QtGallery, HasEveryPageOfWhatTheMenuOpens) {
  const QTemporaryDir folder;
  Album album(folder.path());
  Tour(album, {.model = 14, .cameras = 9}, LongTexts(nullptr)).Go();
  const QStringList taken = QDir(folder.path()).entryList(QDir::Files);
  for (const char* const name :
       {"frm_Alarm-1", "frm_CameraSetup-1", "frm_CameraSetup-3", "frm_ToMux-3", "frm_ULFrMux-2",
        "menu", "menu-mnu_Factory", "mnuActGrid", "muxhost-4-sent", "muxhost-find"}) {
    EXPECT_TRUE(taken.contains(QString(name) + ".png")) << name;
  }
  EXPECT_FALSE(taken.contains("question.png"));
}

}  // namespace
}  // namespace quorvel::muxhost
