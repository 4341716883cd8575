#include "muxhost/gallery/gallery.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPalette>
#include <QTemporaryDir>
#include <iostream>
#include <stdexcept>

#include "muxhost/gallery/album.h"
#include "muxhost/gallery/texts.h"
#include "muxhost/gallery/tour.h"
#include "muxhost/window/window_language.h"
#include "quorvel/widget_page.h"

namespace quorvel::muxhost {

namespace {

struct Device {
  const char* name;
  TourDevice device;
};
const Device kDevices[] = {{"multiplexer", {.model = 0}},
                           {"multiplexer-basic", {.model = 0, .variant = "A"}},
                           {"dvr", {.model = 1}},
                           {"duplex", {.model = 2}},
                           {"triplex", {.model = 6}},
                           {"triplex-turbo", {.model = 18}},
                           {"triplex-lite", {8, 9}},
                           {"triplex-lite-4", {16, 4}},
                           {"triplex-matrix-presets", {.model = 15, .variant = "0"}}};

/// A small laptop's screen; one of the usual size where everything is drawn larger.
QByteArray ScreenFor(const Look& look) {
  const bool usual = look.percent == 100;
  return QString(R"({"screens":[{"name":"screen","x":0,"y":0,"width":%1,"height":%2,)"
                 R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
      .arg(usual ? 1366 : 1920)
      .arg(usual ? 768 : 1080)
      .toUtf8();
}

/// Before the application is made: it takes its screen and scale from the environment.
void SetUpScreen(const Look& look, const QString& description) {
  QFile file(description);
  if (!file.open(QIODevice::WriteOnly) || file.write(ScreenFor(look)) < 0) {
    throw std::runtime_error("cannot write " + description.toStdString());
  }
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.toUtf8());
  qputenv("QT_SCALE_FACTOR", QByteArray::number(look.percent / 100.0));
}

QPalette DarkPalette() {
  const QColor faint(128, 128, 128);
  QPalette palette(QColor(53, 53, 53), QColor(53, 53, 53));
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
  palette.setColor(QPalette::ToolTipBase, QColor(35, 35, 35));
  palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(80, 80, 80));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(190, 190, 190));
  palette.setColor(QPalette::Link, QColor(42, 130, 218));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::BrightText, QPalette::ToolTipText}) {
    palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::PlaceholderText, faint);
  return palette;
}

/// Keeps quiet what a platform without a screen says of each thing that it does not do.
class Quiet {
 public:
  Quiet() { qInstallMessageHandler(&Pass); }
  ~Quiet() { qInstallMessageHandler(nullptr); }
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;

 private:
  static void Pass(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith("This plugin does not support")) return;
    std::cerr << qFormatLogMessage(type, context, message).toStdString() << '\n';
  }
};

void DrawWidgetPage(const QString& folder, const Look& look) {
  Album album(folder);
  QtPlatform platform;
  const auto page = MakeWidgetPage(platform);
  if (look.long_texts) MakeLonger(*page);
  page->Show();
  album.TakePages(*platform.WindowOf(*page), *page);
}

}  // namespace

const std::vector<Look>& Looks() {
  static const std::vector<Look> looks{{.name = "light"},
                                       {.name = "dark", .dark = true},
                                       {.name = "large", .percent = 200},
                                       {.name = "long", .long_texts = true}};
  return looks;
}

void DrawGallery(int argc, char** argv, const std::string& folder, const Look& look,
                 const std::shared_ptr<const Language>& language) {
  const Quiet quiet;
  const QTemporaryDir description;
  SetUpScreen(look, description.filePath("screen.json"));
  const QApplication application(argc, argv);
  if (look.dark) QApplication::setPalette(DarkPalette());
  const QDir pictures(
      QDir(QString::fromStdString(folder)).filePath(QString::fromStdString(look.name)));
  const auto texts = look.long_texts ? LongTexts(language) : language;
  const WindowLanguage spoken(texts);
  DrawWidgetPage(pictures.filePath("widgets"), look);
  for (const auto& [name, device] : kDevices) {
    Album album(pictures.filePath(name));
    Tour(album, device, texts).Go();
  }
}

}  // namespace quorvel::muxhost
