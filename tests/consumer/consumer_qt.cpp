#include <QApplication>

#include "quorvel/qt_platform.h"
#include "quorvel/widget_page.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  quorvel::QtPlatform platform;
  const auto page = quorvel::MakeWidgetPage(platform);
  page->Show();
  QApplication::processEvents();
  return platform.WindowOf(*page) != nullptr ? 0 : 1;
}
