#pragma once

#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>
#include <functional>

namespace quorvel::muxhost {

/// What the host can have the control do.
enum class Command { kDownload, kMenu, kUpload, kSave, kRestore, kDefaults };

/// The control, and a button for each command.
class CommandBox : public QGroupBox {
 public:
  /// What commands depend on.
  struct State {
    bool loaded = false;       ///< the control holds a configuration
    bool others_open = false;  ///< an editor, the menu or another window is on screen
    bool locked = false;       ///< a window is on screen that locks all others
  };

  explicit CommandBox(QWidget* parent = nullptr);

  std::function<void(Command)> on_command;

  /// Where the control is drawn.
  [[nodiscard]] QVBoxLayout& SurfacePlace() { return *surface_place_; }
  /// Enables what the state allows; the tool tips of the rest say why not.
  void Show(const State& state);
  /// Why a command that takes the whole screen cannot be given now.
  [[nodiscard]] static QString Busy();

 private:
  static constexpr std::size_t kCommands = 6;

  QVBoxLayout* const surface_place_;
  std::array<QPushButton*, kCommands> buttons_{};
};

}  // namespace quorvel::muxhost
