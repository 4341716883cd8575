#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "muxhost/gallery/album.h"
#include "muxhost/gallery/platform.h"
#include "muxhost/host_session.h"
#include "muxhost/texts/language.h"
#include "muxhost/window/main_window.h"

namespace quorvel::muxhost {

/// What is chosen of a device in the host's window.
struct TourDevice {
  int model = 0;
  int cameras = 16;
  const char* variant = "";  ///< one character, or nothing: as from the factory
};

/// Connects a device, goes through every window that there is for it, and takes pictures.
class Tour {
 public:
  /// The component's texts are of a language; none: English.
  Tour(Album& album, const TourDevice& device, const std::shared_ptr<const Language>& language);
  void Go();

 private:
  /// Takes a picture of the host's window, once it has looked for changes.
  void TakeHost(const QString& name);
  void Connect(const TourDevice& device);
  void Choose(const QString& item, Qt::MatchFlags match);
  /// Takes a picture of an unexpected question, and cancels it.
  void DismissQuestion();
  void Receive();
  void Send();
  void GoThroughMenu();
  void TakeMenu();
  /// Opens what a menu item opens, and closes it again.
  void TakeWhatOpens(const std::string& item);
  [[nodiscard]] QWidget* OpenedWindow() const;
  /// Changes an editor, and takes its marks and what lists the changes.
  void TakeChanges();
  /// Takes what finds settings, in the host's window.
  void TakeFind();
  /// Does something to a modal dialog; a failure in there is thrown once the dialog has gone.
  void WithModal(std::function<void(Dialog&)> act, void (HostSession::*command)());

  Album& album_;
  TourPlatform platform_;
  QObject turns_;
  QTimer questions_;
  HostSession session_;
  MainWindow window_;
};

}  // namespace quorvel::muxhost
