#include "muxhost/gallery/album.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPixmap>
#include <iostream>
#include <stdexcept>

namespace quorvel::muxhost {

namespace {

TabStrip* FirstTabStrip(const Dialog& dialog) {
  for (Widget* const widget : dialog.Widgets()) {
    if (auto* const tabs = dynamic_cast<TabStrip*>(widget)) return tabs;
  }
  return nullptr;
}

}  // namespace

Album::Album(const QString& folder) : folder_(folder) {
  if (!folder_.mkpath(".")) throw std::runtime_error("cannot make " + folder.toStdString());
}

void Album::Take(QWidget& window, const QString& name) {
  Settle();
  const QString path = folder_.filePath(name + ".png");
  if (!window.grab().save(path)) throw std::runtime_error("cannot write " + path.toStdString());
  std::cout << path.toStdString() << std::endl;
}

void Album::TakePages(QWidget& window, Dialog& dialog) {
  const QString name = QString::fromStdString(dialog.Name());
  TabStrip* const tabs = FirstTabStrip(dialog);
  if (tabs == nullptr) return Take(window, name);
  for (int page = 0; page < tabs->Count(); ++page) {
    if (tabs->Choose(page) == Answer::kDone) Take(window, QString("%1-%2").arg(name).arg(page + 1));
  }
}

void Album::Settle() {
  // Timers that are due at once may set others.
  for (int turn = 0; turn < 5; ++turn) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void Album::WaitFor(const QString& what, const std::function<bool()>& is_so) {
  constexpr int kPatience = 20000;
  QElapsedTimer waited;
  waited.start();
  while (!is_so()) {
    if (waited.elapsed() > kPatience) {
      throw std::runtime_error("no picture: " + what.toStdString() + " does not come");
    }
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
  }
}

}  // namespace quorvel::muxhost
