#pragma once

#include <memory>

#include "quorvel/export.h"
#include "quorvel/platform.h"

class QWidget;

namespace quorvel {

/// The platform of hosts with Qt 6 Widgets: dialogs, menus, timers and files of a desktop. It needs
/// a QApplication, which must outlive it, and is used on the application's thread. It must outlive
/// the controls that it was given to.
class QUORVEL_QT_API QtPlatform : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  /// The host's window, over which dialogs open, in front of which they stay, and from whose corner
  /// the place of a menu counts. Without one, or when it has been deleted, the active window is it.
  void SetHostWindow(QWidget* window);
  /// The button that opens the menu: menus pop up below it while it is to be seen. Without one they
  /// pop up at the place counted from the host's window.
  void SetMenuButton(QWidget* button);
  /// The window that shows a dialog; a null pointer when the dialog is not on screen.
  [[nodiscard]] QWidget* WindowOf(const Dialog& dialog) const;

  void Show(Dialog& dialog) override;
  void ShowModal(Dialog& dialog) override;
  void Hide(Dialog& dialog) noexcept override;
  [[nodiscard]] bool TakesInput(const Dialog& dialog) const override;
  void PopUp(std::shared_ptr<PopupMenu> menu, int x, int y) override;
  void TakeDown(const PopupMenu& menu) noexcept override;
  bool Ask(const Message& message) override;
  std::optional<std::string> AskFile(const FileRequest& request) override;
  /// Goes to Qt's logging category "quorvel", which shows warnings and errors unless told
  /// otherwise.
  void Log(LogLevel level, std::string_view text) override;
  std::unique_ptr<Timer> NewTimer(std::function<void()> tick) override;
  [[nodiscard]] LocalTime Now() const override;
  std::vector<std::uint8_t> ReadFile(const std::string& path) override;
  void StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) override;
  [[nodiscard]] quorvel::Font AmbientFont() const override;
  [[nodiscard]] Size MeasureText(const quorvel::Font& font, std::string_view text) const override;
  [[nodiscard]] std::string ToUtf8(std::string_view bytes) const override;
  [[nodiscard]] std::string FromUtf8(std::string_view text) const override;
  ClassFactory& Classes() override;

 private:
  class Desktop;
  std::unique_ptr<Desktop> desktop_;
};

}  // namespace quorvel
