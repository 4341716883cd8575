#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>
#include <functional>
#include <optional>

namespace quorvel::muxhost {

/// What the host can do for the user.
enum class Command {
  kDownload,
  kMenu,
  kZones,
  kUploadModified,
  kUploadAll,
  kSave,
  kRestore,
  kDefaults
};

/// The control, and a button for each command.
class CommandBox : public QGroupBox {
 public:
  /// What commands depend on.
  struct State {
    bool has_device = true;
    bool link_on = true;
    bool loaded = false;            ///< the control holds a configuration
    bool modified = false;          ///< the control lists modified blocks
    bool others_open = false;       ///< an editor, the menu or another window is on screen
    bool locked = false;            ///< a window is on screen that locks all others
    bool waiting = false;           ///< an answer is to come that replaces the data
    std::optional<Command> next{};  ///< the sensible next step: the default button
  };

  explicit CommandBox(QWidget* parent = nullptr);

  std::function<void(Command)> on_command;

  /// Where the control is drawn.
  [[nodiscard]] QVBoxLayout& SurfacePlace() { return *surface_place_; }
  /// An upload is to bring the macro data, too.
  [[nodiscard]] bool WithMacros() const { return with_macros_->isChecked(); }
  /// Enables what the state allows; the tool tips of the rest say why not. The focus goes from one
  /// of the buttons to the next step's.
  void Show(const State& state);
  /// Presses the default button, if there is one.
  void PressDefault();
  /// Gives the focus to the default button, or to the next one that there is.
  void FocusDefault();
  /// The button of the configuration menu.
  [[nodiscard]] QWidget& MenuButton() const { return *ButtonOf(Command::kMenu); }
  /// Why a command that takes the whole screen cannot be given now; empty when it can.
  [[nodiscard]] static QString Busy(const State& state);

 private:
  static constexpr std::size_t kCommands = 8;

  [[nodiscard]] QPushButton* ButtonOf(Command command) const {
    return buttons_.at(static_cast<std::size_t>(command));
  }
  void MarkNext(const std::optional<Command>& next, bool had_focus);

  QVBoxLayout* const surface_place_;
  QCheckBox* const with_macros_;
  std::array<QPushButton*, kCommands> buttons_{};
  std::optional<Command> next_;
  bool focus_waits_ = false;  ///< for a default button, since there was one with the focus
};

}  // namespace quorvel::muxhost
