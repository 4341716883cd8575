#pragma once

#include <QDir>
#include <QString>
#include <QWidget>
#include <functional>

#include "quorvel/widgets.h"

namespace quorvel::muxhost {

/// A folder of pictures of windows.
class Album {
 public:
  /// Makes the folder. Throws std::runtime_error when it cannot be made; so do the next when a
  /// picture cannot be written.
  explicit Album(const QString& folder);

  /// Takes a picture of a window as NAME.png.
  void Take(QWidget& window, const QString& name);
  /// Takes a picture of each page of a dialog's tab strip as WINDOW-1.png and so on, or one of the
  /// dialog when it has no pages.
  void TakePages(QWidget& window, Dialog& dialog);

  /// Lets everything happen that is due.
  static void Settle();
  /// Waits until something is so; throws std::runtime_error when it does not come to that.
  static void WaitFor(const QString& what, const std::function<bool()>& is_so);

 private:
  QDir folder_;
};

}  // namespace quorvel::muxhost
