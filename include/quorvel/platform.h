#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "quorvel/class_factory.h"
#include "quorvel/clock_time.h"
#include "quorvel/export.h"
#include "quorvel/property_bag.h"

namespace quorvel {

class ControlSurface;
class Dialog;
class PopupMenu;

/// A call to the outside world has failed: a file cannot be read or written. The text says what
/// failed and why; the user sees it in the second line of a message.
class QUORVEL_API PlatformError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A message box.
struct Message {
  enum class Buttons { kOk, kOkCancel };
  enum class Kind {
    kInformation,
    kWarning,   ///< something is missing, or is not as the user may expect it
    kQuestion,  ///< OK goes on, Cancel does not
    kError,     ///< something was refused or has failed
  };
  std::string text;  ///< lines are separated by '\r'
  std::string title;
  Buttons buttons = Buttons::kOk;
  Kind kind = Kind::kInformation;
  bool ok_without_user = false;  ///< where no user is there to answer, the question means OK
};

/// How much a line of the log matters.
enum class LogLevel {
  kDebug,
  kInformation,  ///< a transfer begins or ends, another image is there
  kWarning,      ///< something that the host has given is ignored or refused
  kError,        ///< something has failed
};

/// What a file dialog asks for.
struct FileRequest {
  enum class Purpose { kOpen, kSave };
  Purpose purpose = Purpose::kOpen;
  std::string title;
  std::string default_name;
  std::string filter;             ///< as "*.bin"
  std::string default_extension;  ///< without the dot; empty for none
  bool ask_before_overwriting = false;
  bool must_exist = false;
  bool read_only_box = false;  ///< shows a ticked box that says that the file is only read
};

/// Pixels.
struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

/// A repeating timer. It ticks each `interval` milliseconds while it runs; with interval 0 it never
/// ticks. A tick handler may stop, restart or destroy its timer.
class QUORVEL_API Timer {
 public:
  virtual ~Timer() = default;
  virtual void SetInterval(int milliseconds) = 0;
  [[nodiscard]] virtual int Interval() const = 0;
  /// Starts the timer, or starts its interval anew.
  virtual void Start() = 0;
  virtual void Stop() = 0;
};

/// The seam to the outside world. Everything that the component shows, times or stores goes through
/// it, on one thread.
class QUORVEL_API Platform {
 public:
  virtual ~Platform() = default;

  /// Puts a dialog on screen, or in front of the other windows when it is there already. The owner
  /// keeps the dialog and calls Hide before destroying it.
  virtual void Show(Dialog& dialog) = 0;
  /// The same, with the rest of the component's windows locked; returns when the dialog is hidden.
  virtual void ShowModal(Dialog& dialog) = 0;
  /// Takes a dialog off the screen; nothing when it is not there. Ends its modal loop. Callable
  /// from the dialog's own handlers.
  virtual void Hide(Dialog& dialog) noexcept = 0;

  /// False while another dialog is modal over this one. Toolkits that lock windows themselves need
  /// not say.
  [[nodiscard]] virtual bool TakesInput(const Dialog& /*dialog*/) const { return true; }

  /// Pops a menu up, its corner at `x`, `y` in pixels from the corner of the host's window, and
  /// returns at once; a choice or nothing follows later. A menu that is up already is replaced.
  virtual void PopUp(std::shared_ptr<PopupMenu> menu, int x, int y) = 0;
  /// Takes the menu down, if it is the one that is up.
  virtual void TakeDown(const PopupMenu& menu) noexcept = 0;

  /// Shows a message box; true when it was answered with OK.
  virtual bool Ask(const Message& message) = 0;
  /// Asks for a file name; nothing when the dialog was cancelled.
  virtual std::optional<std::string> AskFile(const FileRequest& request) = 0;

  /// Takes a line of what an integrator may want to know, in English: what has failed, what of the
  /// host's was ignored and why, transfers that begin and end. It holds no value of a setting. It
  /// must not call the control; what it throws is dropped.
  virtual void Log(LogLevel /*level*/, std::string_view /*text*/) {}

  [[nodiscard]] virtual std::unique_ptr<Timer> NewTimer(std::function<void()> tick) = 0;
  [[nodiscard]] virtual LocalTime Now() const = 0;

  // Paths are UTF-8.

  /// A whole file; throws PlatformError.
  [[nodiscard]] virtual std::vector<std::uint8_t> ReadFile(const std::string& path) = 0;
  /// Replaces a file by these bytes, whole or not at all; throws PlatformError.
  virtual void StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) = 0;

  [[nodiscard]] virtual Font AmbientFont() const = 0;
  /// Space that a line of text takes.
  [[nodiscard]] virtual Size MeasureText(const Font& font, std::string_view text) const = 0;

  /// Between the host's single-byte code page and UTF-8. Characters that the code page lacks become
  /// "?".
  [[nodiscard]] virtual std::string ToUtf8(std::string_view bytes) const = 0;
  [[nodiscard]] virtual std::string FromUtf8(std::string_view text) const = 0;

  /// The classes that the host offers by identifier.
  [[nodiscard]] virtual ClassFactory& Classes() = 0;
};

}  // namespace quorvel
