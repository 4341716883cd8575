#include "muxhost/window/run_window.h"

#include <QApplication>
#include <QTimer>
#include <utility>

#include "muxhost/texts/languages.h"
#include "muxhost/window/main_window.h"
#include "muxhost/window/window_language.h"
#include "quorvel/widget_page.h"

namespace quorvel::muxhost {

int RunWindow(int argc, char** argv, std::shared_ptr<const Language> language) {
  const QApplication application(argc, argv);
  QApplication::setOrganizationName("Quorvel");
  QApplication::setApplicationName("muxhost");
  const WindowLanguage spoken(language);
  QtPlatform platform;
  QObject turns;  // what is still scheduled ends with it
  HostSession session(platform, [&turns](int milliseconds, std::function<void()> task) {
    auto* const timer = new QTimer(&turns);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, task = std::move(task)] {
      timer->deleteLater();
      task();
    });
    timer->start(milliseconds);
  });
  Speak(platform, session, std::move(language));
  MainWindow window(platform, session, std::make_unique<QSettings>());
  window.show();
  return QApplication::exec();
}

int RunWidgetPage(int argc, char** argv) {
  const QApplication application(argc, argv);
  QtPlatform platform;
  const auto page = MakeWidgetPage(platform);
  page->on_closed = [] { QApplication::quit(); };
  page->Show();
  return QApplication::exec();
}

}  // namespace quorvel::muxhost
