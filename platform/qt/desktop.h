#pragma once

#include <QEventLoop>
#include <QPointer>
#include <map>
#include <optional>
#include <vector>

#include "platform/qt/dialog_window.h"
#include "platform/qt/popup_on_screen.h"
#include "quorvel/qt_platform.h"

namespace quorvel {

/// What of a platform is on the screen.
class QtPlatform::Desktop {
 public:
  Desktop() = default;
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  [[nodiscard]] qt::DialogWindow* Find(const Dialog& dialog) const;
  /// The window of a dialog, made when there is none.
  qt::DialogWindow& Open(Dialog& dialog);
  void Close(Dialog& dialog);
  /// Runs a loop until the dialog is closed.
  void Wait(Dialog& dialog);
  [[nodiscard]] bool Locks(const Dialog& dialog) const;
  /// The window that the host works with at the moment.
  [[nodiscard]] QWidget* Host() const;

  /// The lower left corner of the menu's button on the screen, while it is to be seen.
  [[nodiscard]] std::optional<QPoint> BelowMenuButton() const;

  QPointer<QWidget> host;
  QPointer<QWidget> menu_button;
  QString folder;  ///< of the file that was named last
  ClassFactory classes;
  qt::PopupOnScreen popup{[this] { return modal_.empty(); }};

 private:
  struct Modal {
    const Dialog* dialog;
    QEventLoop* loop;
  };
  std::map<const Dialog*, QPointer<qt::DialogWindow>> windows_;
  std::vector<QPointer<qt::DialogWindow>> retired_;
  std::vector<Modal> modal_;
};

}  // namespace quorvel
